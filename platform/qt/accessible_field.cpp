// The text of a field, as a screen reader walks and edits it.

#include <zor/platform/number_text.h>
#include <zor/platform/qt/accessible_parts.h>

#include <cmath>

namespace zor::platform::qt {

QAccessible::Role AccessibleField::role() const
{
    return edit().onStep ? QAccessible::SpinBox : QAccessible::EditableText;
}

QAccessible::State AccessibleField::state() const
{
    QAccessible::State state = AccessiblePart::state();
    state.editable = true;
    state.readOnly = edit().isReadOnly();
    state.selectableText = true;
    return state;
}

void* AccessibleField::interface_cast(QAccessible::InterfaceType type)
{
    switch (type) {
    case QAccessible::TextInterface: return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::EditableTextInterface: return static_cast<QAccessibleEditableTextInterface*>(this);
    case QAccessible::ValueInterface:
        return role() == QAccessible::SpinBox ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
    default: return AccessiblePart::interface_cast(type);
    }
}

// --- The number

QVariant AccessibleField::currentValue() const
{
    const auto number = readNumber(edit().text().toStdString());
    return number ? QVariant(number->value) : QVariant();
}

void AccessibleField::setCurrentValue(const QVariant& value)
{
    // A number has no region, and the field is read in the user's.
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    replaceText(0, characterCount(),
                isNumber && std::isfinite(number) ? QString::fromStdString(doubleToText(number))
                                                  : value.toString());
}

// --- Selection and caret

void AccessibleField::selection(int index, int* start, int* end) const
{
    const bool has = index == 0 && edit().hasSelectedText();
    *start = has ? edit().selectionStart() : 0;
    *end = has ? edit().selectionEnd() : 0;
}

void AccessibleField::setSelection(int index, int start, int end)
{
    if (index == 0)
        edit().setSelection(start, end - start);
}

void AccessibleField::removeSelection(int index)
{
    if (index == 0)
        edit().deselect();
}

QRect AccessibleField::characterRect(int offset) const
{
    // From the caret, whose place is the only one that a line edit gives away.
    const QString text = edit().text();
    const int caret = edit().cursorPosition();
    const QFontMetrics metrics = edit().fontMetrics();
    const int width = metrics.horizontalAdvance(text.mid(std::min(caret, offset), std::abs(caret - offset)));
    const QRect at = edit().inputMethodQuery(Qt::ImCursorRectangle, {}).toRect();
    const int left = at.center().x() + (offset < caret ? -width : width);
    const QRect local(left, at.top(), metrics.horizontalAdvance(text.mid(offset, 1)), at.height());
    return {edit().mapToGlobal(local.topLeft()), local.size()};
}

int AccessibleField::offsetAtPoint(const QPoint& point) const
{
    const QPoint local = edit().mapFromGlobal(point);
    return edit().rect().contains(local) ? edit().cursorPositionAt(local) : -1;
}

QString AccessibleField::attributes(int /*offset*/, int* start, int* end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

// --- Editing

void AccessibleField::replaceText(int start, int end, const QString& text)
{
    if (edit().isReadOnly() || !edit().isEnabled())
        return;
    edit().setSelection(start, end - start);
    edit().insert(text);
}

} // namespace zor::platform::qt
