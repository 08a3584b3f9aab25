#include <zor/platform/qt/text_field.h>
#include <zor/platform/temporarily.h>
#include <zor/platform/text.h>

#include <QContextMenuEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionFrame>
#include <QWheelEvent>

#include <cstdlib>
#include <limits>

namespace zor::platform::qt {
namespace {

/// A line of more characters takes Qt longer to lay out than a person would wait.
constexpr int kShownLimit = 32767;

} // namespace

void FieldEdit::takeAnyLength()
{
    constexpr int kAny = std::numeric_limits<int>::max();
    if (maxLength() == kAny)
        return;
    const int caret = cursorPosition();
    const int start = selectionStart();
    const int length = selectionLength();
    setMaxLength(kAny);
    if (start < 0)
        setCursorPosition(caret);
    else
        setSelection(start, length);
}

// What the operator enters comes with one of these first.
void FieldEdit::focusInEvent(QFocusEvent* event)
{
    takeAnyLength();
    QLineEdit::focusInEvent(event);
}

void FieldEdit::dragEnterEvent(QDragEnterEvent* event)
{
    takeAnyLength();
    QLineEdit::dragEnterEvent(event);
}

void FieldEdit::paintEvent(QPaintEvent* event)
{
    // A style sheet's frame may be of any form and reach below the text.
    const bool shared = hasFrame() && !testAttribute(Qt::WA_StyleSheet);
    m_paintsInside = shared;
    QLineEdit::paintEvent(event);
    m_paintsInside = false;
    if (!shared)
        return;
    QStyleOptionFrame option;
    initStyleOption(&option);
    QPainter(this).drawPixmap(0, 0, fieldFrame(option, *this));
}

void FieldEdit::initStyleOption(QStyleOptionFrame* option) const
{
    QLineEdit::initStyleOption(option);
    if (!m_paintsInside)
        return;
    option->rect = insideOf(*option);
    option->lineWidth = 0;
}

void FieldEdit::contextMenuEvent(QContextMenuEvent* event)
{
    const QPointer<FieldEdit> alive = this;
    if (event->reason() == QContextMenuEvent::Keyboard) {
        QContextMenuEvent key(event->reason(), mapToParent(event->pos()), event->globalPos());
        QCoreApplication::sendEvent(parentWidget(), &key);
        if (!alive || QApplication::activePopupWidget() != nullptr)
            return;
    }
    QLineEdit::contextMenuEvent(event);
}

void FieldEdit::keyPressEvent(QKeyEvent* event)
{
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (onStep && isArrow)
        onStep(event->key() == Qt::Key_Up);
    else
        QLineEdit::keyPressEvent(event);
}

void FieldEdit::wheelEvent(QWheelEvent* event)
{
    if (!onStep || !hasFocus()) {
        event->ignore();
        return;
    }
    // Fine wheels turn by parts of a notch.
    m_wheel += event->angleDelta().y();
    const int notches = m_wheel / QWheelEvent::DefaultDeltasPerStep;
    m_wheel -= notches * QWheelEvent::DefaultDeltasPerStep;
    // A step's handlers may freeze the field, or end what it belongs to.
    for (int i = 0; i < std::abs(notches) && onStep && isEnabled(); ++i)
        onStep(notches > 0);
}

QtTextField::QtTextField(const Context& context, int number) : QtFontBase(context, number, WindowBackground)
{
    paintColours();
    QObject::connect(&widget(), &QLineEdit::textChanged, &widget(), [this](const QString& text) {
        if (m_setting)
            return;
        m_text = text.toStdString();
        report(Notice::Change);
    });
}

void QtTextField::setText(std::string_view text)
{
    if (m_text == text)
        return;
    m_text = text;
    showText(0);
    report(Notice::Change);
}

void QtTextField::showText(std::size_t caret)
{
    const Temporarily setting(m_setting, true);
    const QString shown = shownText(m_text, kShownLimit);
    m_cut = shown.size() > kShownLimit;
    if (m_cut)
        widget().takeAnyLength();
    widget().setText(shown);
    widget().setCursorPosition(units(caret));
    applyLock();
}

void QtTextField::setLocked(bool locked)
{
    if (std::exchange(m_locked, locked) != locked)
        applyLock();
}

void QtTextField::applyLock()
{
    // What is shown in part only cannot be edited: the rest would be lost.
    if (widget().isReadOnly() != (m_locked || m_cut))
        widget().setReadOnly(m_locked || m_cut);
}

void QtTextField::setAlignment(Alignment alignment)
{
    if (std::exchange(m_alignment, alignment) != alignment)
        widget().setAlignment((alignment == Alignment::Right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

std::size_t QtTextField::characters(qsizetype units) const
{
    const QString text = widget().text();
    // The end of what is shown stands for the end of the whole text.
    if (m_cut && units >= text.size())
        return characterCount(m_text);
    std::size_t count = 0;
    for (qsizetype i = 0; i < units && i < text.size(); ++i)
        count += text.at(i).isLowSurrogate() ? 0 : 1;
    return count;
}

int QtTextField::units(std::size_t characters) const
{
    const QString text = widget().text();
    qsizetype i = 0;
    for (; characters > 0 && i < text.size(); --characters)
        i += text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
    return static_cast<int>(i);
}

std::size_t QtTextField::selectionStart() const
{
    return characters(widget().hasSelectedText() ? widget().selectionStart() : widget().cursorPosition());
}

std::size_t QtTextField::selectionLength() const
{
    if (!widget().hasSelectedText())
        return 0;
    return characters(widget().selectionEnd()) - characters(widget().selectionStart());
}

void QtTextField::select(std::size_t start, std::size_t length)
{
    const int from = units(start);
    const int to = units(start + std::min(length, std::numeric_limits<std::size_t>::max() - start));
    if (to == from)
        widget().setCursorPosition(from);
    else
        widget().setSelection(from, to - from);
    if (to == from)
        widget().deselect();
}

std::string QtTextField::selectedText() const
{
    const std::size_t start = selectionStart();
    const std::size_t from = byteOffset(m_text, start);
    return m_text.substr(from, byteOffset(m_text, start + selectionLength()) - from);
}

void QtTextField::replaceSelection(std::string_view text)
{
    // The host may write where the operator may not, and into what is shown in part only.
    const std::size_t start = selectionStart();
    const std::size_t from = byteOffset(m_text, start);
    const std::size_t old = byteOffset(m_text, start + selectionLength()) - from;
    if (old == 0 && text.empty())
        return;
    m_text.replace(from, old, text);
    showText(start + characterCount(text));
    report(Notice::Change);
}

} // namespace zor::platform::qt
