#pragma once

/// The numbers of the text box's widgets and of the events it raises by itself.

#include <cstddef>

namespace zor::text_box {

enum Widget : int { kText = 1, kUnits = 2, kState = 3 };

/// Published event numbers.
enum Event : std::size_t {
    kInvalidEntrySetTrue = 1,
    kDataModifiedSetTrue = 2,
    kOutputValueChange = 3,
    kTextChange = 7,
};

} // namespace zor::text_box
