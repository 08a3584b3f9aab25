#pragma once

/// Combo box and list box.

#include <zor/platform/qt/entry_model.h>
#include <zor/platform/qt/qt_widget.h>

#include <QComboBox>
#include <QContextMenuEvent>
#include <QListView>

#include <functional>
#include <optional>

namespace zor::platform::qt {

/// A combo box that opens for nobody while it is locked, and that the wheel turns only where it has the focus.
class DropDownList : public QComboBox {
public:
    explicit DropDownList(QWidget* parent);

    [[nodiscard]] bool isLocked() const noexcept { return m_locked; }
    /// An open list closes.
    void setLocked(bool locked);
    [[nodiscard]] bool isOpen() const { return m_isOpening || (m_hasOpened && view()->isVisible()); }
    std::function<void()> onDropDown;
    std::function<void()> onScroll;

    void showPopup() override;

protected:
    // The menu key is for the surface; a list without typed text has no menu of its own.
    void contextMenuEvent(QContextMenuEvent* event) override { event->ignore(); }
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_locked = false;
    bool m_hasOpened = false;
    bool m_isOpening = false;
};

/// A list with a check mark per entry. What one press and release of the mouse changes (the current entry, its
/// mark) is one change.
class CheckList : public QListView {
public:
    explicit CheckList(QWidget* parent);

    /// Receives the mouse events, which Qt sends to the list's viewport.
    QtWidget* reporter = nullptr;
    /// Called before the list sees an event, of which painting is one.
    std::function<void()> onEvent;

    /// Makes an entry, or none, the current one. Scrolling there is for the one entry the list ends up with,
    /// not for each that it passes.
    void makeCurrent(const QModelIndex& index, bool scroll);
    [[nodiscard]] bool isMouseAtWork() const noexcept { return m_isMouseAtWork; }
    /// While it gets the focus: what Qt makes of its current entry then is nobody's doing.
    [[nodiscard]] bool isComing() const noexcept { return m_isComing; }
    /// Points of the viewport to click on; the entry is scrolled to.
    [[nodiscard]] QPoint markOf(const QModelIndex& index);
    [[nodiscard]] QPoint textOf(const QModelIndex& index);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    template <class Handle>
    void withMouse(Handle&& handle);

    bool m_isMouseAtWork = false;
    bool m_isComing = false;
};

/// The entries of either: both keep them in an EntryModel and report what changes as clicks, but for what
/// they do quietly.
template <class Interface, class Q>
class QtEntryBase : public QtFontBase<Interface, Q> {
public:
    QtEntryBase(const Context& context, int number, bool hasMarks)
        : QtFontBase<Interface, Q>(context, number, WindowBackground),
          m_model(new EntryModel(&this->widget(), hasMarks))
    {
        this->widget().setModel(m_model);
        this->paintColours();
    }

    [[nodiscard]] std::int32_t count() const override { return m_model->count(); }
    [[nodiscard]] const std::string& entryText(std::int32_t index) const override { return m_model->text(index); }
    [[nodiscard]] std::int32_t datum(std::int32_t index) const override { return m_model->datum(index); }
    void append(std::string_view text, std::int32_t datum) override
    {
        const Quiet quiet(*this);
        m_model->append(text, datum);
        keepCurrent(quiet.current);
    }
    void remove(std::int32_t index) override
    {
        const Quiet quiet(*this);
        m_model->remove(index);
        // Qt goes on to a neighbour of the current entry; the control decides what is selected.
        keepCurrent(index == quiet.current ? -1 : quiet.current - (index < quiet.current ? 1 : 0));
    }
    void clear() override
    {
        const Quiet quiet(*this);
        m_model->clear();
        keepCurrent(-1);
    }
    void setCurrent(std::int32_t index) override
    {
        if (index != -1)
            static_cast<void>(m_model->datum(index));
        if (this->current() == index)
            return;
        {
            const Quiet quiet(*this);
            select(index);
        }
        this->report(Notice::Click);
    }
    [[nodiscard]] bool hasFocus() const override { return this->focusReported; }

protected:
    /// A scope in which changes are the control's own and reported by whoever makes them.
    struct Quiet {
        explicit Quiet(QtEntryBase& base) noexcept : base(base), current(base.current()) { ++base.m_quiet; }
        ~Quiet() { --base.m_quiet; }
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;
        QtEntryBase& base;
        std::int32_t current;
    };

    [[nodiscard]] bool isQuiet() const noexcept { return m_quiet != 0; }
    [[nodiscard]] EntryModel& model() const noexcept { return *m_model; }
    /// Makes an entry, or none, the current one of the Qt widget.
    virtual void select(std::int32_t index) = 0;

private:
    void keepCurrent(std::int32_t index)
    {
        if (this->current() != index)
            select(index);
    }

    EntryModel* m_model;
    int m_quiet = 0;
};

class QtComboBox final : public QtEntryBase<ComboBox, DropDownList> {
public:
    QtComboBox(const Context& context, int number);

    [[nodiscard]] std::int32_t current() const override { return widget().currentIndex(); }
    [[nodiscard]] bool isLocked() const override { return widget().isLocked(); }
    void setLocked(bool locked) override { widget().setLocked(locked); }
    [[nodiscard]] bool isClick(const QMouseEvent& /*release*/, bool /*second*/) override { return false; }
    [[nodiscard]] bool isFocusNear() const override { return widget().isOpen(); }
    void setEnabled(bool enabled) override
    {
        // An open list is frozen with its field and would drop the focus, which could then never be seen to leave.
        if (!enabled && widget().isOpen())
            widget().setFocus(Qt::PopupFocusReason);
        QtEntryBase::setEnabled(enabled);
        if (enabled && widget().isOpen())
            widget().view()->setFocus(Qt::PopupFocusReason);
    }
    void setVisible(bool visible) override
    {
        if (!visible && widget().isOpen())
            widget().setFocus(Qt::PopupFocusReason);
        QtEntryBase::setVisible(visible);
    }

private:
    void select(std::int32_t index) override { widget().setCurrentIndex(index); }
    void paintColours() override;

    /// The operator's choice was another entry than before, and is reported.
    bool m_isChoiceReported = false;
};

class QtListBox final : public QtEntryBase<ListBox, CheckList> {
public:
    QtListBox(const Context& context, int number);
    ~QtListBox() override
    {
        widget().reporter = nullptr;
        widget().onEvent = nullptr;
    }
    QtListBox(const QtListBox&) = delete;
    QtListBox& operator=(const QtListBox&) = delete;

    [[nodiscard]] std::int32_t current() const override
    {
        return m_passing.value_or(widget().currentIndex().row());
    }
    void remove(std::int32_t index) override
    {
        arrive();
        QtEntryBase::remove(index);
    }
    void clear() override
    {
        arrive();
        QtEntryBase::clear();
    }
    [[nodiscard]] bool isSelected(std::int32_t index) const override { return model().isMarked(index); }
    void setSelected(std::int32_t index, bool selected) override;
    [[nodiscard]] std::int32_t selectedCount() const override { return model().markedCount(); }
    void setEnabled(bool enabled) override;
    [[nodiscard]] bool isClick(const QMouseEvent& release, bool second) override;
    [[nodiscard]] bool changesOnRelease() const override { return true; }

    /// @name For the operator's hands
    /// An index outside the list is nobody's.
    /// @{
    [[nodiscard]] QWidget& viewport() const { return *widget().viewport(); }
    [[nodiscard]] QPoint markOf(std::int32_t index) const { return widget().markOf(model().index(index)); }
    [[nodiscard]] QPoint textOf(std::int32_t index) const { return widget().textOf(model().index(index)); }
    /// @}

private:
    void select(std::int32_t index) override
    {
        arrive();
        widget().makeCurrent(model().index(index), true);
    }
    void arrive();
    void paintColours() override;
    void changed();

    /// The mouse changed something and is not released yet.
    bool m_isChangePending = false;
    /// The current entry, where one mark after the other is set: the list hears of the last one, before it has
    /// anything else to do.
    std::optional<std::int32_t> m_passing;
    /// The entry that was the current one before.
    QPersistentModelIndex m_before;
};

} // namespace zor::platform::qt
