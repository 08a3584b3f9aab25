// What the operator can do, as a table.

#include <zor/platform/error.h>
#include <zor/tools/zorsh/commands.h>
#include <zor/tools/zorsh/notation.h>

#include <algorithm>
#include <array>

namespace zor::console {
namespace {

using namespace platform;
using Arguments = std::span<const std::string_view>;

struct ActionRow {
    std::string_view name;
    std::size_t arguments;
    /// Whether the widget is of one of the row's kinds.
    bool (*fits)(const Widget& widget);
    Refusal (*act)(Operator& hands, Widget& widget, Arguments arguments);
};

template <class... Kinds>
bool isAnyOf(const Widget& widget)
{
    return (... || (dynamic_cast<const Kinds*>(&widget) != nullptr));
}

/// An action of widgets of several kinds.
template <class... Kinds>
constexpr ActionRow shared(std::string_view name, std::size_t arguments,
                           Refusal (*act)(Operator&, Widget&, Arguments))
{
    return {name, arguments, isAnyOf<Kinds...>, act};
}

template <Pointer Action>
constexpr ActionRow pointing(std::string_view name)
{
    return shared<TextField, Label, Image, Surface, ToggleButton, ListBox>(
        name, 0, [](Operator& hands, Widget& widget, Arguments) { return hands.pointer(widget, Action); });
}

/// An action of one kind of widget.
template <class Kind, auto Act>
constexpr ActionRow own(std::string_view name, std::size_t arguments = 0)
{
    return {name, arguments, isAnyOf<Kind>, [](Operator& hands, Widget& widget, Arguments words) {
                return Act(hands, dynamic_cast<Kind&>(widget), words);
            }};
}

std::int32_t number(std::string_view word) { return parseValue(word).toInt32(); }

std::size_t position(std::string_view word)
{
    const std::int32_t value = number(word);
    if (value < 0)
        raiseError(ErrorNumber::InvalidCall, word);
    return static_cast<std::size_t>(value);
}

std::string string(std::string_view word)
{
    const Variant value = parseValue(word);
    if (!value.isText())
        raiseError(ErrorNumber::TypeMismatch, word);
    return value.text();
}

constexpr std::array kActions{
    shared<TextField, EntryWidget, ToggleButton, Track>(
        "focus", 0, [](Operator& hands, Widget& widget, Arguments) { return hands.focus(widget); }),
    shared<TextField, EntryWidget, ToggleButton, Track>(
        "blur", 0, [](Operator& hands, Widget& widget, Arguments) { return hands.blur(widget); }),
    shared<TextField, EntryWidget, ToggleButton, Track>("key", 1,
                                                        [](Operator& hands, Widget& widget, Arguments a) {
                                                            return hands.key(widget, parseValue(a[0]).toInt16());
                                                        }),
    own<TextField, [](Operator& o, TextField& w, Arguments a) { return o.type(w, string(a[0])); }>("type", 1),
    own<TextField, [](Operator& o, TextField& w, Arguments a) { return o.paste(w, string(a[0])); }>("paste", 1),
    own<TextField, [](Operator& o, TextField& w,
                      Arguments a) { return o.select(w, position(a[0]), position(a[1])); }>("select", 2),
    pointing<Pointer::Click>("click"),
    pointing<Pointer::DoubleClick>("dblclick"),
    pointing<Pointer::RightClick>("rightclick"),
    own<SpinButton, [](Operator& o, SpinButton& w, Arguments) { return o.spin(w, true); }>("up"),
    own<SpinButton, [](Operator& o, SpinButton& w, Arguments) { return o.spin(w, false); }>("down"),
    own<Track, [](Operator& o, Track& w, Arguments a) { return o.moveTo(w, number(a[0])); }>("move", 1),
    own<ComboBox, [](Operator& o, ComboBox& w, Arguments a) { return o.choose(w, number(a[0])); }>("choose", 1),
    own<ComboBox, [](Operator& o, ComboBox& w, Arguments) { return o.dropDown(w); }>("dropdown"),
    own<ListBox, [](Operator& o, ListBox& w, Arguments a) { return o.toggle(w, number(a[0])); }>("toggle", 1),
    own<CheckBox, [](Operator& o, CheckBox& w, Arguments) { return o.press(w); }>("toggle"),
    own<OptionButton, [](Operator& o, OptionButton& w, Arguments) { return o.press(w); }>("choose"),
};

void report(Session& session, Refusal refusal)
{
    constexpr std::array<std::string_view, 5> kNames{"", "hidden", "disabled", "locked", "closed"};
    if (refusal != Refusal::None)
        session.print("refused " + std::string(kNames[static_cast<std::size_t>(refusal)]),
                      OutputLine::Kind::Refusal);
}

void actOnMenu(Session& session, PopupMenu& menu, Arguments arguments)
{
    if (arguments[0] != "choose")
        raiseError(ErrorNumber::NoSuchMember, arguments[0]);
    if (arguments.size() != 2)
        raiseError(ErrorNumber::WrongArguments, "choose ITEM");
    const auto item = std::ranges::find(menu.items(), arguments[1], &MenuItem::name);
    if (item == menu.items().end())
        raiseError(ErrorNumber::ObjectRequired, arguments[1]);
    const auto index = static_cast<std::size_t>(item - menu.items().begin());
    report(session, session.stage().hands().chooseItem(menu, index));
}

} // namespace

void act(Session& session, core::Control& control, std::string_view widgetName, Arguments arguments)
{
    if (widgetName == kMenuName && control.menu() != nullptr)
        return actOnMenu(session, *control.menu(), arguments);
    act(session, widgetNamed(control, widgetName), arguments);
}

void act(Session& session, Widget& widget, Arguments arguments)
{
    const auto row = std::ranges::find_if(kActions, [&](const ActionRow& candidate) {
        return candidate.name == arguments[0] && candidate.fits(widget);
    });
    if (row == kActions.end())
        raiseError(ErrorNumber::NoSuchMember, arguments[0]);
    if (row->arguments != arguments.size() - 1)
        raiseError(ErrorNumber::WrongArguments, row->name);
    report(session,
           naming(row->name, [&] { return row->act(session.stage().hands(), widget, arguments.subspan(1)); }));
}

} // namespace zor::console
