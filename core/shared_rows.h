#pragma once

/// The rows that all controls share: a class's tables refer to them, so that each stands once.

#include <zor/core/control.h>
#include <zor/core/frm_Container.h>

namespace zor::core {

struct SharedRows {
    // --- Parameter
    static constexpr auto DeviceTag =
        fieldRow<&Control::m_binding, &Binding::deviceTag>("DeviceTag", Topic::Parameter)
            .identifier()
            .stored("")
            .then<&Control::describeForReaders>();
    static constexpr auto RegisterType =
        fieldRow<&Control::m_binding, &Binding::registerType>("RegisterType", Topic::Parameter)
            .stored(HoldingRegister)
            .refreshing({Refresh::Colours});
    static constexpr auto DeviceType =
        fieldRow<&Control::m_binding, &Binding::deviceType>("DeviceType", Topic::Parameter)
            .identifier()
            .stored("")
            .refreshing({Refresh::CheckType});
    static constexpr auto DeviceVersion =
        fieldRow<&Control::m_binding, &Binding::deviceVersion>("DeviceVersion", Topic::Parameter)
            .identifier()
            .stored("")
            .refreshing({Refresh::CheckVersion});
    static constexpr auto DeviceTypeSupported =
        fieldRow<&Control::m_binding, &Binding::typesSupported>("DeviceTypeSupported", Topic::Parameter)
            .identifier()
            .stored("");
    // The two version lists are stored under abbreviated keys; forms in the field carry them.
    static constexpr auto DeviceMinVersionSupported =
        fieldRow<&Control::m_binding, &Binding::minVersions>("DeviceMinVersionSupported", Topic::Parameter)
            .identifier()
            .storedAs("DeviceMinVerSupported", "");
    static constexpr auto DeviceMaxVersionSupported =
        fieldRow<&Control::m_binding, &Binding::maxVersions>("DeviceMaxVersionSupported", Topic::Parameter)
            .identifier()
            .storedAs("DeviceMaxVerSupported", "");

    // --- State
    static constexpr auto CFail = fieldRow<&Control::m_status, &Status::cFail>("CFail", Topic::State)
                                      .stored(false)
                                      .refreshing({Refresh::Status, Refresh::Colours, Refresh::Enabled});
    static constexpr auto DataNotAvailable =
        fieldRow<&Control::m_status, &Status::dataNotAvailable>("DataNotAvailable", Topic::State)
            .stored(false)
            .refreshing({Refresh::Status});
    static constexpr auto DeviceTagNotFound =
        fieldRow<&Control::m_status, &Status::deviceTagNotFound>("DeviceTagNotFound", Topic::State)
            .stored(false)
            .refreshing({Refresh::Status, Refresh::Enabled});
    static constexpr auto WaitingForData =
        fieldRow<&Control::m_status, &Status::waitingForData>("WaitingForData", Topic::State)
            .stored(false)
            .refreshing({Refresh::Enabled});
    static constexpr auto DataChanged =
        fieldRow<&Control::m_status, &Status::dataChanged>("DataChanged", Topic::State)
            .stored(false)
            .refreshing({Refresh::Status});
    // The flag follows every keystroke; the container is not told.
    static constexpr auto DataModified =
        fieldRow<&Control::m_status, &Status::dataModified>("DataModified", Topic::State)
            .stored(false)
            .with(Access::Silent)
            .refreshing({Refresh::Colours});
    static constexpr auto DeviceTypeNotSupported =
        fieldRow<&Control::m_status, &Status::deviceTypeNotSupported>("DeviceTypeNotSupported", Topic::State)
            .stored(false)
            .refreshing({Refresh::Support});
    static constexpr auto DeviceVerNotSupported =
        fieldRow<&Control::m_status, &Status::deviceVerNotSupported>("DeviceVerNotSupported", Topic::State)
            .stored(false)
            .refreshing({Refresh::Support});
    static constexpr auto EnableControl =
        fieldRow<&Control::m_status, &Status::enableControl>("EnableControl", Topic::State)
            .stored(true)
            .refreshing({Refresh::Enabled});
    static constexpr auto ReadOnly = fieldRow<&Control::m_status, &Status::readOnly>("ReadOnly", Topic::State)
                                         .stored(false)
                                         .refreshing({Refresh::Colours});
    static constexpr auto IconEnable =
        fieldRow<&Control::m_status, &Status::iconEnable>("IconEnable", Topic::Appearance).stored(true);

    // --- Messages
    static constexpr auto MsgCfail = fieldRow<&Control::m_messages, &Messages::cFail>("MsgCfail", Topic::Messages)
                                         .stored("Communication Failure !")
                                         .refreshing({Refresh::Status});
    static constexpr auto MsgDataNotAvailable =
        fieldRow<&Control::m_messages, &Messages::dataNotAvailable>("MsgDataNotAvailable", Topic::Messages)
            .stored("Data Not Available")
            .refreshing({Refresh::Status});
    static constexpr auto MsgDeviceTagNotFound =
        fieldRow<&Control::m_messages, &Messages::deviceTagNotFound>("MsgDeviceTagNotFound", Topic::Messages)
            .stored("Identifier Look Up Failed")
            .refreshing({Refresh::Status});
    static constexpr auto MsgDefault =
        fieldRow<&Control::m_messages, &Messages::defaultText>("MsgDefault", Topic::Messages)
            .stored("")
            .refreshing({Refresh::Status});
    static constexpr auto MsgDataChanged =
        fieldRow<&Control::m_messages, &Messages::dataChanged>("MsgDataChanged", Topic::Messages)
            .stored("Data Changed by other user ")
            .refreshing({Refresh::Status});
    static constexpr auto MessageHeader =
        fieldRow<&Control::m_messages, &Messages::header>("MessageHeader", Topic::Messages)
            .initially("Zor")
            .with(Access::Silent);

    // --- States, in the order of their precedence
    static constexpr StatusRow CommunicationFailure{
        [](const Control& control) { return control.CFail(); },
        [](const Control& control, std::string& text) { text += control.MsgCfail(); }, frm_Container::Error,
        [](Control& control, std::string& text) { text.append(control.MsgCfail()).append("\r\n"); },
        platform::BoxIcon::Critical};
    static constexpr StatusRow TagNotFound{
        [](const Control& control) { return control.DeviceTagNotFound(); },
        [](const Control& control, std::string& text) { text += control.MsgDeviceTagNotFound(); },
        frm_Container::NotFound,
        [](Control& control, std::string& text) {
            text.append(control.MsgDeviceTagNotFound()).append(" : \r\n").append(control.DeviceTag());
        },
        platform::BoxIcon::Information};
    static constexpr StatusRow NoData{
        [](const Control& control) { return control.DataNotAvailable(); },
        [](const Control& control, std::string& text) { text += control.MsgDataNotAvailable(); },
        frm_Container::Warning,
        [](Control& control, std::string& text) { text.append(control.MsgDataNotAvailable()).append("\r\n"); },
        platform::BoxIcon::Exclamation};
    /// Whether another user's change waits for the operator's acknowledgement.
    static bool isDataChanged(const Control& control) noexcept { return control.m_status.dataChanged; }
    /// The state of another user's change, explained by two fields of the class: the other user's value and the
    /// one that the control's own edit started from.
    template <auto Other, auto Reference>
    static void dataChangedText(const Control& control, std::string& text)
    {
        const auto& object = static_cast<const typename detail::Member<decltype(Other)>::Class&>(control);
        text.append(control.MsgDataChanged()).append(" : ").append(detail::toVariant(object.*Other).toText());
        text.append(" , ").append(detail::toVariant(object.*Reference).toText());
    }
    template <auto Other, auto Reference>
    static constexpr StatusRow DataChangedByOther{
        isDataChanged,
        dataChangedText<Other, Reference>,
        frm_Container::Warning,
        [](Control& control, std::string& text) { dataChangedText<Other, Reference>(control, text); },
        platform::BoxIcon::Exclamation,
        true};
};

} // namespace zor::core
