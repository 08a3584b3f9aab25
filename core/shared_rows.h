#pragma once

/// The rows that all controls share: a class's tables refer to them, so that each stands once.

#include "core/control.h"
#include "core/frm_Container.h"

namespace zor::core {

struct SharedRows {
    // --- Parameter
    static constexpr PropertyRow DeviceTag{"DeviceTag", field<&Control::m_binding, &Binding::deviceTag>,
                                           "DeviceTag", std::string_view(""),
                                           {},          {},
                                           {},          [](Control& control) { control.describeForReaders(); }};
    static constexpr PropertyRow RegisterType{
        "RegisterType",    field<&Control::m_binding, &Binding::registerType>, "RegisterType", 0, {}, {},
        {Refresh::Colours}};
    static constexpr PropertyRow DeviceType{"DeviceType",
                                            field<&Control::m_binding, &Binding::deviceType>,
                                            "DeviceType",
                                            std::string_view(""),
                                            {},
                                            {},
                                            {Refresh::CheckType}};
    static constexpr PropertyRow DeviceVersion{"DeviceVersion",
                                               field<&Control::m_binding, &Binding::deviceVersion>,
                                               "DeviceVersion",
                                               std::string_view(""),
                                               {},
                                               {},
                                               {Refresh::CheckVersion}};
    static constexpr PropertyRow DeviceTypeSupported{"DeviceTypeSupported",
                                                     field<&Control::m_binding, &Binding::typesSupported>,
                                                     "DeviceTypeSupported", std::string_view("")};
    // The two version lists are stored under abbreviated keys; forms in the field carry them.
    static constexpr PropertyRow DeviceMinVersionSupported{"DeviceMinVersionSupported",
                                                           field<&Control::m_binding, &Binding::minVersions>,
                                                           "DeviceMinVerSupported", std::string_view("")};
    static constexpr PropertyRow DeviceMaxVersionSupported{"DeviceMaxVersionSupported",
                                                           field<&Control::m_binding, &Binding::maxVersions>,
                                                           "DeviceMaxVerSupported", std::string_view("")};

    // --- State
    static constexpr PropertyRow CFail{"CFail",
                                       field<&Control::m_status, &Status::cFail>,
                                       "CFail",
                                       false,
                                       {},
                                       {},
                                       {Refresh::Status, Refresh::Colours, Refresh::Enabled}};
    static constexpr PropertyRow DataNotAvailable{"DataNotAvailable",
                                                  field<&Control::m_status, &Status::dataNotAvailable>,
                                                  "DataNotAvailable",
                                                  false,
                                                  {},
                                                  {},
                                                  {Refresh::Status}};
    static constexpr PropertyRow DeviceTagNotFound{"DeviceTagNotFound",
                                                   field<&Control::m_status, &Status::deviceTagNotFound>,
                                                   "DeviceTagNotFound",
                                                   false,
                                                   {},
                                                   {},
                                                   {Refresh::Status, Refresh::Enabled}};
    static constexpr PropertyRow WaitingForData{
        "WaitingForData",  field<&Control::m_status, &Status::waitingForData>, "WaitingForData", false, {}, {},
        {Refresh::Enabled}};
    static constexpr PropertyRow DataChanged{
        "DataChanged",    field<&Control::m_status, &Status::dataChanged>, "DataChanged", false, {}, {},
        {Refresh::Status}};
    // The flag follows every keystroke; the container is not told.
    static constexpr PropertyRow DataModified{"DataModified",
                                              field<&Control::m_status, &Status::dataModified>,
                                              "DataModified",
                                              false,
                                              {},
                                              Access::Silent,
                                              {Refresh::Colours}};
    static constexpr PropertyRow DeviceTypeNotSupported{"DeviceTypeNotSupported",
                                                        field<&Control::m_status, &Status::deviceTypeNotSupported>,
                                                        "DeviceTypeNotSupported",
                                                        false,
                                                        {},
                                                        {},
                                                        {Refresh::Support}};
    static constexpr PropertyRow DeviceVerNotSupported{"DeviceVerNotSupported",
                                                       field<&Control::m_status, &Status::deviceVerNotSupported>,
                                                       "DeviceVerNotSupported",
                                                       false,
                                                       {},
                                                       {},
                                                       {Refresh::Support}};
    static constexpr PropertyRow EnableControl{
        "EnableControl",   field<&Control::m_status, &Status::enableControl>, "EnableControl", true, {}, {},
        {Refresh::Enabled}};
    static constexpr PropertyRow ReadOnly{
        "ReadOnly", field<&Control::m_status, &Status::readOnly>, "ReadOnly", false, {}, {}, {Refresh::Colours}};
    static constexpr PropertyRow IconEnable{"IconEnable", field<&Control::m_status, &Status::iconEnable>,
                                            "IconEnable", true};

    // --- Messages
    static constexpr PropertyRow MsgCfail{"MsgCfail",
                                          field<&Control::m_messages, &Messages::cFail>,
                                          "MsgCfail",
                                          std::string_view("Communication Failure !"),
                                          {},
                                          {},
                                          {Refresh::Status}};
    static constexpr PropertyRow MsgDataNotAvailable{"MsgDataNotAvailable",
                                                     field<&Control::m_messages, &Messages::dataNotAvailable>,
                                                     "MsgDataNotAvailable",
                                                     std::string_view("Data Not Available"),
                                                     {},
                                                     {},
                                                     {Refresh::Status}};
    static constexpr PropertyRow MsgDeviceTagNotFound{"MsgDeviceTagNotFound",
                                                      field<&Control::m_messages, &Messages::deviceTagNotFound>,
                                                      "MsgDeviceTagNotFound",
                                                      std::string_view("Identifier Look Up Failed"),
                                                      {},
                                                      {},
                                                      {Refresh::Status}};
    static constexpr PropertyRow MsgDefault{"MsgDefault",
                                            field<&Control::m_messages, &Messages::defaultText>,
                                            "MsgDefault",
                                            std::string_view(""),
                                            {},
                                            {},
                                            {Refresh::Status}};
    static constexpr PropertyRow MsgDataChanged{"MsgDataChanged",
                                                field<&Control::m_messages, &Messages::dataChanged>,
                                                "MsgDataChanged",
                                                std::string_view("Data Changed by other user "),
                                                {},
                                                {},
                                                {Refresh::Status}};
    static constexpr PropertyRow MessageHeader{
        "MessageHeader", field<&Control::m_messages, &Messages::header>, {}, std::string_view("Zor"), {},
        Access::Silent};

    // --- States, in the order of their precedence
    static constexpr StatusRow CommunicationFailure{
        [](const Control& control) { return control.CFail(); },
        [](const Control& control, std::string& text) { text += control.MsgCfail(); }, frm_Container::Error,
        [](const Control& control, std::string& text) { text.append(control.MsgCfail()).append("\r\n"); },
        platform::BoxIcon::Critical};
    static constexpr StatusRow TagNotFound{
        [](const Control& control) { return control.DeviceTagNotFound(); },
        [](const Control& control, std::string& text) { text += control.MsgDeviceTagNotFound(); },
        frm_Container::NotFound,
        [](const Control& control, std::string& text) {
            text.append(control.MsgDeviceTagNotFound()).append(" : \r\n").append(control.DeviceTag());
        },
        platform::BoxIcon::Information};
    static constexpr StatusRow NoData{
        [](const Control& control) { return control.DataNotAvailable(); },
        [](const Control& control, std::string& text) { text += control.MsgDataNotAvailable(); },
        frm_Container::Warning,
        [](const Control& control, std::string& text) {
            text.append(control.MsgDataNotAvailable()).append("\r\n");
        },
        platform::BoxIcon::Exclamation};
    /// Whether another user's change waits for the operator's acknowledgement.
    static bool isDataChanged(const Control& control) noexcept { return control.m_status.dataChanged; }
};

} // namespace zor::core
