#include <zor/platform/headless/container.h>
#include <zor/platform/headless/entry_lists.h>
#include <zor/platform/headless/menu.h>
#include <zor/platform/headless/simple_widgets.h>
#include <zor/platform/headless/text_field.h>
#include <zor/platform/headless/text_metrics.h>

namespace zor::platform::headless {
namespace {

class SurfaceHost : public Host {
public:
    SurfaceHost(HeadlessContainer& container, WidgetListener& listener)
        : Host(listener, container.failures()), m_container(container)
    {}

    [[nodiscard]] Widget* focused() const noexcept override { return m_container.focused(); }
    void setFocused(Widget* widget) noexcept override { m_container.setFocused(widget); }
    void forget(const Widget& widget) noexcept override { m_container.forget(widget); }

protected:
    HeadlessContainer& m_container;
};

/// A control's area. The host is a base so that it outlives the widget's own end.
class HeadlessSurface final : public SurfaceHost, public WidgetBase<Surface> {
public:
    HeadlessSurface(HeadlessContainer& container, WidgetListener& listener, Twips width, Twips height)
        : SurfaceHost(container, listener), WidgetBase(static_cast<Host&>(*this), kSurfaceWidget, ButtonFace)
    {
        m_geometry = {0, 0, width, height};
    }

    [[nodiscard]] std::unique_ptr<TextField> createTextField(int widget) override
    {
        return std::make_unique<HeadlessTextField>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<Label> createLabel(int widget) override
    {
        return std::make_unique<HeadlessLabel>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<Image> createImage(int widget, bool isVisible) override
    {
        auto image = std::make_unique<HeadlessImage>(*this, widget);
        image->setVisible(isVisible);
        return image;
    }
    [[nodiscard]] std::unique_ptr<SpinButton> createSpinButton(int widget) override
    {
        return std::make_unique<HeadlessSpinButton>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<Track> createTrack(int widget) override
    {
        return std::make_unique<HeadlessTrack>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<ComboBox> createComboBox(int widget) override
    {
        return std::make_unique<HeadlessComboBox>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<ListBox> createListBox(int widget) override
    {
        return std::make_unique<HeadlessListBox>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<CheckBox> createCheckBox(int widget) override
    {
        return std::make_unique<HeadlessCheckBox>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<OptionButton> createOptionButton(int widget) override
    {
        return std::make_unique<HeadlessOptionButton>(*this, widget);
    }
    [[nodiscard]] std::unique_ptr<PopupMenu> createMenu(std::span<const MenuItem> items) override
    {
        return std::make_unique<HeadlessMenu>(m_container, *this, items);
    }
    [[nodiscard]] Twips textWidth(std::string_view text, bool bold) const override
    {
        return headless::textWidth(text, bold);
    }
};

} // namespace

std::unique_ptr<Surface> HeadlessContainer::createSurface(WidgetListener& listener, Twips width, Twips height)
{
    return std::make_unique<HeadlessSurface>(*this, listener, width, height);
}

PopupMenu* HeadlessContainer::openMenu() const noexcept { return m_openMenu; }

} // namespace zor::platform::headless
