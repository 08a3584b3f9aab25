#pragma once

/// What every control keeps of the parameter that it shows.

#include <zor/core/shared_text.h>
#include <zor/platform/macros_aside.h>
#include <zor/platform/widgets.h>
#include <zor/units/unit_types.h>

#include <cstdint>
#include <string>

namespace zor::core {

/// Which parameter of which devices a control shows. The three lists are comma-separated and parallel.
struct Binding {
    std::string deviceTag;
    std::string deviceType;
    std::string deviceVersion;
    std::string typesSupported;
    std::string minVersions;
    std::string maxVersions;
    REGISTER_TYPE registerType = HoldingRegister;
    std::int16_t typeIndex = 0; ///< position of deviceType in typesSupported, -1 when it is not there
};

/// In twips: the state icon is a square of this size.
inline constexpr platform::Twips kIconSize = 285;
inline constexpr platform::Twips kIconTop = 25; ///< In twips: from the top of a control of one line to its icon.

/// The flags that decide what the operator sees. A control that does not publish one never sets it.
struct Status {
    bool cFail = false;
    bool dataNotAvailable = false;
    bool deviceTagNotFound = false;
    bool waitingForData = false;
    bool dataChanged = false;
    bool dataModified = false;
    bool deviceTypeNotSupported = false;
    bool deviceVerNotSupported = false;
    bool enableControl = true;
    bool readOnly = false;
    bool iconEnable = true;
};

/// The texts every control has, and the one that all editing controls add.
struct Messages {
    SharedText header = shared<"Zor">();
    SharedText cFail = shared<"Communication Failure !">();
    SharedText dataNotAvailable = shared<"Data Not Available">();
    SharedText deviceTagNotFound = shared<"Identifier Look Up Failed">();
    SharedText defaultText = shared<"">();
    SharedText dataChanged = shared<"Data Changed by other user ">();
};

} // namespace zor::core

#include <zor/platform/macros_back.h>
