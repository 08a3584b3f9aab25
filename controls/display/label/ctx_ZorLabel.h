#pragma once

/// The label: one device parameter as plain text, for reading only.

#include <zor/controls/display/label/label_events.h>
#include <zor/core/control.h>

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace zor {

/// A caption with a state icon right of it. The host writes the text; nothing is converted, formatted or handed
/// back.
class ctx_ZorLabel final : public core::Control {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorLabel> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    using Control::IconEnable;

    /// The text from the device, shown as it is. The state icon stays where it stands.
    [[nodiscard]] const std::string& DeviceValue() const noexcept { return m_deviceValue; }
    void DeviceValue(std::string_view value);
    /// The caption itself: reads what is shown, whichever of the two was written last. Writing places the icon
    /// behind the new text.
    [[nodiscard]] std::string LabelCaption() const { return m_label->caption(); }
    void LabelCaption(std::string_view value);
    [[nodiscard]] bool LabelFontItalic() const { return m_label->isItalic(); }
    void LabelFontItalic(bool value) { m_label->setItalic(value); }
    /// Holds until the next write of CFail: a failure shows in bold.
    [[nodiscard]] bool LabelFontBold() const { return m_label->isBold(); }
    void LabelFontBold(bool value) { m_label->setBold(value); }
    /// Surface and caption.
    void s_ChangeBackColor(Colour l_ColorValue) override;

    using Control::subscribe;
    using Control::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorLabel& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorLabel& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        lbl_Label = 1, ///< the text
        img_State = 2, ///< the state icon; a click explains the state
    };
    [[nodiscard]] platform::Widget* widget(int number) noexcept override;

private:
    struct Rows;
    struct Tables;

    explicit ctx_ZorLabel(platform::Container& container);
    ~ctx_ZorLabel() override = default;

    void showWrittenCaption();
    void s_PlaceIcon();
    void s_UpdateColors() override;
    void s_UpdateDeviceSupportDisplay() override;
    void s_Layout() override { s_PlaceIcon(); }
    void s_AfterLoading() override;
    [[nodiscard]] std::span<platform::Widget* const> body() noexcept override { return m_body; }
    [[nodiscard]] platform::Image& icon() noexcept override { return *m_icon; }
    void onNotice(int widget, platform::Notice notice, platform::EventArgs args) override;

    std::unique_ptr<platform::Label> m_label;
    std::unique_ptr<platform::Image> m_icon;
    std::array<platform::Widget*, 1> m_body;
    std::string m_deviceValue;
    /// On its way to the caption widget, which keeps it.
    std::string m_writtenCaption;
};

} // namespace zor
