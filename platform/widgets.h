#pragma once

/// The widgets that controls are composed of, as small interfaces. Every length is in twips (1/1440 inch,
/// 15 to the device-independent pixel). Every text is UTF-8 and shown as plain text, whatever is in it.
///
/// Setting a property of a widget reports what an operator's action would report where the function says
/// "reports". Reports go to the WidgetListener the surface was created with.

#include <zor/platform/colour.h>
#include <zor/platform/notice.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace zor::platform {

/// A length, in 1/1440 inch.
using Twips = double;

/// A place, relative to the parent.
struct Rect {
    /// From the left edge of the parent.
    Twips left = 0;
    /// From the top edge of the parent.
    Twips top = 0;
    /// Its width.
    Twips width = 0;
    /// Its height.
    Twips height = 0;

    /// The same place.
    bool operator==(const Rect&) const = default;
};

/// What every widget has. A widget is created visible and enabled, unless its creator says otherwise.
class Widget {
public:
    virtual ~Widget() = default;

    /// Where the widget stands.
    [[nodiscard]] virtual Rect geometry() const = 0;
    virtual void setGeometry(const Rect& geometry) = 0;
    /// The widget's own setting; a widget on a hidden window still says true.
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    /// Whether the operator can work it.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    virtual void setEnabled(bool enabled) = 0;
    /// Colour behind text or picture.
    [[nodiscard]] virtual Colour backColour() const = 0;
    virtual void setBackColour(Colour colour) = 0;
    /// What is shown while the mouse rests on it; empty for nothing.
    [[nodiscard]] virtual std::string toolTip() const = 0;
    virtual void setToolTip(std::string_view text) = 0;

    /// From the left edge of the parent.
    [[nodiscard]] Twips left() const { return geometry().left; }
    /// From the top edge of the parent.
    [[nodiscard]] Twips top() const { return geometry().top; }
    /// Width of the widget.
    [[nodiscard]] Twips width() const { return geometry().width; }
    /// Height of the widget.
    [[nodiscard]] Twips height() const { return geometry().height; }
};

/// A widget that writes text.
class FontWidget : public Widget {
public:
    /// Colour of the text.
    [[nodiscard]] virtual Colour foreColour() const = 0;
    virtual void setForeColour(Colour colour) = 0;
    /// Whether the text is bold.
    [[nodiscard]] virtual bool isBold() const = 0;
    virtual void setBold(bool bold) = 0;
    /// Whether the text is italic.
    [[nodiscard]] virtual bool isItalic() const = 0;
    virtual void setItalic(bool italic) = 0;
};

/// Where a text field shows a short text.
enum class Alignment : std::uint8_t { Left, Right };

/// A one-line text field. Positions and lengths count characters.
class TextField : public FontWidget {
public:
    /// The whole text.
    [[nodiscard]] virtual const std::string& text() const = 0;
    /// Replaces the text and reports Change when it differs from the old one; the caret goes to the start.
    virtual void setText(std::string_view text) = 0;
    /// Takes the operator's means of changing the text away, and nothing else.
    [[nodiscard]] virtual bool isLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    /// Where a short text stands; at first left.
    [[nodiscard]] virtual Alignment alignment() const = 0;
    virtual void setAlignment(Alignment alignment) = 0;
    /// First selected character, or where the caret is.
    [[nodiscard]] virtual std::size_t selectionStart() const = 0;
    /// Number of selected characters.
    [[nodiscard]] virtual std::size_t selectionLength() const = 0;
    /// Both are cut to the text.
    virtual void select(std::size_t start, std::size_t length) = 0;
    /// The selected characters.
    [[nodiscard]] virtual std::string selectedText() const = 0;
    /// Replaces the selection, or inserts at the caret, and reports Change: writing a text over itself is an edit.
    /// Replacing nothing by nothing is none.
    virtual void replaceSelection(std::string_view text) = 0;
    /// Whether keys come here.
    [[nodiscard]] virtual bool hasFocus() const = 0;
};

/// A line of text whose width follows its caption; setGeometry() places it and its width is ignored.
class Label : public FontWidget {
public:
    /// The text.
    [[nodiscard]] virtual std::string caption() const = 0;
    /// Reports Change when the caption differs from the old one.
    virtual void setCaption(std::string_view caption) = 0;
    /// Whether the operator can mark the text and copy it, where the platform has a way that takes no report and
    /// no focus from anyone. At first not.
    virtual void setSelectable(bool selectable) = 0;
};

/// A picture out of the shared image list.
class Image : public Widget {
public:
    /// 1-based index into the image list of frm_Container, 0 for none.
    [[nodiscard]] virtual int picture() const = 0;
    virtual void setPicture(int index) = 0;
};

/// A pair of buttons around a whole number; one step is 1.
class SpinButton : public Widget {
public:
    /// The position.
    [[nodiscard]] virtual std::int32_t value() const = 0;
    /// Cut to the limits. Reports Change when the value differs from the old one.
    virtual void setValue(std::int32_t value) = 0;
    /// Lowest position.
    [[nodiscard]] virtual std::int32_t minimum() const = 0;
    /// Highest position.
    [[nodiscard]] virtual std::int32_t maximum() const = 0;
    /// A value outside the new limits is moved to the nearer one, with a report of Change.
    virtual void setMinimum(std::int32_t minimum) = 0;
    virtual void setMaximum(std::int32_t maximum) = 0;
    /// From now on the keys Up and Down in a field beside the button step it, as a click does. The button must
    /// live as long as the field is worked with.
    virtual void setBuddy(TextField& field) = 0;
};

/// A track with a handle at a whole position. With the focus, the arrow keys move it by one position, Page Up and
/// Page Down by a tenth of the track, Home and End to the ends.
class Track : public Widget {
public:
    /// The position.
    [[nodiscard]] virtual std::int32_t value() const = 0;
    /// Cut to the ends. Reports Change when the position differs from the old one.
    virtual void setValue(std::int32_t value) = 0;
    /// Lowest position.
    [[nodiscard]] virtual std::int32_t minimum() const = 0;
    /// Highest position.
    [[nodiscard]] virtual std::int32_t maximum() const = 0;
    virtual void setMinimum(std::int32_t minimum) = 0;
    virtual void setMaximum(std::int32_t maximum) = 0;
    /// 0 ticks below the track, 1 above, 2 both, 3 none.
    [[nodiscard]] virtual std::int16_t tickStyle() const = 0;
    virtual void setTickStyle(std::int16_t style) = 0;
    /// Positions from tick to tick, at least 1.
    [[nodiscard]] virtual std::int32_t tickFrequency() const = 0;
    virtual void setTickFrequency(std::int32_t frequency) = 0;
    /// Number of ticks that are shown.
    [[nodiscard]] virtual std::int32_t tickCount() const = 0;
    /// Whether keys come here.
    [[nodiscard]] virtual bool hasFocus() const = 0;
};

/// What combo box and list box share: entries with a text and a 32-bit datum each. A position outside of them
/// raises SubscriptOutOfRange.
class EntryWidget : public FontWidget {
public:
    /// Number of entries.
    [[nodiscard]] virtual std::int32_t count() const = 0;
    /// Adds an entry at the end.
    virtual void append(std::string_view text, std::int32_t datum) = 0;
    /// Removes the entry at a position: with it goes the current position, which else stays with its entry.
    /// Nothing is reported.
    virtual void remove(std::int32_t index) = 0;
    /// Removes all entries; none is current then. Nothing is reported.
    virtual void clear() = 0;
    /// Text of the entry at a position.
    [[nodiscard]] virtual const std::string& entryText(std::int32_t index) const = 0;
    /// Datum of the entry at a position.
    [[nodiscard]] virtual std::int32_t datum(std::int32_t index) const = 0;
    /// The current position, -1 for none. Setting it reports Click when it differs from the old one.
    [[nodiscard]] virtual std::int32_t current() const = 0;
    virtual void setCurrent(std::int32_t index) = 0;
    /// Whether keys come here.
    [[nodiscard]] virtual bool hasFocus() const = 0;
};

/// A drop-down list without typed text, unsorted.
class ComboBox : public EntryWidget {
public:
    /// Takes the operator's means of choosing away; look and tooltip stay.
    [[nodiscard]] virtual bool isLocked() const = 0;
    virtual void setLocked(bool locked) = 0;
    /// The text of the current entry, which is what the closed list shows.
    [[nodiscard]] std::string selectedText() const { return current() < 0 ? std::string() : entryText(current()); }
};

/// A list with a check mark per entry.
class ListBox : public EntryWidget {
public:
    /// Whether the entry has its mark.
    [[nodiscard]] virtual bool isSelected(std::int32_t index) const = 0;
    /// When its mark changes, makes the entry the current one and reports Click.
    virtual void setSelected(std::int32_t index, bool selected) = 0;
    /// Number of marks.
    [[nodiscard]] virtual std::int32_t selectedCount() const = 0;
};

/// A check box or an option button: a caption and an on/off state.
class ToggleButton : public FontWidget {
public:
    /// The text.
    [[nodiscard]] virtual std::string caption() const = 0;
    virtual void setCaption(std::string_view caption) = 0;
    /// Whether it is checked or selected.
    [[nodiscard]] virtual bool isOn() const = 0;
    /// Reports Click when a check box changes, and when an option button becomes selected.
    virtual void setOn(bool on) = 0;
    /// Whether keys come here.
    [[nodiscard]] virtual bool hasFocus() const = 0;
};

/// A button that goes on and off.
class CheckBox : public ToggleButton {};
/// A button that goes on and stays so until another goes on.
class OptionButton : public ToggleButton {};

/// One line of a menu.
struct MenuItem {
    int widget;            ///< the number its choice is reported under, as Click
    std::string_view name; ///< its published name
    /// What it shows.
    std::string_view caption;
};

/// A pop-up menu that stays closed until it is popped up.
class PopupMenu {
public:
    virtual ~PopupMenu() = default;
    /// Whether it is popped up.
    [[nodiscard]] virtual bool isOpen() const = 0;
    /// Its lines from top to bottom.
    [[nodiscard]] virtual std::span<const MenuItem> items() const = 0;
    /// Opens at a point of the surface (twips). Never blocks; choosing an item reports Click under the item's
    /// number and closes the menu.
    virtual void popUp(Twips x, Twips y) = 0;
    /// Closes it without a choice.
    virtual void close() = 0;
};

/// The control's own area, parent of its widgets. Its geometry is in the container's twips; left and top are
/// the container's business.
class Surface : public Widget {
public:
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<TextField> createTextField(int widget) = 0;
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<Label> createLabel(int widget) = 0;
    /// The widget reports under the number; it must not outlive the surface. Most state icons are never shown: one
    /// that is hidden at first costs next to nothing until it is.
    [[nodiscard]] virtual std::unique_ptr<Image> createImage(int widget, bool isVisible) = 0;
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<SpinButton> createSpinButton(int widget) = 0;
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<Track> createTrack(int widget) = 0;
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<ComboBox> createComboBox(int widget) = 0;
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<ListBox> createListBox(int widget) = 0;
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<CheckBox> createCheckBox(int widget) = 0;
    /// The widget reports under the number; it must not outlive the surface.
    [[nodiscard]] virtual std::unique_ptr<OptionButton> createOptionButton(int widget) = 0;
    /// The items must outlive the menu.
    [[nodiscard]] virtual std::unique_ptr<PopupMenu> createMenu(std::span<const MenuItem> items) = 0;

    /// Width of a text in the surface's font.
    [[nodiscard]] virtual Twips textWidth(std::string_view text, bool bold) const = 0;
};

} // namespace zor::platform
