#include "platform.h"

#include <algorithm>
#include <array>
#include <ostream>

namespace text {
namespace {

/// The surface of a control. The area is a base, so that it outlives the widget's own end.
class Ground final : private Area, public Basic<Surface> {
public:
    Ground(Form& form, WidgetListener& listener, const Rect& place)
        : Area{form, listener}, Basic(static_cast<Area&>(*this), kSurfaceWidget)
    {
        setGeometry(place);
    }

    [[nodiscard]] std::unique_ptr<TextField> createTextField(int number) override { return make<Field>(number); }
    [[nodiscard]] std::unique_ptr<Label> createLabel(int number) override { return make<Caption>(number); }
    [[nodiscard]] std::unique_ptr<Image> createImage(int number, bool isVisible) override
    {
        auto image = make<Picture>(number);
        image->setVisible(isVisible);
        return image;
    }
    [[nodiscard]] std::unique_ptr<SpinButton> createSpinButton(int number) override { return make<Spin>(number); }
    [[nodiscard]] std::unique_ptr<Track> createTrack(int number) override { return make<Handle>(number); }
    [[nodiscard]] std::unique_ptr<ComboBox> createComboBox(int number) override { return make<DropDown>(number); }
    [[nodiscard]] std::unique_ptr<ListBox> createListBox(int number) override { return make<MarkList>(number); }
    [[nodiscard]] std::unique_ptr<CheckBox> createCheckBox(int number) override
    {
        return make<Toggle<CheckBox, true>>(number);
    }
    [[nodiscard]] std::unique_ptr<OptionButton> createOptionButton(int number) override
    {
        return make<Toggle<OptionButton, false>>(number);
    }
    [[nodiscard]] std::unique_ptr<PopupMenu> createMenu(std::span<const MenuItem> items) override
    {
        return std::make_unique<Menu>(listener, items);
    }
    [[nodiscard]] Twips textWidth(std::string_view text, bool /*bold*/) const override { return widthOf(text); }

    [[nodiscard]] std::string shown() const override
    {
        std::vector<std::pair<Twips, std::string>> seen;
        for (const Part* part : parts) {
            const auto& widget = dynamic_cast<const Widget&>(*part);
            if (part != this && widget.isVisible())
                seen.emplace_back(widget.left(), part->shown());
        }
        std::ranges::stable_sort(seen, {}, &decltype(seen)::value_type::first);
        std::string line;
        for (const auto& [left, words] : seen)
            line += words.empty() ? "" : (line.empty() ? "" : " ") + words;
        return isVisible() ? line : "";
    }

private:
    template <class Kind>
    std::unique_ptr<Kind> make(int number)
    {
        return std::make_unique<Kind>(static_cast<Area&>(*this), number);
    }
};

Part& partOf(Widget& widget) { return dynamic_cast<Part&>(widget); }

std::int32_t positionOf(const EntryWidget& list, std::string_view text)
{
    for (std::int32_t i = 0; i < list.count(); ++i) {
        if (list.entryText(i) == text)
            return i;
    }
    return -1;
}

} // namespace

Part::~Part()
{
    std::erase(m_area.parts, this);
    m_area.form.forget(*this);
}

bool Part::isFocused() const noexcept { return m_area.form.focused() == this; }

// --- Widgets

void Field::setText(std::string_view text)
{
    if (m_text == text)
        return;
    m_text = text;
    m_start = m_length = 0;
    report(Notice::Change);
}

void Field::select(std::size_t start, std::size_t length)
{
    m_start = std::min(start, characterCount(m_text));
    m_length = std::min(length, characterCount(m_text) - m_start);
}

std::string Field::selectedText() const
{
    const std::size_t from = byteOffset(m_text, m_start);
    return m_text.substr(from, byteOffset(m_text, m_start + m_length) - from);
}

void Field::replaceSelection(std::string_view text)
{
    if (m_length == 0 && text.empty())
        return;
    const std::size_t from = byteOffset(m_text, m_start);
    m_text.replace(from, byteOffset(m_text, m_start + m_length) - from, text);
    m_start += characterCount(text);
    m_length = 0;
    report(Notice::Change);
}

Rect Caption::geometry() const
{
    const Rect place = Written::geometry();
    return {place.left, place.top, widthOf(m_caption), kLine};
}

void Caption::setCaption(std::string_view caption)
{
    if (m_caption == caption)
        return;
    m_caption = caption;
    report(Notice::Change);
}

std::string Picture::shown() const
{
    static constexpr std::array kWords{"",           "(failed)", "(attention)", "(unknown)", "(waiting)",
                                       "(not well)", "(well)",   "(not well)",  "(well)"};
    return kWords.at(static_cast<std::size_t>(m_picture));
}

void Spin::step(bool up)
{
    if (m_range.step(up))
        report(Notice::Change);
    report(up ? Notice::SpinUp : Notice::SpinDown);
}

std::string Handle::shown() const
{
    constexpr std::int64_t kLength = 20;
    const std::int64_t range = std::max<std::int64_t>(std::int64_t{maximum()} - minimum(), 1);
    std::string track(kLength + 1, '-');
    track[static_cast<std::size_t>((std::int64_t{value()} - minimum()) * kLength / range)] = 'o';
    return '|' + track + '|';
}

void MarkList::setSelected(std::int32_t index, bool selected)
{
    if (at(index).isMarked == selected)
        return;
    m_entries[static_cast<std::size_t>(index)].isMarked = selected;
    m_current = index;
    report(Notice::Click);
}

std::int32_t MarkList::selectedCount() const
{
    return static_cast<std::int32_t>(std::ranges::count(m_entries, true, &Entry::isMarked));
}

std::string MarkList::shown() const
{
    std::string line;
    for (const Entry& entry : m_entries)
        line += (line.empty() ? "" : " ") + std::string(entry.isMarked ? "(x) " : "( ) ") + entry.text;
    return marked(line);
}

void Menu::choose(std::size_t item)
{
    const Hold hold(m_listener);
    close();
    m_listener.notice(m_items[item].widget, Notice::Click, {});
}

// --- The form

std::unique_ptr<Surface> Form::createSurface(WidgetListener& listener, Twips width, Twips height)
{
    return std::make_unique<Ground>(*this, listener, Rect{0, 0, width, height});
}

void Form::showMessage(Component& /*component*/, const MessageBox& box)
{
    m_out << box.title << ": " << box.text << '\n';
}

void Form::forget(const Part& part) noexcept
{
    if (m_focused == &part)
        m_focused = nullptr;
}

/// Who has the focus is asked before it goes, and may keep it.
bool Form::moveFocus(Part* part)
{
    if (m_focused == part)
        return true;
    if (m_focused != nullptr) {
        const Hold hold(m_focused->area().listener);
        bool cancel = false;
        m_focused->report(Notice::Validate, std::array<ArgRef, 1>{&cancel});
        if (cancel)
            return false;
        std::exchange(m_focused, nullptr)->report(Notice::LostFocus);
    }
    if (part != nullptr) {
        m_focused = part;
        part->report(Notice::GotFocus);
    }
    return m_focused == part;
}

/// Any action: the control stays until it is over, whatever a handler does, and a widget that cannot be worked is
/// not.
template <class Kind, class Action>
Refusal Form::act(Kind& widget, Action&& action)
{
    Part& part = partOf(widget);
    const Hold hold(part.area().listener);
    if (!widget.isVisible())
        return Refusal::Hidden;
    if (!widget.isEnabled())
        return Refusal::Disabled;
    if constexpr (requires { widget.isLocked(); }) {
        if (widget.isLocked())
            return Refusal::Locked;
    }
    if constexpr (requires { widget.hasFocus(); }) {
        // A handler may keep the focus elsewhere, or freeze what has just got it.
        if (!moveFocus(&part) || !widget.isVisible() || !widget.isEnabled())
            return Refusal::None;
    }
    action(part);
    return Refusal::None;
}

Refusal Form::type(TextField& field, std::string_view text)
{
    return act(field, [&](Part&) {
        field.select(0, characterCount(field.text()));
        field.replaceSelection(text);
    });
}

Refusal Form::choose(ComboBox& box, std::string_view text)
{
    return act(box, [&](Part& part) {
        const std::int32_t index = positionOf(box, text);
        static_cast<void>(box.entryText(index)); // raises for what is no entry
        part.report(Notice::DropDown);
        box.setCurrent(index);
    });
}

Refusal Form::mark(ListBox& list, std::string_view text)
{
    return act(list, [&](Part&) {
        const std::int32_t index = positionOf(list, text);
        list.setSelected(index, !list.isSelected(index));
    });
}

Refusal Form::press(ToggleButton& button)
{
    const bool turnsOff = dynamic_cast<CheckBox*>(&button) != nullptr && button.isOn();
    return act(button, [&](Part&) { button.setOn(!turnsOff); });
}

Refusal Form::moveTo(Track& track, std::int32_t position)
{
    return act(track, [&](Part& part) {
        part.report(Notice::Scroll);
        track.setValue(position);
    });
}

Refusal Form::step(SpinButton& button, bool up)
{
    return act(button, [&](Part& part) { dynamic_cast<Spin&>(part).step(up); });
}

Refusal Form::click(Image& picture)
{
    return act(picture, [](Part& part) { part.report(Notice::Click); });
}

/// What the right mouse button does elsewhere.
Refusal Form::undo(Surface& surface, PopupMenu& menu)
{
    const Refusal refusal = act(surface, [](Part& part) {
        std::int16_t button = kRightButton;
        std::int16_t shift = 0;
        float x = 0;
        float y = 0;
        part.report(Notice::MouseUp, std::array<ArgRef, 4>{&button, &shift, &x, &y});
    });
    if (menu.isOpen())
        dynamic_cast<Menu&>(menu).choose(0);
    return refusal;
}

std::string lineOf(const Surface& surface) { return dynamic_cast<const Part&>(surface).shown(); }

} // namespace text
