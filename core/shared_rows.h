#pragma once

/// The rows that all controls share: a class's tables refer to them, so that each stands once.

#include <zor/core/control.h>
#include <zor/core/frm_Container.h>

namespace zor::core {

struct SharedRows {
    // --- Parameter
    static constexpr PropertyRow DeviceTag = fieldRow<&Control::m_binding, &Binding::deviceTag>("DeviceTag")
                                                 .stored("")
                                                 .then<&Control::describeForReaders>();
    static constexpr PropertyRow RegisterType =
        fieldRow<&Control::m_binding, &Binding::registerType>("RegisterType")
            .stored(0)
            .refreshing({Refresh::Colours});
    static constexpr PropertyRow DeviceType = fieldRow<&Control::m_binding, &Binding::deviceType>("DeviceType")
                                                  .stored("")
                                                  .refreshing({Refresh::CheckType});
    static constexpr PropertyRow DeviceVersion =
        fieldRow<&Control::m_binding, &Binding::deviceVersion>("DeviceVersion")
            .stored("")
            .refreshing({Refresh::CheckVersion});
    static constexpr PropertyRow DeviceTypeSupported =
        fieldRow<&Control::m_binding, &Binding::typesSupported>("DeviceTypeSupported").stored("");
    // The two version lists are stored under abbreviated keys; forms in the field carry them.
    static constexpr PropertyRow DeviceMinVersionSupported =
        fieldRow<&Control::m_binding, &Binding::minVersions>("DeviceMinVersionSupported")
            .storedAs("DeviceMinVerSupported", "");
    static constexpr PropertyRow DeviceMaxVersionSupported =
        fieldRow<&Control::m_binding, &Binding::maxVersions>("DeviceMaxVersionSupported")
            .storedAs("DeviceMaxVerSupported", "");

    // --- State
    static constexpr PropertyRow CFail =
        fieldRow<&Control::m_status, &Status::cFail>("CFail").stored(false).refreshing(
            {Refresh::Status, Refresh::Colours, Refresh::Enabled});
    static constexpr PropertyRow DataNotAvailable =
        fieldRow<&Control::m_status, &Status::dataNotAvailable>("DataNotAvailable")
            .stored(false)
            .refreshing({Refresh::Status});
    static constexpr PropertyRow DeviceTagNotFound =
        fieldRow<&Control::m_status, &Status::deviceTagNotFound>("DeviceTagNotFound")
            .stored(false)
            .refreshing({Refresh::Status, Refresh::Enabled});
    static constexpr PropertyRow WaitingForData =
        fieldRow<&Control::m_status, &Status::waitingForData>("WaitingForData")
            .stored(false)
            .refreshing({Refresh::Enabled});
    static constexpr PropertyRow DataChanged = fieldRow<&Control::m_status, &Status::dataChanged>("DataChanged")
                                                   .stored(false)
                                                   .refreshing({Refresh::Status});
    // The flag follows every keystroke; the container is not told.
    static constexpr PropertyRow DataModified = fieldRow<&Control::m_status, &Status::dataModified>("DataModified")
                                                    .stored(false)
                                                    .with(Access::Silent)
                                                    .refreshing({Refresh::Colours});
    static constexpr PropertyRow DeviceTypeNotSupported =
        fieldRow<&Control::m_status, &Status::deviceTypeNotSupported>("DeviceTypeNotSupported")
            .stored(false)
            .refreshing({Refresh::Support});
    static constexpr PropertyRow DeviceVerNotSupported =
        fieldRow<&Control::m_status, &Status::deviceVerNotSupported>("DeviceVerNotSupported")
            .stored(false)
            .refreshing({Refresh::Support});
    static constexpr PropertyRow EnableControl =
        fieldRow<&Control::m_status, &Status::enableControl>("EnableControl")
            .stored(true)
            .refreshing({Refresh::Enabled});
    static constexpr PropertyRow ReadOnly =
        fieldRow<&Control::m_status, &Status::readOnly>("ReadOnly").stored(false).refreshing({Refresh::Colours});
    static constexpr PropertyRow IconEnable =
        fieldRow<&Control::m_status, &Status::iconEnable>("IconEnable").stored(true);

    // --- Messages
    static constexpr PropertyRow MsgCfail = fieldRow<&Control::m_messages, &Messages::cFail>("MsgCfail")
                                                .stored("Communication Failure !")
                                                .refreshing({Refresh::Status});
    static constexpr PropertyRow MsgDataNotAvailable =
        fieldRow<&Control::m_messages, &Messages::dataNotAvailable>("MsgDataNotAvailable")
            .stored("Data Not Available")
            .refreshing({Refresh::Status});
    static constexpr PropertyRow MsgDeviceTagNotFound =
        fieldRow<&Control::m_messages, &Messages::deviceTagNotFound>("MsgDeviceTagNotFound")
            .stored("Identifier Look Up Failed")
            .refreshing({Refresh::Status});
    static constexpr PropertyRow MsgDefault = fieldRow<&Control::m_messages, &Messages::defaultText>("MsgDefault")
                                                  .stored("")
                                                  .refreshing({Refresh::Status});
    static constexpr PropertyRow MsgDataChanged =
        fieldRow<&Control::m_messages, &Messages::dataChanged>("MsgDataChanged")
            .stored("Data Changed by other user ")
            .refreshing({Refresh::Status});
    static constexpr PropertyRow MessageHeader =
        fieldRow<&Control::m_messages, &Messages::header>("MessageHeader").initially("Zor").with(Access::Silent);

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
