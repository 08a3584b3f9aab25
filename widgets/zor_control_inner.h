#pragma once

/// What a ready-made QWidget keeps behind itself: the control, and where it reports to.

#include <zor/core/commit_filter.h>
#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/qt/looks.h>
#include <zor/widgets/conversion.h>
#include <zor/widgets/zor_control.h>

#include <QEvent>
#include <QMetaMethod>
#include <QPointer>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace zor {

struct ZorControl::Inner final : core::EventSink {
    Inner(ZorControl& widget, const core::ClassInfo& classInfo)
        : owner(&widget), container(widget, core::pictureData), info(&classInfo)
    {
        container.setUserMode(true);
    }
    /// Makes the control. What a new one writes into itself nobody can have asked to hear of.
    void make()
    {
        control = info->create(container);
        control->initialiseProperties();
        container.onPropertyChanged = [this](platform::Component&, std::string_view name) { written(name); };
        container.onSettled = [this](platform::Component&) { settled(); };
        container.onFormChanges = [this](QWidget& part, const QEvent& event) { formChanges(part, event); };
        commits.emplace(*control);
        control->subscribe(*this);
        designed = control->surface().geometry();
        face = &platform::qt::widgetOf(*control->widget(1));
    }
    void event(core::Control&, const core::EventRow& row, platform::EventArgs args) override
    {
        const QPointer<ZorControl> alive = owner;
        if (alive.isNull())
            return;
        const Telling telling(tellings);
        const bool isValue = row.name == "OutputValueChange";
        const std::optional<Variant> value = isValue ? committed() : std::nullopt;
        alive->emitEvent(static_cast<std::size_t>(&row - &info->events[0]), args);
        if (!alive.isNull() && isValue)
            emit alive->valueChanged();
        if (!alive.isNull() && value)
            emit alive->valueCommitted(widgets::toQVariant(*value));
    }
    void written(std::string_view name);
    void settled() noexcept;
    /// A property's value; Empty for one that has none just now, as the ticks of a slider without a scale.
    [[nodiscard]] Variant readable(const core::PropertyRow& row) const;
    /// Follows the part that a control shows, and the one that has the focus.
    void formChanges(const QWidget& part, const QEvent& event);
    /// The value that the operator commits with the event that is being told of; nothing while he drags.
    [[nodiscard]] std::optional<Variant> committed();
    void released();

    /// While slots are being called, any of which may delete the widget.
    using Telling = platform::Depth::Level;

    /// A property whose changes somebody wants to hear of.
    struct Watch {
        const core::PropertyRow* row;
        QMetaMethod notifier;
        Variant last;
    };

    [[nodiscard]] QWidget& surface() const { return platform::qt::widgetOf(control->surface()); }

    ZorControl* owner;
    platform::qt::QtContainer container;
    const core::ClassInfo* info;
    core::ControlPtr<> control;
    std::optional<core::CommitFilter> commits;
    /// The part that a control shows where the device offers its parameter, and never else.
    QWidget* face = nullptr;
    std::vector<Watch> watches;
    platform::Rect designed;
    bool isAbsent = false;          ///< hidden because the device does not offer the parameter
    std::optional<bool> isShown;    ///< whether it is to be seen where the device does; if anybody says
    bool keepsFocus = false;        ///< while the control itself hides its widget
    bool isValueNew = false;        ///< a device value has come, and nobody has been told
    std::optional<Variant> dragged; ///< what is committed at the end of a drag
    platform::Depth tellings;
};

/// What remains of a widget that was deleted while it was busy. It goes when nothing is under way any more, which
/// an event loop that a slot runs cannot know.
class ZorControl::Leaving final : public QObject {
public:
    explicit Leaving(std::unique_ptr<Inner> inner) : m_inner(std::move(inner)) {}
    /// Ends it after the surface, if that is still there.
    void after(QObject* surface)
    {
        if (surface == nullptr)
            deleteLater();
        else
            connect(surface, &QObject::destroyed, this, &QObject::deleteLater);
    }

protected:
    bool event(QEvent* event) override
    {
        constexpr int kAgain = 20; // milliseconds
        if (event->type() != QEvent::DeferredDelete || m_inner->tellings.isNone())
            return QObject::event(event);
        startTimer(kAgain);
        return true;
    }
    void timerEvent(QTimerEvent* /*event*/) override
    {
        if (m_inner->tellings.isNone())
            delete this;
    }

private:
    std::unique_ptr<Inner> m_inner;
};

} // namespace zor
