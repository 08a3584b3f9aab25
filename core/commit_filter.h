#pragma once

/// Tells what an operator hands over from all else that OutputValueChange is raised for.

#include <zor/platform/variant.h>

#include <optional>

namespace zor::core {

class Control;
struct PropertyRow;

/// Beside the sink of one control, and asked in each of its OutputValueChange. That event also comes with every
/// value of the device's, with what the host writes, and when the operator only passes through a field, which an
/// up-down then hands over as it shows it, rounded. `DataModified` alone does not tell either: an operator who
/// takes his entry back before the device has confirmed it means the device's value again, and a slider tells of a
/// value before it is marked.
class CommitFilter {
public:
    /// Of a control that must outlive it. One without OutputValue never commits anything.
    explicit CommitFilter(Control& control) noexcept;

    /// In a handler of OutputValueChange, once each time: the value to write to the device, in the device's unit,
    /// where the operator has handed over another one than this was told of last: another one than the device's,
    /// or the device's own again after an entry of his. A slider that is being dragged hands over each place it
    /// passes; what a host writes to the device is for the host to slow down.
    [[nodiscard]] std::optional<Variant> take();
    /// What was handed over has not reached the device, or a value of the device's has come that raised no
    /// OutputValueChange, for it could not be shown: an edit that still stands is handed over anew when the
    /// operator leaves it the next time.
    void forget() noexcept;

private:
    Control& m_control;
    const PropertyRow* m_output;   ///< nullptr for a control that hands nothing over
    const PropertyRow* m_device;   ///< with it
    const PropertyRow* m_own;      ///< with it: what it hands over, as m_device is read
    const PropertyRow* m_modified; ///< with it
    bool m_isField;                ///< it is passed through
    std::optional<Variant> m_last; ///< what the event told of before
    bool m_isCommitted = false;    ///< an edit has been handed over since the device's value came
};

} // namespace zor::core
