#include <zor/platform/error.h>
#include <zor/platform/qt/accessibility.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/qt/entry_lists.h>
#include <zor/platform/qt/range_widgets.h>
#include <zor/platform/qt/simple_widgets.h>
#include <zor/platform/qt/text_field.h>
#include <zor/platform/temporarily.h>

#include <QDebug>
#include <QGridLayout>
#include <QMenu>
#include <QMessageBox>

namespace zor::platform::qt {
namespace {

/// The menu itself is made when it is first opened: ten thousand controls would hold as many.
class QtMenu final : public PopupMenu, public MenuHands {
public:
    QtMenu(const Context& context, std::span<const MenuItem> items) : m_context(context), m_items(items) {}
    ~QtMenu() override
    {
        closed();
        if (m_menu != nullptr) {
            QObject::disconnect(m_menu, nullptr, m_menu, nullptr);
            m_context.container->discard(*m_menu);
        }
    }
    QtMenu(const QtMenu&) = delete;
    QtMenu& operator=(const QtMenu&) = delete;

    [[nodiscard]] bool isOpen() const override { return m_context.container->openMenu() == this; }
    [[nodiscard]] std::span<const MenuItem> items() const override { return m_items; }
    void popUp(Twips x, Twips y) override
    {
        if (m_menu == nullptr)
            build();
        if (PopupMenu* other = m_context.container->openMenu())
            other->close();
        m_context.container->setOpenMenu(this);
        const Rect point{x, y, 0, 0};
        m_menu->popup(m_context.surface->mapToGlobal(m_context.container->scale().pixels(point).topLeft()));
    }
    void close() override
    {
        if (m_menu != nullptr)
            m_menu->close();
        closed();
    }
    void trigger(std::size_t item) override
    {
        m_menu->setActiveAction(m_menu->actions().at(static_cast<qsizetype>(item)));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(m_menu, &enter);
    }

private:
    void closed()
    {
        if (isOpen())
            m_context.container->setOpenMenu(nullptr);
    }
    void build()
    {
        m_menu = new QMenu(m_context.surface);
        for (const MenuItem& item : m_items) {
            const QString caption =
                QString::fromUtf8(item.caption.data(), static_cast<qsizetype>(item.caption.size()));
            QObject::connect(m_menu->addAction(caption), &QAction::triggered, m_menu,
                             [this, number = item.widget] {
                                 const Context context = m_context;
                                 const EventScope scope(context);
                                 closed();
                                 try {
                                     context.listener->notice(number, Notice::Click, {});
                                 } catch (...) {
                                     context.container->failed(std::current_exception());
                                 }
                             });
        }
        QObject::connect(m_menu, &QMenu::aboutToHide, m_menu, [this] { closed(); });
    }

    Context m_context;
    std::span<const MenuItem> m_items;
    QPointer<QMenu> m_menu;
};

class QtSurface final : public QtBase<Surface, SurfaceWidget>, SurfaceWidget::Listener {
public:
    QtSurface(const Context& context, Twips width, Twips height) : QtBase(context, kSurfaceWidget, ButtonFace)
    {
        setGeometry({0, 0, width, height});
        // A control is laid out from the left; in a form that reads from the right, a track alone would turn
        // round.
        widget().setLayoutDirection(Qt::LeftToRight);
        m_inner = context;
        m_inner.surface = &widget();
        showNow(widget());
        widget().listener = this;
    }
    ~QtSurface() override { widget().listener = nullptr; }
    QtSurface(const QtSurface&) = delete;
    QtSurface& operator=(const QtSurface&) = delete;

    /// Where the form's layout has put the control, if it has.
    [[nodiscard]] Rect geometry() const override
    {
        Rect placed = m_geometry;
        if (const QPoint at = widget().pos(); at != scale().pixels(placed).topLeft()) {
            placed.left = scale().twips(at.x());
            placed.top = scale().twips(at.y());
        }
        return placed;
    }

    // Twips that the host gave stay as they are; only a size that comes from the form's layout is counted
    // from pixels.
    void setGeometry(const Rect& geometry) override
    {
        const Temporarily setting(m_setting, true);
        QtBase::setGeometry(geometry);
    }

    [[nodiscard]] std::unique_ptr<TextField> createTextField(int number) override
    {
        return make<QtTextField>(number);
    }
    [[nodiscard]] std::unique_ptr<Label> createLabel(int number) override
    {
        return std::make_unique<QtLabel>(m_inner, number);
    }
    [[nodiscard]] std::unique_ptr<Image> createImage(int number, bool isVisible) override
    {
        auto image = std::make_unique<QtImage>(m_inner, number);
        image->setVisible(isVisible);
        return image;
    }
    [[nodiscard]] std::unique_ptr<SpinButton> createSpinButton(int number) override
    {
        return make<QtSpinButton>(number);
    }
    [[nodiscard]] std::unique_ptr<Track> createTrack(int number) override { return make<QtTrack>(number); }
    [[nodiscard]] std::unique_ptr<ComboBox> createComboBox(int number) override
    {
        return make<QtComboBox>(number);
    }
    [[nodiscard]] std::unique_ptr<ListBox> createListBox(int number) override { return make<QtListBox>(number); }
    [[nodiscard]] std::unique_ptr<CheckBox> createCheckBox(int number) override
    {
        return make<QtCheckBox>(number);
    }
    [[nodiscard]] std::unique_ptr<OptionButton> createOptionButton(int number) override
    {
        return make<QtOptionButton>(number);
    }
    [[nodiscard]] std::unique_ptr<PopupMenu> createMenu(std::span<const MenuItem> items) override
    {
        return std::make_unique<QtMenu>(m_inner, items);
    }
    [[nodiscard]] Twips textWidth(std::string_view text, bool bold) const override
    {
        QFont font = widget().font();
        font.setBold(bold);
        constexpr int kLimit = 4096;
        return scale().twips(QFontMetrics(font).horizontalAdvance(shownText(text, kLimit)));
    }

private:
    template <class T>
    std::unique_ptr<T> make(int number)
    {
        auto made = std::make_unique<T>(m_inner, number);
        showNow(made->qwidget());
        return made;
    }

    /// What the right mouse button does on the surface, the keyboard does on any of its widgets.
    void menuKey(QPoint at) override
    {
        std::int16_t button = kRightButton;
        std::int16_t shift = 0;
        auto x = static_cast<float>(scale().twips(at.x()));
        auto y = static_cast<float>(scale().twips(at.y()));
        report(Notice::MouseUp, std::array<ArgRef, 4>{&button, &shift, &x, &y});
    }
    /// By the form's layout, where it is not the control's own doing.
    void resized(QSize size) override
    {
        auto* component = dynamic_cast<Component*>(context().listener);
        if (m_setting || component == nullptr || size == scale().pixels(m_geometry).size())
            return;
        m_geometry.width = scale().twips(size.width());
        m_geometry.height = scale().twips(size.height());
        component->resized();
    }

    Context m_inner{};
    bool m_setting = false;
};

} // namespace

QtContainer::QtContainer(QWidget& parent, std::span<const std::string_view> pictures)
    : m_parent(parent), m_pictures(pictures), m_scale(parent.font())
{
    installAccessibility();
}

bool QtContainer::followFont()
{
    const Scale before = std::exchange(m_scale, Scale(m_parent.font()));
    return !(m_scale == before);
}

std::unique_ptr<Surface> QtContainer::createSurface(WidgetListener& listener, Twips width, Twips height)
{
    return std::make_unique<QtSurface>(Context{this, &listener, &m_parent}, width, height);
}

std::string_view QtContainer::picture(int index) const noexcept
{
    return index >= 1 && static_cast<std::size_t>(index) <= m_pictures.size()
               ? m_pictures[static_cast<std::size_t>(index) - 1]
               : std::string_view{};
}

namespace {

/// A box is as wide as its text; the title, which names the parameter, may be longer.
void widenToTitle(QMessageBox& box)
{
    constexpr int kButtons = 12; ///< of the frame, in heights of a line, with what else stands in the title bar
    constexpr int kMost = 60;
    auto* grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr)
        return;
    const QFontMetrics metrics = box.fontMetrics();
    const int wanted = metrics.horizontalAdvance(box.windowTitle()) + kButtons * metrics.height();
    grid->addItem(new QSpacerItem(std::min(wanted, kMost * metrics.height()), 0), grid->rowCount(), 0, 1,
                  grid->columnCount());
}

} // namespace

void QtContainer::showMessage(Component& component, const MessageBox& box)
{
    if (onMessage) {
        onMessage(component, box);
        return;
    }
    constexpr std::array kIcons{QMessageBox::Critical, QMessageBox::Information, QMessageBox::Warning};
    constexpr int kTitleLimit = 200;
    constexpr int kTextLimit = 4000;
    // Who deletes the form while the box is open deletes the box with it.
    const QPointer message =
        new QMessageBox(kIcons[static_cast<std::size_t>(box.icon)], shownText(box.title, kTitleLimit), QString(),
                        QMessageBox::Ok, &m_parent);
    message->setTextFormat(Qt::PlainText);
    message->setText(shownText(box.text, kTextLimit));
    widenToTitle(*message);
    message->exec();
    delete message;
}

void QtContainer::failed(const std::exception_ptr& error)
{
    if (onError)
        return onError(error);
    qWarning("An event handler failed: %s", failureText(error).c_str());
}

void QtContainer::discard(QWidget& widget)
{
    // Qt would hand the focus of a widget that disappears to its neighbour, which nobody has entered.
    widget.clearFocus();
    if (events.isNone()) {
        delete &widget;
        return;
    }
    // deleteLater() would be carried out by an event loop that a handler runs, while the event is still under way.
    widget.hide();
    widget.setParent(nullptr);
    m_discarded.emplace_back(&widget);
}

void QtContainer::deleteDiscarded() noexcept
{
    for (const auto& widget : std::exchange(m_discarded, {})) {
        if (widget != nullptr)
            widget->deleteLater();
    }
}

QtContainer::~QtContainer() { deleteDiscarded(); }

} // namespace zor::platform::qt
