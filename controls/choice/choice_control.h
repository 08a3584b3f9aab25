#pragma once

/// What the four choice controls are alike in: a 32-bit value that the operator changes through one widget,
/// a state icon beside it, and an undo of the change.

#include <zor/core/control.h>

#include <array>
#include <cstdint>
#include <memory>

namespace zor::controls {

/// Numbers of a choice control's widgets.
enum ChoiceWidget : int { kFace = 1, kState = 2 };

/// A choice control without a kind. The widget that the operator works, its face, is the derived class's own;
/// so is everything that a value, a click or an undo does with it.
class ChoiceControl : public core::Control {
public:
    using Control::DataChanged;
    using Control::DataModified;
    using Control::IconEnable;
    using Control::MsgDataChanged;
    using Control::ReadOnly;

    /// The raw value from the device.
    [[nodiscard]] std::int32_t DeviceValue() const noexcept { return m_deviceValue; }
    void DeviceValue(std::int32_t value);
    /// The value to write to the device. Writing raises ReadOnly in user mode and is ignored at design time.
    [[nodiscard]] std::int32_t OutputValue() const noexcept { return m_outputValue; }
    void OutputValue(std::int32_t value);
    /// Reading gives OutputValue; writing makes the host's choice for the operator.
    [[nodiscard]] std::int32_t ModifiedValue() const noexcept { return m_outputValue; }
    void ModifiedValue(std::int32_t value);

    using Control::subscribe;
    using Control::unsubscribe;

    [[nodiscard]] platform::Widget* widget(int number) noexcept override;
    [[nodiscard]] platform::PopupMenu* menu() override { return &m_undo.menu(); }

protected:
    /// Where a release of the right mouse button offers the undo.
    enum class UndoAt : std::uint8_t { Surface, SurfaceAndFace };

    ChoiceControl(const core::ClassInfo& info, platform::Container& container, platform::Rect designed,
                  UndoAt undoAt);
    ~ChoiceControl() override = default;
    /// Takes the face on; the last thing before the control is ready.
    void adopt(platform::FontWidget& face);

    /// @name What a class makes of a value and of its operator
    /// @{
    virtual void s_ApplyDeviceValue() = 0;
    virtual void s_ApplyModifiedValue(std::int32_t value) = 0;
    /// The face reports a change, the operator's or the control's own.
    virtual void s_HandleClick() = 0;
    virtual void s_UndoEdit() = 0;
    /// @}

    /// Fore colour and boldness of the face, and whether the operator is locked out.
    void s_UpdateColors() override;
    void s_UpdateDeviceSupportDisplay() override;
    void s_AfterLoading() override;
    void onNotice(int widget, platform::Notice notice, platform::EventArgs args) override;
    [[nodiscard]] std::span<platform::Widget* const> body() noexcept override { return m_body; }
    [[nodiscard]] platform::Image& icon() noexcept override { return *m_icon; }
    [[nodiscard]] bool isInputLocked() const noexcept { return m_inputLocked; }
    /// Sets OutputValue and tells the host.
    void assignOutput(std::int32_t value);

    std::int32_t m_deviceValue = 0;
    std::int32_t m_outputValue = 0;
    /// The device value last applied, or read: an edit is judged against it and undo returns to it.
    std::int32_t m_reference = 0;

private:
    friend struct ChoiceRows;

    void offerUndo(platform::Widget& widget, platform::EventArgs mouse);

    std::unique_ptr<platform::Image> m_icon;
    core::UndoMenu m_undo;
    platform::FontWidget* m_face = nullptr;
    std::array<platform::Widget*, 1> m_body{};
    UndoAt m_undoAt;
    /// Until the colours are first worked out, nobody may work the control.
    bool m_inputLocked = true;
};

} // namespace zor::controls
