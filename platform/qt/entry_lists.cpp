#include <zor/platform/operator.h>
#include <zor/platform/qt/entry_lists.h>
#include <zor/platform/temporarily.h>

#include <QHelpEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>

namespace zor::platform::qt {
namespace {

/// Calls when the operator moves the bar, not when the list moves it.
template <class Moved>
void onMovedByOperator(QScrollBar& bar, Moved&& moved)
{
    QObject::connect(&bar, &QScrollBar::actionTriggered, &bar, [&bar, moved] {
        if (bar.sliderPosition() != bar.value())
            moved();
    });
}

/// The theme's palette for a child of a widget with colours of its own: what a palette does not say itself, the
/// child inherits.
QPalette themePalette()
{
    const QPalette theme = QGuiApplication::palette();
    QPalette palette = theme;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text,
                                QPalette::Button, QPalette::ButtonText})
            palette.setBrush(group, role, theme.brush(group, role));
    }
    return palette;
}

} // namespace

// --- Drop-down list

DropDownList::DropDownList(QWidget* parent) : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    // The control gives the width; measuring every entry for a size nobody asks for takes a list's length.
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
}

void DropDownList::setLocked(bool locked)
{
    m_locked = locked;
    if (locked && isOpen())
        hidePopup();
}

void DropDownList::showPopup()
{
    if (m_locked)
        return;
    if (onDropDown)
        onDropDown();
    // A handler may have locked, frozen or hidden it just now.
    if (m_locked || !isEnabled() || isHidden())
        return;
    if (!std::exchange(m_hasOpened, true)) {
        if (auto* list = dynamic_cast<QListView*>(view()))
            list->setUniformItemSizes(true);
        onMovedByOperator(*view()->verticalScrollBar(), [this] {
            if (onScroll)
                onScroll();
        });
    }
    const Temporarily opening(m_isOpening, true);
    QComboBox::showPopup();
}

void DropDownList::wheelEvent(QWheelEvent* event)
{
    if (hasFocus() && !m_locked)
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

void DropDownList::keyPressEvent(QKeyEvent* event)
{
    if (m_locked)
        event->ignore();
    else
        QComboBox::keyPressEvent(event);
}

// --- Combo box

QtComboBox::QtComboBox(const Context& context, int number) : QtEntryBase(context, number, false)
{
    paintColours();
    widget().onDropDown = [this] { report(Notice::DropDown); };
    widget().onScroll = [this] { report(Notice::Scroll); };
    QObject::connect(&widget(), &QComboBox::currentIndexChanged, &widget(), [this] {
        if (isQuiet())
            return;
        const EventScope scope(this->context());
        m_isChoiceReported = true;
        report(Notice::Click);
        // Qt activates nothing where a handler has taken the choice away.
        if (widget().currentIndex() < 0)
            m_isChoiceReported = false;
    });
    // Choosing the entry that is chosen already is a click all the same.
    QObject::connect(&widget(), &QComboBox::activated, &widget(), [this] {
        if (!std::exchange(m_isChoiceReported, false))
            report(Notice::Click);
    });
}

void QtComboBox::paintColours()
{
    QtEntryBase::paintColours();
    // Some styles paint a list without typed text like a button.
    QPalette palette = paletteOf(backColour(), foreColour());
    const QColor back = toQColor(backColour());
    palette.setColor(QPalette::Button, back);
    // A button has shades of its colour, much lighter ones where that is dark: the text must be read on each.
    constexpr int kLightest = 155;
    constexpr int kDarkest = 104;
    const bool isDark = contrast(Qt::white, back) > contrast(Qt::black, back);
    const QColor fore = readableOn(foreColour(), isDark ? back.lighter(kLightest) : back.darker(kDarkest));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        for (const auto group : {QPalette::Active, QPalette::Inactive})
            palette.setColor(group, role, fore);
    }
    setColours(palette);
}

// --- List of check marks

namespace {

/// Rows with room for accents above capitals, which a row of the font's own height cuts off.
class RoomyRows final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        constexpr int kRoom = 4;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRoom);
    }
    /// An entry that is cut off is told in full.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override
    {
        if (event->type() != QEvent::ToolTip || !index.isValid() ||
            sizeHint(option, index).width() <= view->viewport()->width())
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        QToolTip::showText(event->globalPos(), plainToolTip(index.data().toString().toStdString()), view);
        return true;
    }
};

} // namespace

CheckList::CheckList(QWidget* parent) : QListView(parent)
{
    // Marks alone say what is selected; the current entry is only where the keys are.
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    setItemDelegate(new RoomyRows(this));
}

void CheckList::makeCurrent(const QModelIndex& index, bool scroll)
{
    setAutoScroll(scroll);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
}

QPoint CheckList::markOf(const QModelIndex& index)
{
    scrollTo(index);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    option.index = index;
    option.features |= QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    option.text = index.data(Qt::DisplayRole).toString();
    return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this).center();
}

QPoint CheckList::textOf(const QModelIndex& index)
{
    scrollTo(index);
    const QRect place = visualRect(index);
    return {std::min(place.left() + reporter->scale().pixels(kListText), place.right() - 1), place.center().y()};
}

bool CheckList::event(QEvent* event)
{
    if (onEvent)
        onEvent();
    return QListView::event(event);
}

bool CheckList::viewportEvent(QEvent* event)
{
    if (onEvent)
        onEvent();
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return reported(reporter, event, [this](QEvent* mouse) { return QListView::viewportEvent(mouse); });
    default: return QListView::viewportEvent(event);
    }
}

template <class Handle>
void CheckList::withMouse(Handle&& handle)
{
    const Temporarily atWork(m_isMouseAtWork, true);
    handle();
}

// Other buttons than the left one change nothing.
void CheckList::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        withMouse([&] { QListView::mousePressEvent(event); });
}

void CheckList::mouseMoveEvent(QMouseEvent* event)
{
    withMouse([&] { QListView::mouseMoveEvent(event); });
}

void CheckList::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        withMouse([&] { QListView::mouseReleaseEvent(event); });
}

void CheckList::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        withMouse([&] { QListView::mouseDoubleClickEvent(event); });
}

void CheckList::focusInEvent(QFocusEvent* event)
{
    // Qt makes the first entry the current one of a list that has none. Nobody has chosen it.
    const bool hadCurrent = currentIndex().isValid();
    const Temporarily coming(m_isComing, true);
    QListView::focusInEvent(event);
    if (!hadCurrent)
        makeCurrent({}, false);
}

// --- List box

QtListBox::QtListBox(const Context& context, int number) : QtEntryBase(context, number, true)
{
    widget().reporter = this;
    widget().onEvent = [this] { arrive(); };
    paintColours();
    model().onMarked = [this](std::int32_t row) {
        {
            const Quiet quiet(*this);
            m_passing.reset();
            widget().makeCurrent(model().index(row), true);
        }
        changed();
    };
    QObject::connect(widget().selectionModel(), &QItemSelectionModel::currentChanged, &widget(),
                     [this](const QModelIndex& /*current*/, const QModelIndex& previous) {
                         if (widget().isComing())
                             return;
                         if (!isQuiet() && !m_isChangePending)
                             m_before = previous;
                         changed();
                     });
    onMovedByOperator(*widget().verticalScrollBar(), [this] { report(Notice::Scroll); });
}

void QtListBox::paintColours()
{
    QtEntryBase::paintColours();
    QPalette palette = paletteOf(backColour(), foreColour());
    const QColor back = toQColor(backColour());
    palette.setColor(QPalette::Window, frameSource(readableOn(ButtonText, back), back));
    setColours(palette);
    // The field has the colours, its scroll bars are the theme's.
    for (QScrollBar* bar : {widget().verticalScrollBar(), widget().horizontalScrollBar()})
        bar->setPalette(themePalette());
}

void QtListBox::setSelected(std::int32_t index, bool selected)
{
    if (!model().setMarked(index, selected))
        return;
    if (!std::exchange(m_passing, index))
        widget().viewport()->update();
    report(Notice::Click);
}

void QtListBox::arrive()
{
    if (!m_passing)
        return;
    const Quiet quiet(*this);
    widget().makeCurrent(model().index(*std::exchange(m_passing, std::nullopt)), false);
}

void QtListBox::setEnabled(bool enabled)
{
    QtEntryBase::setEnabled(enabled);
    // A click that is cut off leaves no trace.
    if (!enabled && std::exchange(m_isChangePending, false)) {
        arrive();
        const Quiet quiet(*this);
        widget().makeCurrent(m_before, false);
    }
}

void QtListBox::changed()
{
    if (isQuiet())
        return;
    if (widget().isMouseAtWork())
        m_isChangePending = true;
    else
        report(Notice::Click);
}

bool QtListBox::isClick(const QMouseEvent& release, bool second)
{
    if (release.button() != Qt::LeftButton)
        return false;
    const bool isOnEntry = widget().indexAt(release.position().toPoint()).isValid();
    return std::exchange(m_isChangePending, false) || (isOnEntry && !second);
}

} // namespace zor::platform::qt
