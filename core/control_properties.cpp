// The shared properties as hosts in C++ write them. What a write does stands in the row and in Control::write.

#include <zor/core/control.h>
#include <zor/core/shared_rows.h>

namespace zor::core {

void Control::DeviceTag(std::string_view value) { write(SharedRows::DeviceTag, value); }
void Control::RegisterType(REGISTER_TYPE value) { write(SharedRows::RegisterType, value); }
void Control::DeviceType(std::string_view value) { write(SharedRows::DeviceType, value); }
void Control::DeviceVersion(std::string_view value) { write(SharedRows::DeviceVersion, value); }
void Control::DeviceTypeSupported(std::string_view value) { write(SharedRows::DeviceTypeSupported, value); }
void Control::DeviceMinVersionSupported(std::string_view value)
{
    write(SharedRows::DeviceMinVersionSupported, value);
}
void Control::DeviceMaxVersionSupported(std::string_view value)
{
    write(SharedRows::DeviceMaxVersionSupported, value);
}
void Control::CFail(bool value) { write(SharedRows::CFail, value); }
void Control::DataNotAvailable(bool value) { write(SharedRows::DataNotAvailable, value); }
void Control::DeviceTagNotFound(bool value) { write(SharedRows::DeviceTagNotFound, value); }
void Control::WaitingForData(bool value) { write(SharedRows::WaitingForData, value); }
void Control::DeviceTypeNotSupported(bool value) { write(SharedRows::DeviceTypeNotSupported, value); }
void Control::DeviceVerNotSupported(bool value) { write(SharedRows::DeviceVerNotSupported, value); }
void Control::EnableControl(bool value) { write(SharedRows::EnableControl, value); }
void Control::ReadOnly(bool value) { write(SharedRows::ReadOnly, value); }
void Control::IconEnable(bool value) { write(SharedRows::IconEnable, value); }
void Control::DataChanged(bool value) { write(SharedRows::DataChanged, value); }
void Control::DataModified(bool value) { write(SharedRows::DataModified, value); }
void Control::MessageHeader(std::string_view value) { write(SharedRows::MessageHeader, value); }
void Control::MsgCfail(std::string_view value) { write(SharedRows::MsgCfail, value); }
void Control::MsgDataNotAvailable(std::string_view value) { write(SharedRows::MsgDataNotAvailable, value); }
void Control::MsgDeviceTagNotFound(std::string_view value) { write(SharedRows::MsgDeviceTagNotFound, value); }
void Control::MsgDefault(std::string_view value) { write(SharedRows::MsgDefault, value); }
void Control::MsgDataChanged(std::string_view value) { write(SharedRows::MsgDataChanged, value); }

} // namespace zor::core
