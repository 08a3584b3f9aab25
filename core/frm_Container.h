#pragma once

/// The hidden form that all controls share: the image list with the pictures of the state icon.

#include <zor/platform/macros_aside.h>

#include <array>
#include <string_view>

namespace zor::core {

/// The pictures, as SVG texts; picture 1 stands first.
extern const std::array<std::string_view, 8> pictureData;

} // namespace zor::core

namespace zor {

/// The shared hidden form. The only object that controls have in common.
class frm_Container {
public:
    /// Number of pictures in the image list.
    static constexpr int kPictureCount = static_cast<int>(core::pictureData.size());

    /// The roles of the pictures. A picture is told from the others by its shape alone.
    enum Picture : int {
        NoPicture = 0,
        Error = 1,          ///< communication failure
        Warning = 2,        ///< no data, changed by another user, invalid entry
        NotFound = 3,       ///< identifier not found
        Waiting = 4,        ///< status image: waiting for data
        StatusNotOk = 5,    ///< status image: a bit is set
        StatusOk = 6,       ///< status image: no bit is set
        StatusNotOkAlt = 7, ///< the other pair of status pictures
        StatusOkAlt = 8,
    };

    /// The SVG text of a picture by its 1-based index; empty for any other number.
    [[nodiscard]] static std::string_view picture(int index) noexcept
    {
        return index >= 1 && index <= kPictureCount ? core::pictureData[static_cast<std::size_t>(index - 1)]
                                                    : std::string_view{};
    }
};

} // namespace zor

#include <zor/platform/macros_back.h>
