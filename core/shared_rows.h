#pragma once

/// The rows that all controls share: a class's tables refer to them, so that each stands once.

#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/macros_aside.h>

namespace zor::core {

struct SharedRows {
    // --- Parameter
    static constexpr auto DeviceTag =
        fieldRow<&Control::m_binding, &Binding::deviceTag>("DeviceTag", Topic::Parameter)
            .saying("Identifier of the parameter in the device. The host uses it to find the parameter; the "
                    "control shows it in the message of an unknown identifier.")
            .identifier()
            .stored("");
    static constexpr auto RegisterType =
        fieldRow<&Control::m_binding, &Binding::registerType>("RegisterType", Topic::Parameter)
            .saying("The register bank that holds the parameter. An operator edits nothing that lies in an input "
                    "register.")
            .stored(HoldingRegister)
            .refreshing({Refresh::Colours});
    static constexpr auto DeviceType =
        fieldRow<&Control::m_binding, &Binding::deviceType>("DeviceType", Topic::Parameter)
            .saying("Type of the connected device. A write looks it up in DeviceTypeSupported, blanks and case "
                    "aside, and hides the control when it is not there.")
            .identifier()
            .stored("")
            .refreshing({Refresh::CheckType});
    static constexpr auto DeviceVersion =
        fieldRow<&Control::m_binding, &Binding::deviceVersion>("DeviceVersion", Topic::Parameter)
            .saying(
                "Firmware version of the connected device (as 01.10; 1.5 counts as 01.05). A write compares it "
                "with the versions of the device's type and hides the control outside of them.")
            .identifier()
            .stored("")
            .refreshing({Refresh::CheckVersion});
    static constexpr auto DeviceTypeSupported =
        fieldRow<&Control::m_binding, &Binding::typesSupported>("DeviceTypeSupported", Topic::Parameter)
            .saying("Comma-separated list of the device types that offer the parameter; empty means all. Takes "
                    "effect with the next write of DeviceType.")
            .identifier()
            .stored("");
    // The two version lists are stored under abbreviated keys; forms in the field carry them.
    static constexpr auto DeviceMinVersionSupported =
        fieldRow<&Control::m_binding, &Binding::minVersions>("DeviceMinVersionSupported", Topic::Parameter)
            .saying("Comma-separated list of the lowest firmware versions, one for each type of "
                    "DeviceTypeSupported; an empty list or entry sets no limit. Takes effect with the next write "
                    "of DeviceVersion.")
            .identifier()
            .storedAs("DeviceMinVerSupported", "");
    static constexpr auto DeviceMaxVersionSupported =
        fieldRow<&Control::m_binding, &Binding::maxVersions>("DeviceMaxVersionSupported", Topic::Parameter)
            .saying("Comma-separated list of the highest firmware versions, one for each type of "
                    "DeviceTypeSupported; an empty list or entry sets no limit. Takes effect with the next write "
                    "of DeviceVersion.")
            .identifier()
            .storedAs("DeviceMaxVerSupported", "");

    // --- State
    static constexpr auto CFail =
        fieldRow<&Control::m_status, &Status::cFail>("CFail", Topic::State)
            .saying("Communication with the device failed. The host sets it after each read; the control says "
                    "so, a text turns red, and nothing can be edited.")
            .stored(false)
            .refreshing({Refresh::Status, Refresh::Colours, Refresh::Enabled});
    static constexpr auto DataNotAvailable =
        fieldRow<&Control::m_status, &Status::dataNotAvailable>("DataNotAvailable", Topic::State)
            .saying("The device returned no data for the parameter. The host sets it after each read.")
            .stored(false)
            .refreshing({Refresh::Status});
    static constexpr auto DeviceTagNotFound =
        fieldRow<&Control::m_status, &Status::deviceTagNotFound>("DeviceTagNotFound", Topic::State)
            .saying("The device does not know DeviceTag. The host sets it; the control says so and, but for a "
                    "status image, is disabled; its state icon can still be clicked.")
            .stored(false)
            .refreshing({Refresh::Status, Refresh::Enabled});
    static constexpr auto WaitingForData =
        fieldRow<&Control::m_status, &Status::waitingForData>("WaitingForData", Topic::State)
            .saying(
                "A read is outstanding. While the host has it set the control is frozen, state icon included; the "
                "undo of an edit can still be had from the control's surface.")
            .stored(false)
            .refreshing({Refresh::Enabled});
    static constexpr auto DataChanged =
        fieldRow<&Control::m_status, &Status::dataChanged>("DataChanged", Topic::State)
            .saying("Another user has changed the value. The host sets it; a click on the state icon shows the "
                    "message and clears it, unless a graver state is shown.")
            .stored(false)
            .refreshing({Refresh::Status})
            .live();
    /// The value that another user wrote, for the text that tells of it: the host's, never the control's.
    template <auto Field>
    static constexpr auto OtherUserValue =
        fieldRow<Field>("OtherUserValue", Topic::Value)
            .saying("What another user wrote, shown first in the text of DataChanged, in OutputUnit where there "
                    "are units. The host's own; the control only expresses it in another unit.")
            .with(Access::Silent)
            .refreshing({Refresh::Status});
    /// The flag at the end of a path of member pointers.
    template <auto... Path>
    static constexpr auto InvalidValue =
        fieldRow<Path...>("InvalidValue", Topic::State)
            .saying("The last value from the device, or from the host, lies outside what the control can show as "
                    "valid. The control's own.")
            .stored(false)
            .with(Access::Derived);
    // The flag follows every keystroke; the container is not told.
    static constexpr auto DataModified =
        fieldRow<&Control::m_status, &Status::dataModified>("DataModified", Topic::State)
            .saying("The shown value differs from the device's: an edit that has not been written. The control "
                    "keeps it; a host may write it.")
            .stored(false)
            .with(Access::Silent)
            .refreshing({Refresh::Colours})
            .live();
    static constexpr auto DeviceTypeNotSupported =
        fieldRow<&Control::m_status, &Status::deviceTypeNotSupported>("DeviceTypeNotSupported", Topic::State)
            .saying("The type check found DeviceType not supported; the control shows nothing. A host may write "
                    "it.")
            .stored(false)
            .refreshing({Refresh::Support})
            .live();
    static constexpr auto DeviceVerNotSupported =
        fieldRow<&Control::m_status, &Status::deviceVerNotSupported>("DeviceVerNotSupported", Topic::State)
            .saying("The version check found DeviceVersion not supported; the control shows nothing. A host may "
                    "write it.")
            .stored(false)
            .refreshing({Refresh::Support})
            .live();
    static constexpr auto EnableControl =
        fieldRow<&Control::m_status, &Status::enableControl>("EnableControl", Topic::State)
            .saying("The host's permission to work the control.")
            .stored(true)
            .refreshing({Refresh::Enabled});
    static constexpr auto ReadOnly =
        fieldRow<&Control::m_status, &Status::readOnly>("ReadOnly", Topic::State)
            .saying("The host's lock on editing; the value stays visible and its state explainable.")
            .stored(false)
            .refreshing({Refresh::Colours});
    static constexpr auto IconEnable =
        fieldRow<&Control::m_status, &Status::iconEnable>("IconEnable", Topic::Appearance)
            .saying("Whether the state icon may be shown at all.")
            .stored(true);

    // --- Messages
    static constexpr auto MsgCfail = fieldRow<&Control::m_messages, &Messages::cFail>("MsgCfail", Topic::Messages)
                                         .saying("Message of a communication failure.")
                                         .stored("Communication Failure !")
                                         .refreshing({Refresh::Status});
    static constexpr auto MsgDataNotAvailable =
        fieldRow<&Control::m_messages, &Messages::dataNotAvailable>("MsgDataNotAvailable", Topic::Messages)
            .saying("Message when the device returned no data.")
            .stored("Data Not Available")
            .refreshing({Refresh::Status});
    static constexpr auto MsgDeviceTagNotFound =
        fieldRow<&Control::m_messages, &Messages::deviceTagNotFound>("MsgDeviceTagNotFound", Topic::Messages)
            .saying("Message of an unknown identifier; the box adds DeviceTag.")
            .stored("Identifier Look Up Failed")
            .refreshing({Refresh::Status});
    static constexpr auto MsgDefault =
        fieldRow<&Control::m_messages, &Messages::defaultText>("MsgDefault", Topic::Messages)
            .saying("Tooltip when there is nothing to explain.")
            .stored("")
            .refreshing({Refresh::Status});
    static constexpr auto MsgDataChanged =
        fieldRow<&Control::m_messages, &Messages::dataChanged>("MsgDataChanged", Topic::Messages)
            .saying(
                "Message of another user's change; what the other one wrote, where a class knows it, and what the "
                "device has are added behind it.")
            .stored("Data Changed by other user ")
            .refreshing({Refresh::Status});
    static constexpr auto MessageHeader =
        fieldRow<&Control::m_messages, &Messages::header>("MessageHeader", Topic::Messages)
            .saying("Title of the message boxes that the control shows.")
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

#include <zor/platform/macros_back.h>
