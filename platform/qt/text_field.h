#pragma once

#include <zor/platform/qt/qt_widget.h>

#include <QLineEdit>

#include <functional>

namespace zor::platform::qt {

/// A line edit whose arrow keys and, while it has the focus, wheel step what stands beside it, if anything does.
class FieldEdit : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
    std::function<void(bool up)> onStep;

    /// Takes texts of any length. Qt lays the text out anew with it: for the few fields that need it.
    void takeAnyLength();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    /// A style draws the frame of a line edit anew with each value, which takes longer than all else. Here it is a
    /// picture that all fields of one look share, as Qt does it for its spin boxes.
    void paintEvent(QPaintEvent* event) override;
    void initStyleOption(QStyleOptionFrame* option) const override;
    /// The menu key is for the surface, which offers the undo; where it has no menu, the line edit's own opens.
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int m_wheel = 0;
    bool m_paintsInside = false; ///< of the frame
};

/// A QLineEdit. The text is kept as it was given until the operator edits it, so that a text which Qt cannot
/// show (invalid UTF-8, embedded NULs) comes back as it was.
class QtTextField final : public QtFontBase<TextField, FieldEdit> {
public:
    QtTextField(const Context& context, int number);
    /// The line edit may live on until its event has returned, and what it steps may not.
    ~QtTextField() override { widget().onStep = nullptr; }
    QtTextField(const QtTextField&) = delete;
    QtTextField& operator=(const QtTextField&) = delete;

    [[nodiscard]] const std::string& text() const override { return m_text; }
    void setText(std::string_view text) override;
    [[nodiscard]] bool isLocked() const override { return m_locked; }
    void setLocked(bool locked) override;
    [[nodiscard]] Alignment alignment() const override { return m_alignment; }
    void setAlignment(Alignment alignment) override;
    [[nodiscard]] std::size_t selectionStart() const override;
    [[nodiscard]] std::size_t selectionLength() const override;
    void select(std::size_t start, std::size_t length) override;
    [[nodiscard]] std::string selectedText() const override;
    void replaceSelection(std::string_view text) override;
    [[nodiscard]] bool hasFocus() const override { return focusReported; }
    void onStep(std::function<void(bool up)> step) { widget().onStep = std::move(step); }

private:
    void showText(std::size_t caret);
    void applyLock();
    [[nodiscard]] std::size_t characters(qsizetype units) const;
    [[nodiscard]] int units(std::size_t characters) const;

    std::string m_text;
    Alignment m_alignment = Alignment::Left;
    bool m_locked = false;
    bool m_cut = false;
    bool m_setting = false;
};

} // namespace zor::platform::qt
