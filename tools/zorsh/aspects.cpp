// What can be read of a widget, as a table.

#include <zor/platform/error.h>
#include <zor/tools/zorsh/commands.h>

#include <array>
#include <charconv>
#include <optional>
#include <type_traits>

namespace zor::console {
namespace {

using namespace platform;

struct AspectRow {
    std::string_view name;
    bool isIndexed;
    /// Nothing when the widget is not of the row's kind.
    std::optional<Reading> (*read)(const Widget& widget, std::int32_t index);
};

Reading reading(Variant value) { return {std::move(value)}; }

Reading colour(Colour value) { return {static_cast<std::int32_t>(value), Reading::Form::Colour}; }

Reading count(std::size_t value) { return {static_cast<std::int32_t>(value)}; }

Reading alignment(Alignment value) { return {value == Alignment::Right ? "right" : "left", Reading::Form::Word}; }

template <class Kind, auto Read>
constexpr AspectRow row(std::string_view name)
{
    constexpr bool kIsIndexed = std::is_invocable_v<decltype(Read), const Kind&, std::int32_t>;
    return {name, kIsIndexed, [](const Widget& widget, [[maybe_unused]] std::int32_t i) -> std::optional<Reading> {
                const auto* kind = dynamic_cast<const Kind*>(&widget);
                if (kind == nullptr)
                    return std::nullopt;
                if constexpr (kIsIndexed)
                    return Read(*kind, i);
                else
                    return Read(*kind);
            }};
}

// Several rows of one name: the first whose kind fits answers.
constexpr std::array kAspects{
    row<Widget, [](const Widget& w) { return reading(w.width()); }>("Width"),
    row<Widget, [](const Widget& w) { return reading(w.height()); }>("Height"),
    row<Widget, [](const Widget& w) { return colour(w.backColour()); }>("BackColor"),
    row<Widget, [](const Widget& w) { return reading(w.left()); }>("Left"),
    row<Widget, [](const Widget& w) { return reading(w.top()); }>("Top"),
    row<Widget, [](const Widget& w) { return reading(w.isVisible()); }>("Visible"),
    row<Widget, [](const Widget& w) { return reading(w.isEnabled()); }>("Enabled"),
    row<Widget, [](const Widget& w) { return reading(w.toolTip()); }>("ToolTipText"),
    row<FontWidget, [](const FontWidget& w) { return colour(w.foreColour()); }>("ForeColor"),
    row<FontWidget, [](const FontWidget& w) { return reading(w.isBold()); }>("FontBold"),
    row<FontWidget, [](const FontWidget& w) { return reading(w.isItalic()); }>("FontItalic"),
    row<Label, [](const Label& w) { return reading(w.caption()); }>("Caption"),
    row<ToggleButton, [](const ToggleButton& w) { return reading(w.caption()); }>("Caption"),
    row<TextField, [](const TextField& w) { return reading(w.text()); }>("Text"),
    row<TextField, [](const TextField& w) { return reading(w.isLocked()); }>("Locked"),
    row<TextField, [](const TextField& w) { return alignment(w.alignment()); }>("Alignment"),
    row<TextField, [](const TextField& w) { return count(w.selectionStart()); }>("SelStart"),
    row<TextField, [](const TextField& w) { return count(w.selectionLength()); }>("SelLength"),
    row<TextField, [](const TextField& w) { return reading(w.selectedText()); }>("SelText"),
    row<ComboBox, [](const ComboBox& w) { return reading(w.selectedText()); }>("Text"),
    row<ComboBox, [](const ComboBox& w) { return reading(w.isLocked()); }>("Locked"),
    row<Image, [](const Image& w) { return reading(w.picture()); }>("Picture"),
    row<SpinButton, [](const SpinButton& w) { return reading(w.value()); }>("Value"),
    row<SpinButton, [](const SpinButton& w) { return reading(w.minimum()); }>("Min"),
    row<SpinButton, [](const SpinButton& w) { return reading(w.maximum()); }>("Max"),
    row<Track, [](const Track& w) { return reading(w.value()); }>("Value"),
    row<Track, [](const Track& w) { return reading(w.minimum()); }>("Min"),
    row<Track, [](const Track& w) { return reading(w.maximum()); }>("Max"),
    row<CheckBox, [](const CheckBox& w) { return reading(w.isOn() ? 1 : 0); }>("Value"),
    row<OptionButton, [](const OptionButton& w) { return reading(w.isOn()); }>("Value"),
    row<Track, [](const Track& w) { return reading(w.tickStyle()); }>("TickStyle"),
    row<Track, [](const Track& w) { return reading(w.tickFrequency()); }>("TickFrequency"),
    row<Track, [](const Track& w) { return reading(w.tickCount()); }>("GetNumTicks"),
    row<EntryWidget, [](const EntryWidget& w) { return reading(w.count()); }>("ListCount"),
    row<EntryWidget, [](const EntryWidget& w) { return reading(w.current()); }>("ListIndex"),
    row<EntryWidget, [](const EntryWidget& w, std::int32_t i) { return reading(w.entryText(i)); }>("List"),
    row<EntryWidget, [](const EntryWidget& w, std::int32_t i) { return reading(w.datum(i)); }>("ItemData"),
    row<ListBox, [](const ListBox& w, std::int32_t i) { return reading(w.isSelected(i)); }>("Selected"),
};

/// The rows that a surface has: it is placed, shown and enabled by the container.
constexpr std::size_t kSurfaceRows = 3;
static_assert(kAspects[kSurfaceRows - 1].name == "BackColor");

std::int32_t indexIn(std::string_view brackets)
{
    if (brackets.size() < 3 || brackets.back() != ')')
        raiseError(ErrorNumber::InvalidCall, brackets);
    std::int32_t index = 0;
    const char* end = brackets.data() + brackets.size() - 1;
    const auto [at, error] = std::from_chars(brackets.data() + 1, end, index);
    if (error == std::errc::result_out_of_range)
        raiseError(ErrorNumber::Overflow, brackets);
    if (error != std::errc() || at != end)
        raiseError(ErrorNumber::InvalidCall, brackets);
    return index;
}

} // namespace

Reading aspect(const Widget& widget, std::string_view name)
{
    const auto bracket = name.find('(');
    const bool isIndexed = bracket != std::string_view::npos;
    const std::int32_t index = isIndexed ? indexIn(name.substr(bracket)) : 0;
    const std::string_view plain = name.substr(0, bracket);
    const bool isSurface = dynamic_cast<const Surface*>(&widget) != nullptr;
    for (const AspectRow& row : std::span(kAspects).first(isSurface ? kSurfaceRows : kAspects.size())) {
        if (row.name != plain)
            continue;
        if (row.isIndexed != isIndexed)
            raiseError(ErrorNumber::WrongArguments, name);
        if (std::optional<Reading> value = naming(name, [&] { return row.read(widget, index); }))
            return *value;
    }
    raiseError(ErrorNumber::NoSuchMember, name);
}

} // namespace zor::console
