#pragma once

/// The widgets of this platform as screen readers meet them.

#include <zor/platform/qt/entry_lists.h>
#include <zor/platform/qt/range_widgets.h>
#include <zor/platform/qt/simple_widgets.h>

#include <QAccessibleWidget>

#include <cmath>
#include <map>

namespace zor::platform::qt {

/// What all have: the name that the program, a label, the caption or the control gives; state, unit and limits in
/// words; whether it can be worked.
class AccessiblePart : public QAccessibleWidget {
public:
    AccessiblePart(QtWidget& part, QAccessible::Role role);

    [[nodiscard]] QString text(QAccessible::Text text) const override;
    [[nodiscard]] QAccessible::State state() const override;

protected:
    /// nullptr once the control has ended.
    [[nodiscard]] const QtWidget* part() const;
    [[nodiscard]] Spoken spoken() const;
    [[nodiscard]] virtual QString caption() const { return {}; }
    [[nodiscard]] virtual QString value() const { return {}; }

private:
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString description() const;
};

/// The text that a control shows.
class AccessibleText final : public AccessiblePart {
public:
    explicit AccessibleText(QtWidget& part) : AccessiblePart(part, QAccessible::StaticText) {}

private:
    [[nodiscard]] QString value() const override { return dynamic_cast<QLabel&>(*widget()).text(); }
};

/// A picture that answers a click.
class AccessiblePicture final : public AccessiblePart {
public:
    explicit AccessiblePicture(QtWidget& part) : AccessiblePart(part, QAccessible::Button) {}

    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;
};

class AccessibleToggle final : public AccessiblePart {
public:
    explicit AccessibleToggle(QtWidget& part);

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    [[nodiscard]] QAbstractButton& button() const { return dynamic_cast<QAbstractButton&>(*widget()); }
    [[nodiscard]] QString caption() const override;
};

class AccessibleTrack final : public AccessiblePart, public QAccessibleValueInterface {
public:
    explicit AccessibleTrack(QtWidget& part) : AccessiblePart(part, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QVariant currentValue() const override { return number(track().value()); }
    void setCurrentValue(const QVariant& value) override;
    [[nodiscard]] QVariant minimumValue() const override { return number(track().minimum()); }
    [[nodiscard]] QVariant maximumValue() const override { return number(track().maximum()); }
    [[nodiscard]] QVariant minimumStepSize() const override
    {
        return number(track().minimum() + 1.0) - number(track().minimum());
    }

private:
    [[nodiscard]] QSlider& track() const { return dynamic_cast<QSlider&>(*widget()); }
    /// What a position stands for.
    [[nodiscard]] double number(double position) const;
    [[nodiscard]] QString value() const override;
};

class AccessibleDropDown final : public AccessiblePart {
public:
    explicit AccessibleDropDown(QtWidget& part) : AccessiblePart(part, QAccessible::ComboBox) {}

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    [[nodiscard]] DropDownList& list() const { return dynamic_cast<DropDownList&>(*widget()); }
    [[nodiscard]] QString value() const override { return list().currentText(); }
};

/// A line of text, or a number where the arrow keys step it.
class AccessibleField final : public AccessiblePart,
                              public QAccessibleTextInterface,
                              public QAccessibleEditableTextInterface,
                              public QAccessibleValueInterface {
public:
    explicit AccessibleField(QtWidget& part) : AccessiblePart(part, QAccessible::EditableText) {}

    using AccessiblePart::text;
    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int index, int* start, int* end) const override;
    [[nodiscard]] int selectionCount() const override { return edit().hasSelectedText() ? 1 : 0; }
    void addSelection(int start, int end) override { setSelection(0, start, end); }
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    [[nodiscard]] int cursorPosition() const override { return edit().cursorPosition(); }
    void setCursorPosition(int position) override { edit().setCursorPosition(position); }
    [[nodiscard]] QString text(int start, int end) const override { return edit().text().mid(start, end - start); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(edit().text().size()); }
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int /*end*/) override { edit().setCursorPosition(start); }
    [[nodiscard]] QString attributes(int offset, int* start, int* end) const override;

    void deleteText(int start, int end) override { replaceText(start, end, {}); }
    void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
    void replaceText(int start, int end, const QString& text) override;

    [[nodiscard]] QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    [[nodiscard]] QVariant minimumValue() const override
    {
        return spoken().ends ? spoken().ends->first : QVariant();
    }
    [[nodiscard]] QVariant maximumValue() const override
    {
        return spoken().ends ? spoken().ends->second : QVariant();
    }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    [[nodiscard]] FieldEdit& edit() const { return dynamic_cast<FieldEdit&>(*widget()); }
    [[nodiscard]] QString value() const override { return edit().text(); }
};

class AccessibleList final : public AccessiblePart {
public:
    explicit AccessibleList(QtWidget& part) : AccessiblePart(part, QAccessible::List) {}
    ~AccessibleList() override;
    AccessibleList(const AccessibleList&) = delete;
    AccessibleList& operator=(const AccessibleList&) = delete;

    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] int childCount() const override;
    [[nodiscard]] QAccessibleInterface* child(int row) const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;

private:
    [[nodiscard]] CheckList& list() const { return dynamic_cast<CheckList&>(*widget()); }

    /// The interfaces of the entries that somebody has asked for, by row.
    mutable std::map<int, QAccessible::Id> m_entries;
};

} // namespace zor::platform::qt
