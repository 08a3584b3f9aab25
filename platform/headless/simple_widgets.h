#pragma once

/// Label, image, check box, option button, spin button, track and menu.

#include <zor/platform/headless/text_field.h>
#include <zor/platform/headless/text_metrics.h>
#include <zor/platform/headless/widget_base.h>
#include <zor/platform/whole_range.h>

#include <algorithm>

namespace zor::platform::headless {

class HeadlessLabel final : public FontBase<Label> {
public:
    HeadlessLabel(Host& host, int number) : FontBase(host, number, ButtonFace) { m_geometry.height = kLineHeight; }

    void setGeometry(const Rect& geometry) override
    {
        const Twips width = m_geometry.width;
        m_geometry = geometry;
        m_geometry.width = width;
    }
    void setBold(bool bold) override
    {
        FontBase::setBold(bold);
        fit();
    }
    [[nodiscard]] std::string caption() const override { return m_caption; }
    void setCaption(std::string_view caption) override
    {
        if (m_caption == caption)
            return;
        m_caption = caption;
        fit();
        report(Notice::Change);
    }
    // There is no clipboard to copy to.
    void setSelectable(bool /*selectable*/) override {}

private:
    void fit() { m_geometry.width = textWidth(m_caption, isBold()); }

    std::string m_caption;
};

class HeadlessImage final : public WidgetBase<Image> {
public:
    HeadlessImage(Host& host, int number) : WidgetBase(host, number, ButtonFace) { m_geometry = {0, 0, 285, 285}; }

    [[nodiscard]] int picture() const override { return m_picture; }
    void setPicture(int index) override { m_picture = index; }

private:
    int m_picture = 0;
};

/// A check box reports every change, an option button only becoming selected.
template <class Interface, bool ReportsOff>
class HeadlessToggle final : public FontBase<Interface> {
public:
    HeadlessToggle(Host& host, int number) : FontBase<Interface>(host, number, ButtonFace) {}

    [[nodiscard]] std::string caption() const override { return m_caption; }
    void setCaption(std::string_view caption) override { m_caption = caption; }
    [[nodiscard]] bool isOn() const override { return m_on; }
    void setOn(bool on) override
    {
        if (m_on == on)
            return;
        m_on = on;
        if (on || ReportsOff)
            this->report(Notice::Click);
    }
    [[nodiscard]] bool hasFocus() const override { return this->host().focused() == this; }

private:
    std::string m_caption;
    bool m_on = false;
};

using HeadlessCheckBox = HeadlessToggle<CheckBox, true>;
using HeadlessOptionButton = HeadlessToggle<OptionButton, false>;

class HeadlessSpinButton final : public Ranged<WidgetBase<SpinButton>>, public Stepper {
public:
    HeadlessSpinButton(Host& host, int number) : Ranged(host, number, ButtonFace) { m_geometry.width = 240; }

    void setBuddy(TextField& field) override { dynamic_cast<HeadlessTextField&>(field).setStepper(*this); }
    void step(bool up) override
    {
        if (m_range.step(up))
            report(Notice::Change);
        report(up ? Notice::SpinUp : Notice::SpinDown);
    }
};

class HeadlessTrack final : public Ranged<WidgetBase<Track>> {
public:
    HeadlessTrack(Host& host, int number) : Ranged(host, number, ButtonFace) { m_geometry.height = 510; }

    [[nodiscard]] std::int16_t tickStyle() const override { return m_tickStyle; }
    void setTickStyle(std::int16_t style) override { m_tickStyle = style; }
    [[nodiscard]] std::int32_t tickFrequency() const override { return m_tickFrequency; }
    void setTickFrequency(std::int32_t frequency) override { m_tickFrequency = std::max(frequency, 1); }
    [[nodiscard]] std::int32_t tickCount() const override { return platform::tickCount(m_range, m_tickFrequency); }
    [[nodiscard]] bool hasFocus() const override { return host().focused() == this; }

    /// As far as a page, or as the ends allow.
    void moveBy(std::int64_t distance)
    {
        const std::int64_t target = value() + distance;
        setValue(static_cast<std::int32_t>(
            std::clamp<std::int64_t>(target, minimum(), std::max(minimum(), maximum()))));
    }

private:
    std::int32_t m_tickFrequency = 1;
    std::int16_t m_tickStyle = 0;
};

} // namespace zor::platform::headless
