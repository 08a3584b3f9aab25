#pragma once

/// A platform of one's own, as small as it can be: a form is lines of text, its operator types commands. There is
/// no mouse, so nobody reports what only a mouse does, save the right click that offers the undo.

#include <zor/platform.h>

#include <iosfwd>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace text {

using zor::Colour;
using namespace zor::platform;

// Everything is measured in twips, also where a character is all there is.
inline constexpr Twips kCharacter = 120;
inline constexpr Twips kLine = 240;
[[nodiscard]] inline Twips widthOf(std::string_view text)
{
    return kCharacter * static_cast<Twips>(characterCount(text));
}

class Form;
class Part;

/// What the widgets of one control share: the form, whom they report to, and who stands there.
struct Area {
    Form& form;
    WidgetListener& listener;
    std::vector<Part*> parts{};
};

/// A widget on an area, whatever its kind.
class Part {
public:
    Part(Area& area, int number) : m_area(area), m_number(number) { m_area.parts.push_back(this); }
    virtual ~Part();
    Part(const Part&) = delete;
    Part& operator=(const Part&) = delete;

    /// As it is printed.
    [[nodiscard]] virtual std::string shown() const = 0;
    void report(Notice notice, EventArgs args = {}) const { m_area.listener.notice(m_number, notice, args); }
    [[nodiscard]] Area& area() const noexcept { return m_area; }
    [[nodiscard]] bool isFocused() const noexcept;

private:
    Area& m_area;
    int m_number;
};

/// What every widget has: kept here, and printed or not.
template <class Interface>
class Basic : public Interface, public Part {
public:
    using Part::Part;

    [[nodiscard]] Rect geometry() const override { return m_geometry; }
    void setGeometry(const Rect& geometry) override { m_geometry = geometry; }
    [[nodiscard]] bool isVisible() const override { return m_visible; }
    void setVisible(bool visible) override { m_visible = visible; }
    [[nodiscard]] bool isEnabled() const override { return m_enabled; }
    void setEnabled(bool enabled) override { m_enabled = enabled; }
    [[nodiscard]] Colour backColour() const override { return m_backColour; }
    void setBackColour(Colour colour) override { m_backColour = colour; }
    [[nodiscard]] std::string toolTip() const override { return m_toolTip; }
    void setToolTip(std::string_view text) override { m_toolTip = text; }

private:
    Rect m_geometry;
    std::string m_toolTip;
    Colour m_backColour = zor::ButtonFace;
    bool m_visible = true;
    bool m_enabled = true;
};

/// What writes text. What is bold, an edit that is not yet in the device or a failure, bears a star.
template <class Interface>
class Written : public Basic<Interface> {
public:
    using Basic<Interface>::Basic;

    [[nodiscard]] Colour foreColour() const override { return m_foreColour; }
    void setForeColour(Colour colour) override { m_foreColour = colour; }
    [[nodiscard]] bool isBold() const override { return m_bold; }
    void setBold(bool bold) override { m_bold = bold; }
    [[nodiscard]] bool isItalic() const override { return m_italic; }
    void setItalic(bool italic) override { m_italic = italic; }

protected:
    [[nodiscard]] std::string marked(const std::string& text) const { return m_bold ? text + '*' : text; }

private:
    Colour m_foreColour = zor::ButtonText;
    bool m_bold = false;
    bool m_italic = false;
};

/// What the operator can work takes the focus.
template <class Interface>
class Worked : public Interface {
public:
    using Interface::Interface;
    [[nodiscard]] bool hasFocus() const override { return this->isFocused(); }
};

class Field final : public Worked<Written<TextField>> {
public:
    using Worked::Worked;

    [[nodiscard]] const std::string& text() const override { return m_text; }
    void setText(std::string_view text) override;
    [[nodiscard]] bool isLocked() const override { return m_locked; }
    void setLocked(bool locked) override { m_locked = locked; }
    [[nodiscard]] Alignment alignment() const override { return m_alignment; }
    void setAlignment(Alignment alignment) override { m_alignment = alignment; }
    [[nodiscard]] std::size_t selectionStart() const override { return m_start; }
    [[nodiscard]] std::size_t selectionLength() const override { return m_length; }
    void select(std::size_t start, std::size_t length) override;
    [[nodiscard]] std::string selectedText() const override;
    void replaceSelection(std::string_view text) override;
    [[nodiscard]] std::string shown() const override { return marked('[' + m_text + ']'); }

private:
    std::string m_text;
    std::size_t m_start = 0; // in characters, as the length
    std::size_t m_length = 0;
    Alignment m_alignment = Alignment::Left;
    bool m_locked = false;
};

/// As wide as its caption, whatever it is told.
class Caption final : public Written<Label> {
public:
    using Written::Written;

    [[nodiscard]] Rect geometry() const override;
    [[nodiscard]] std::string caption() const override { return m_caption; }
    void setCaption(std::string_view caption) override;
    void setSelectable(bool /*selectable*/) override {}
    [[nodiscard]] std::string shown() const override { return marked(m_caption); }

private:
    std::string m_caption;
};

class Picture final : public Basic<Image> {
public:
    using Basic::Basic;

    [[nodiscard]] int picture() const override { return m_picture; }
    void setPicture(int index) override { m_picture = index; }
    [[nodiscard]] std::string shown() const override;

private:
    int m_picture = 0;
};

class Spin final : public Ranged<Basic<SpinButton>> {
public:
    using Ranged::Ranged;

    /// There are no arrow keys.
    void setBuddy(TextField& /*field*/) override {}
    void step(bool up);
    [[nodiscard]] std::string shown() const override { return "-/+"; }
};

class Handle final : public Worked<Ranged<Basic<Track>>> {
public:
    using Worked::Worked;

    [[nodiscard]] std::int16_t tickStyle() const override { return m_tickStyle; }
    void setTickStyle(std::int16_t style) override { m_tickStyle = style; }
    [[nodiscard]] std::int32_t tickFrequency() const override { return m_tickFrequency; }
    void setTickFrequency(std::int32_t frequency) override { m_tickFrequency = frequency < 1 ? 1 : frequency; }
    [[nodiscard]] std::int32_t tickCount() const override
    {
        return zor::platform::tickCount(m_range, m_tickFrequency);
    }
    [[nodiscard]] std::string shown() const override;

private:
    std::int32_t m_tickFrequency = 1;
    std::int16_t m_tickStyle = 0;
};

/// Entries with a text and a number. A position that is none raises SubscriptOutOfRange.
template <class Interface>
class Entries : public Worked<Written<Interface>> {
public:
    using Worked<Written<Interface>>::Worked;

    [[nodiscard]] std::int32_t count() const override { return static_cast<std::int32_t>(m_entries.size()); }
    void append(std::string_view text, std::int32_t datum) override
    {
        m_entries.push_back({std::string(text), datum, false});
    }
    void remove(std::int32_t index) override
    {
        static_cast<void>(at(index));
        m_entries.erase(m_entries.begin() + index);
        if (index == m_current)
            m_current = -1;
        else if (index < m_current)
            --m_current;
    }
    void clear() override
    {
        m_entries.clear();
        m_current = -1;
    }
    [[nodiscard]] const std::string& entryText(std::int32_t index) const override { return at(index).text; }
    [[nodiscard]] std::int32_t datum(std::int32_t index) const override { return at(index).datum; }
    [[nodiscard]] std::int32_t current() const override { return m_current; }
    void setCurrent(std::int32_t index) override
    {
        if (index != -1)
            static_cast<void>(at(index));
        if (std::exchange(m_current, index) != index)
            this->report(Notice::Click);
    }

protected:
    struct Entry {
        std::string text;
        std::int32_t datum;
        bool isMarked;
    };
    [[nodiscard]] const Entry& at(std::int32_t index) const
    {
        if (index < 0 || index >= count())
            zor::raiseError(zor::ErrorNumber::SubscriptOutOfRange);
        return m_entries[static_cast<std::size_t>(index)];
    }

    std::vector<Entry> m_entries;
    std::int32_t m_current = -1;
};

class DropDown final : public Entries<ComboBox> {
public:
    using Entries::Entries;

    [[nodiscard]] bool isLocked() const override { return m_locked; }
    void setLocked(bool locked) override { m_locked = locked; }
    [[nodiscard]] std::string shown() const override { return marked('<' + selectedText() + '>'); }

private:
    bool m_locked = false;
};

class MarkList final : public Entries<ListBox> {
public:
    using Entries::Entries;

    [[nodiscard]] bool isSelected(std::int32_t index) const override { return at(index).isMarked; }
    void setSelected(std::int32_t index, bool selected) override;
    [[nodiscard]] std::int32_t selectedCount() const override;
    [[nodiscard]] std::string shown() const override;
};

/// A check box reports both ways, an option button only that it goes on.
template <class Interface, bool ReportsOff>
class Toggle final : public Worked<Written<Interface>> {
public:
    using Worked<Written<Interface>>::Worked;

    [[nodiscard]] std::string caption() const override { return m_caption; }
    void setCaption(std::string_view caption) override { m_caption = caption; }
    [[nodiscard]] bool isOn() const override { return m_on; }
    void setOn(bool on) override
    {
        if (std::exchange(m_on, on) != on && (on || ReportsOff))
            this->report(Notice::Click);
    }
    [[nodiscard]] std::string shown() const override { return this->marked((m_on ? "(x) " : "( ) ") + m_caption); }

private:
    std::string m_caption;
    bool m_on = false;
};

/// Opens at once, and stays open until something is chosen.
class Menu final : public PopupMenu {
public:
    Menu(WidgetListener& listener, std::span<const MenuItem> items) : m_listener(listener), m_items(items) {}

    [[nodiscard]] bool isOpen() const override { return m_open; }
    [[nodiscard]] std::span<const MenuItem> items() const override { return m_items; }
    void popUp(Twips /*x*/, Twips /*y*/) override { m_open = true; }
    void close() override { m_open = false; }
    void choose(std::size_t item);

private:
    WidgetListener& m_listener;
    std::span<const MenuItem> m_items;
    bool m_open = false;
};

/// The container, and the hands of its operator. An action that cannot be done says why.
class Form final : public Container {
public:
    explicit Form(std::ostream& out) : m_out(out) {}

    [[nodiscard]] bool userMode() const noexcept override { return true; }
    void propertyChanged(Component& /*component*/, std::string_view /*name*/) override {}
    void showMessage(Component& component, const MessageBox& box) override;
    [[nodiscard]] std::unique_ptr<Surface> createSurface(WidgetListener& listener, Twips width,
                                                         Twips height) override;

    /// @name The operator
    /// @{
    Refusal type(TextField& field, std::string_view text);
    Refusal choose(ComboBox& box, std::string_view text);
    Refusal mark(ListBox& list, std::string_view text);
    Refusal press(ToggleButton& button);
    Refusal moveTo(Track& track, std::int32_t position);
    Refusal step(SpinButton& button, bool up);
    Refusal click(Image& picture);
    Refusal undo(Surface& surface, PopupMenu& menu);
    /// Leaves whatever has the focus.
    void leave() { static_cast<void>(moveFocus(nullptr)); }
    /// @}

    /// @name The widgets
    /// @{
    [[nodiscard]] Part* focused() const noexcept { return m_focused; }
    void forget(const Part& part) noexcept;
    /// @}

private:
    template <class Kind, class Action>
    Refusal act(Kind& widget, Action&& action);
    [[nodiscard]] bool moveFocus(Part* part);

    std::ostream& m_out;
    Part* m_focused = nullptr;
};

/// The control's line: what can be seen on its surface, from left to right.
[[nodiscard]] std::string lineOf(const Surface& surface);

} // namespace text
