#pragma once

/// What all nine controls share: identity, container, properties by name, binding, status, messages, events.

#include <zor/core/class_info.h>
#include <zor/core/control_state.h>
#include <zor/core/undo_menu.h>
#include <zor/platform/container.h>
#include <zor/platform/depth.h>
#include <zor/platform/macros_aside.h>

#include <cassert>
#include <cstdint>
#include <exception>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace zor::core {

/// A control without a kind. Controls are created through their class (`create`) and owned by a ControlPtr.
///
/// Properties are published as pairs of overloads, `bool CFail() const` and `void CFail(bool)`. A write
/// stores the value, notifies the container under the property's own name, unless its row says Access::Silent, and
/// runs the refreshes that depend on it.
///
/// What remains after an error: a value of the wrong type or beyond its range has changed nothing. When a later
/// step fails, the property has its old value again, but what the steps before it did to other things stays; a
/// class that keeps failed writes (ClassInfo::keepsFailedWrites: up-down and slider) keeps the property's new
/// value as well. An exception thrown by an event handler undoes nothing: the control finishes its work, then the
/// caller gets it, a RunTimeError with the event's name in front.
class Control : public platform::Component, public platform::WidgetListener {
public:
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// The tables of its class.
    [[nodiscard]] const ClassInfo& info() const noexcept { return m_info; }

    /// @name By name
    /// A name that the class does not have raises NoSuchMember. An error begins with class and member:
    /// `ctx_ZorTextBox.NumberOfDigits: type mismatch ("abc")`.
    /// @{
    /// Reads a property.
    [[nodiscard]] Variant property(std::string_view name) const;
    /// Writes a property; what the row says of the write holds. An enumeration takes numbers: zor::memberValue()
    /// (zor/units.h) gives that of a name ("LgthU_Mtr").
    void setProperty(std::string_view name, const Variant& value);
    /// Another number of arguments than the method has raises WrongArguments.
    MethodResult call(std::string_view method, std::span<const Variant> arguments);
    /// By a row of the class's table; one of another class raises NoSuchMember.
    [[nodiscard]] Variant get(const PropertyRow& row) const;
    /// Writes by a row.
    void put(const PropertyRow& row, const Variant& value);
    /// @}

    /// @name Parameter
    /// @{
    [[nodiscard]] const std::string& DeviceTag() const noexcept { return m_binding.deviceTag; }
    void DeviceTag(std::string_view value);
    [[nodiscard]] REGISTER_TYPE RegisterType() const noexcept { return m_binding.registerType; }
    void RegisterType(REGISTER_TYPE value);
    [[nodiscard]] const std::string& DeviceType() const noexcept { return m_binding.deviceType; }
    void DeviceType(std::string_view value);
    [[nodiscard]] const std::string& DeviceVersion() const noexcept { return m_binding.deviceVersion; }
    void DeviceVersion(std::string_view value);
    [[nodiscard]] const std::string& DeviceTypeSupported() const noexcept { return m_binding.typesSupported; }
    void DeviceTypeSupported(std::string_view value);
    [[nodiscard]] const std::string& DeviceMinVersionSupported() const noexcept { return m_binding.minVersions; }
    void DeviceMinVersionSupported(std::string_view value);
    [[nodiscard]] const std::string& DeviceMaxVersionSupported() const noexcept { return m_binding.maxVersions; }
    void DeviceMaxVersionSupported(std::string_view value);
    /// @}

    /// @name State of the last read, and the host's permission
    /// @{
    [[nodiscard]] bool CFail() const noexcept { return m_status.cFail; }
    void CFail(bool value);
    [[nodiscard]] bool DataNotAvailable() const noexcept { return m_status.dataNotAvailable; }
    void DataNotAvailable(bool value);
    [[nodiscard]] bool DeviceTagNotFound() const noexcept { return m_status.deviceTagNotFound; }
    void DeviceTagNotFound(bool value);
    [[nodiscard]] bool WaitingForData() const noexcept { return m_status.waitingForData; }
    void WaitingForData(bool value);
    [[nodiscard]] bool DeviceTypeNotSupported() const noexcept { return m_status.deviceTypeNotSupported; }
    void DeviceTypeNotSupported(bool value);
    [[nodiscard]] bool DeviceVerNotSupported() const noexcept { return m_status.deviceVerNotSupported; }
    void DeviceVerNotSupported(bool value);
    [[nodiscard]] bool EnableControl() const noexcept { return m_status.enableControl; }
    void EnableControl(bool value);
    /// @}

    /// @name Messages
    /// @{
    [[nodiscard]] const std::string& MessageHeader() const noexcept { return m_messages.header; }
    void MessageHeader(std::string_view value);
    [[nodiscard]] const std::string& MsgCfail() const noexcept { return m_messages.cFail; }
    void MsgCfail(std::string_view value);
    [[nodiscard]] const std::string& MsgDataNotAvailable() const noexcept { return m_messages.dataNotAvailable; }
    void MsgDataNotAvailable(std::string_view value);
    [[nodiscard]] const std::string& MsgDeviceTagNotFound() const noexcept { return m_messages.deviceTagNotFound; }
    void MsgDeviceTagNotFound(std::string_view value);
    [[nodiscard]] const std::string& MsgDefault() const noexcept { return m_messages.defaultText; }
    void MsgDefault(std::string_view value);

    /// The highest message number; numbers run from 1 without gaps.
    [[nodiscard]] std::int16_t fi_GetMaxMessage() const noexcept;
    /// The identifier of a message; the class's fixed answer for a number without one.
    [[nodiscard]] std::string_view fc_GetMessageID(std::int16_t i_MessageNumber) const noexcept;
    /// Replaces a message; shown from the next status refresh on. False for a number without a message.
    bool fb_SetMessage(std::int16_t i_MessageNumber, std::string_view c_MessageString);
    /// @}

    /// Gives the control's own surface, and what else the class names, a back colour (0xRRGGBB or a system
    /// colour).
    virtual void s_ChangeBackColor(Colour l_ColorValue);

    /// A valid entry that the operator has begun and not yet handed over, in the device's unit. Nothing for a
    /// control where each action hands over at once.
    [[nodiscard]] virtual std::optional<Variant> entryUnderWay() const { return {}; }
    /// Whether the event that is being raised goes back to the operator. What a host writes, in a handler too,
    /// does not.
    [[nodiscard]] bool isByOperator() const noexcept { return m_isByOperator; }

    /// @name Listening by name
    /// A listener must be taken away before it ends.
    /// @{
    /// Hears every event, by its row. Who subscribes twice hears it twice, and unsubscribes twice.
    void subscribe(EventSink& sink) { m_sinks.add({&sink, nullptr}); }
    void unsubscribe(EventSink& sink) noexcept { m_sinks.remove({&sink, nullptr}); }
    /// @}

    /// @name The container's side
    /// @{
    /// The area that its widgets stand on.
    [[nodiscard]] platform::Surface& surface() noexcept { return *m_surface; }
    /// The area that its widgets stand on.
    [[nodiscard]] const platform::Surface& surface() const noexcept { return *m_surface; }
    /// A constituent widget by the number in the class's table; nullptr for another number.
    [[nodiscard]] virtual platform::Widget* widget(int number) noexcept;
    /// The menu behind the right mouse button, if the class has one.
    [[nodiscard]] virtual platform::PopupMenu* menu() { return nullptr; }
    /// Gives a new control its initial values.
    void initialiseProperties() final;
    /// Takes the stored properties, in place of initialiseProperties(); what the bag does not have gets its
    /// default. But for a label, no value is shown and no state explained until the host writes DeviceValue and
    /// the flags of its read: a text field is empty, a track at its left end, a box unticked. A value of another
    /// type raises TypeMismatch, one beyond its property's range Overflow; the control is to be destroyed then.
    void readProperties(const platform::PropertyBag& bag) final;
    /// Stores the properties. An enumeration's value that needs more than the 16 bits of its key raises Overflow,
    /// and nothing is stored.
    void writeProperties(platform::PropertyBag& bag) final;
    void resized() final;
    /// A widget reports.
    void notice(int widget, platform::Notice notice, platform::EventArgs args) final;
    [[nodiscard]] platform::Spoken spoken(int widget) final;
    void hold() noexcept final { ++m_holds; }
    /// Whether somebody is in the middle of something with it: then it stays until he is done, whatever its owner
    /// does, and so must its container.
    [[nodiscard]] bool isHeld() const noexcept { return m_holds != 0; }
    /// Whether its owner has destroyed it, and it is only waiting for who holds it.
    [[nodiscard]] bool hasEnded() const noexcept { return m_ended; }
    /// Ends a hold; an owner may have destroyed the control meanwhile, which then ends here.
    void release() noexcept final
    {
        assert(m_holds > 0); // each release has its hold
        if (--m_holds == 0 && m_ended)
            delete this;
    }
    /// @}

protected:
    Control(const ClassInfo& info, platform::Container& container, platform::Twips width, platform::Twips height);
    virtual ~Control();

    /// @name Shared members that some classes publish
    /// @{
    [[nodiscard]] bool ReadOnly() const noexcept { return m_status.readOnly; }
    void ReadOnly(bool value);
    [[nodiscard]] bool IconEnable() const noexcept { return m_status.iconEnable; }
    void IconEnable(bool value);
    [[nodiscard]] bool DataChanged() const noexcept { return m_status.dataChanged; }
    void DataChanged(bool value);
    [[nodiscard]] bool DataModified() const noexcept { return m_status.dataModified; }
    void DataModified(bool value);
    [[nodiscard]] const std::string& MsgDataChanged() const noexcept { return m_messages.dataChanged; }
    void MsgDataChanged(std::string_view value);
    /// @}

    /// @name Refreshes, in each class's own form
    /// All are idempotent.
    /// @{
    virtual void s_UpdateStatusDisplay();
    virtual void s_UpdateColors() = 0;
    virtual void s_UpdateEnabledState();
    virtual void s_UpdateDeviceSupportDisplay() = 0;
    void s_CheckDeviceType();
    void s_CheckDeviceVersion();
    /// @}

    /// @name What the shared refreshes ask of a class
    /// @{
    /// The widget that carries the tooltip, and those that are enabled and disabled with it.
    [[nodiscard]] virtual std::span<platform::Widget* const> body() noexcept = 0;
    [[nodiscard]] virtual platform::Image& icon() noexcept = 0;
    /// After the stored properties have been read.
    virtual void s_AfterLoading() = 0;
    virtual void s_Layout() = 0;
    /// A report of a widget. The base re-raises it as the event that the class's table names.
    virtual void onNotice(int widget, platform::Notice notice, platform::EventArgs args);
    /// What a class adds for a screen reader, to its first widget: unit, limits, a value that is not shown as
    /// text.
    virtual void describe(platform::Spoken& /*spoken*/) const {}
    /// @}

    /// Shows the message of the state that the icon stands for, and acknowledges it where the state says so.
    /// The caller raises imgClick afterwards.
    void s_ExplainState();

    [[nodiscard]] bool isDeviceSupported() const noexcept
    {
        return !m_status.deviceTypeNotSupported && !m_status.deviceVerNotSupported;
    }
    /// ReadOnly, or a parameter in an input register.
    [[nodiscard]] bool isReadOnlyForOperator() const noexcept
    {
        return m_status.readOnly || m_binding.registerType == InputRegister;
    }
    [[nodiscard]] platform::Container& container() noexcept { return m_container; }

    /// Writes a property: store, notify, refresh. A text comes as a view, which may be one of the property itself.
    template <class C, class T, class V>
    void write(const Row<C, T>& row, V&& value)
    {
        using Value = std::remove_cvref_t<V>;
        static_assert(std::is_same_v<Value, T> || (detail::isText<T> && std::is_same_v<Value, std::string_view>),
                      "the value has another type than the property");
        assert(row.in != nullptr); // a property that a function answers is not written into a field
        naming(m_info.name, row.name, [&] { write(row, row.in(*this), std::forward<V>(value)); });
    }

    /// Carries out what the host or the operator asks for, which may raise events: keeps the control alive, and
    /// passes a handler's exception on when the outermost action has ended.
    template <class Action>
    void carryOut(Action&& action);

    /// Writes something into a widget. What fails in answering the widget's report fails here, also on a platform
    /// that lets no exception through its event loop.
    template <class Set>
    void writeWidget(Set&& set);

    /// Raises an event of the class's table: one of `raised()`, or the one that `forward` has found.
    void raise(const EventRow* event, platform::EventArgs args = {});
    /// What this class of controls raises by itself.
    [[nodiscard]] const RaisedEvents& raised() const noexcept { return m_info.raised; }
    /// Re-raises a widget's report as the event that the class's table names, if it names one.
    void forward(int widget, platform::Notice notice, platform::EventArgs args);

    /// @name Values that overtake each other
    /// A widget reports while a value is on its way into it, and a handler may write the next one there and then.
    /// What was under way must not be laid over the newer value.
    /// @{
    /// A value sets out: every earlier one is overtaken from here on.
    std::uint32_t newValue() noexcept { return ++m_value; }
    /// The one that set out last.
    [[nodiscard]] std::uint32_t valueUnderWay() const noexcept { return m_value; }
    [[nodiscard]] bool isOvertaken(std::uint32_t underWay) const noexcept { return underWay != m_value; }
    /// @}

    void addTypedSink(void* sink) { m_sinks.add({nullptr, sink}); }
    void removeTypedSink(void* sink) noexcept { m_sinks.remove({nullptr, sink}); }

    Binding m_binding;
    Status m_status;
    Messages m_messages;

private:
    friend struct SharedRows;
    friend struct ControlDeleter;
    class Acting;

    template <class T, class V>
    void write(const PropertyRow& row, T& field, V&& value);
    /// Puts a value into a field; answers the old one where it was another, or may have been.
    template <class T, class V>
    static std::optional<T> replace(T& field, V&& value);
    /// The class's own row, or NoSuchMember.
    const PropertyRow& own(const PropertyRow& row) const;
    [[nodiscard]] Variant read(const PropertyRow& row) const;
    void assign(const PropertyRow& row, const Variant& value);
    void initialise(const PropertyRow& row);
    /// The state that the icon stands for, nullptr for none.
    [[nodiscard]] const StatusRow* shownState() const;
    /// Shows a state, or with nullptr that there is none.
    void showState(const StatusRow* state);
    [[nodiscard]] bool refusesWrite(const PropertyRow& row) const;
    void stored(const PropertyRow& row);
    /// What a write of a row refreshes in this class.
    [[nodiscard]] const Refreshes& refreshesOf(const PropertyRow& row) const noexcept;
    void refresh(Refresh refresh);
    void deliver(const SinkList::Entry& entry, const EventRow& row, platform::EventArgs args);
    void passOnHandlerError();
    void passOnReportError();
    void load(const PropertyRow& row, const platform::PropertyBag& bag);

    const ClassInfo& m_info;
    platform::Container& m_container;
    std::unique_ptr<platform::Surface> m_surface;
    SinkList m_sinks;
    std::exception_ptr m_handlerError;
    std::exception_ptr m_reportError;
    std::uint32_t m_holds = 0;      ///< who needs the control alive, whatever its owner does
    platform::Depth m_actions;      ///< a handler's exception waits for the outermost to end
    platform::Depth m_widgetWrites; ///< a report's exception waits for the write that caused it
    std::uint32_t m_value = 0;      ///< counts the values that set out
    bool m_isByOperator = false;
    bool m_ended = false;
    /// The default text is shown as it stands: another state takes it away, a new text is shown by the next
    /// refresh.
    bool m_isDefaultShown = false;
};

/// A scope that something is done in, by the host unless it is said otherwise.
class Control::Acting {
public:
    explicit Acting(Control& control) noexcept
        : m_control(control), m_before(std::exchange(control.m_isByOperator, false))
    {}
    ~Acting()
    {
        m_control.m_isByOperator = m_before;
        if (m_control.m_actions.isNone() && !m_control.m_ended)
            m_control.m_container.settled(m_control);
    }
    Acting(const Acting&) = delete;
    Acting& operator=(const Acting&) = delete;

private:
    Control& m_control;
    bool m_before;
};

template <class Action>
void Control::carryOut(Action&& action)
{
    const platform::Hold hold(*this);
    const Acting acting(*this);
    try {
        const platform::Depth::Level level(m_actions);
        std::forward<Action>(action)();
    } catch (...) {
        // What the caller gets is why the action itself failed.
        if (m_actions.isNone())
            m_handlerError = nullptr;
        throw;
    }
    if (m_actions.isNone() && m_handlerError)
        passOnHandlerError();
}

template <class Set>
void Control::writeWidget(Set&& set)
{
    const platform::Hold hold(*this);
    {
        const platform::Depth::Level level(m_widgetWrites);
        std::forward<Set>(set)();
    }
    if (m_reportError)
        passOnReportError();
}

template <class T, class V>
std::optional<T> Control::replace(T& field, V&& value)
{
    // Most texts that a new control is given stand there already, and texts are long. An equal number need not be
    // the same: 0 and -0, 16 bits and 32.
    if constexpr (detail::isText<T>) {
        if (field == value)
            return std::nullopt;
    }
    // A copy, for the value may be the field's own.
    return std::exchange(field, T(std::forward<V>(value)));
}

template <class T, class V>
void Control::write(const PropertyRow& row, T& field, V&& value)
{
    if (refusesWrite(row))
        return;
    if constexpr (std::is_same_v<T, double> || std::is_same_v<T, Variant>)
        requireFinite(value);
    carryOut([&] {
        std::optional<T> before = replace(field, std::forward<V>(value));
        try {
            stored(row);
        } catch (...) {
            if (before && !m_info.keepsFailedWrites)
                field = std::move(*before);
            m_isDefaultShown = false;
            throw;
        }
    });
}

} // namespace zor::core

#include <zor/platform/macros_back.h>
