#pragma once

/// What all headless widgets share: plain state behind the interfaces.

#include <zor/platform/failures.h>
#include <zor/platform/widgets.h>

#include <exception>
#include <memory>
#include <string>

namespace zor::platform::headless {

/// What a widget needs of the surface it stands on.
class Host {
public:
    Host(WidgetListener& listener, Failures& failures) noexcept : m_listener(listener), m_failures(failures) {}
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    [[nodiscard]] WidgetListener& listener() const noexcept { return m_listener; }
    /// Those of the container, which outlive the surface.
    [[nodiscard]] Failures& failures() const noexcept { return m_failures; }
    /// The widget of the window that has its focus; nullptr for none.
    [[nodiscard]] virtual Widget* focused() const noexcept = 0;
    virtual void setFocused(Widget* widget) noexcept = 0;
    /// The widget ends: it neither has the focus nor gets it back.
    virtual void forget(const Widget& widget) noexcept = 0;

protected:
    ~Host() = default;

private:
    WidgetListener& m_listener;
    Failures& m_failures;
};

/// What the operator needs of a widget without knowing its kind.
class HeadlessWidget {
public:
    virtual ~HeadlessWidget() = default;
    [[nodiscard]] virtual Host& host() const noexcept = 0;
    [[nodiscard]] virtual int number() const noexcept = 0;
    void report(Notice notice, EventArgs args = {}) const
    {
        // A handler may end the control, and this widget with it.
        const Host& surface = host();
        Failures& failures = surface.failures();
        try {
            surface.listener().notice(number(), notice, args);
        } catch (...) {
            failures.add(std::current_exception());
        }
    }
};

/// What the arrow keys of a field step.
class Stepper {
public:
    virtual void step(bool up) = 0;

protected:
    ~Stepper() = default;
};

template <class Interface>
class WidgetBase : public Interface, public HeadlessWidget {
public:
    WidgetBase(Host& host, int number, Colour backColour)
        : m_host(host), m_number(number), m_backColour(backColour)
    {}
    ~WidgetBase() override { m_host.forget(*this); }
    WidgetBase(const WidgetBase&) = delete;
    WidgetBase& operator=(const WidgetBase&) = delete;

    [[nodiscard]] Rect geometry() const override { return m_geometry; }
    void setGeometry(const Rect& geometry) override { m_geometry = geometry; }
    [[nodiscard]] bool isVisible() const override { return m_visible; }
    void setVisible(bool visible) override { m_visible = visible; }
    [[nodiscard]] bool isEnabled() const override { return m_enabled; }
    void setEnabled(bool enabled) override { m_enabled = enabled; }
    [[nodiscard]] Colour backColour() const override { return m_backColour; }
    void setBackColour(Colour colour) override { m_backColour = colour; }
    [[nodiscard]] std::string toolTip() const override { return m_toolTip ? *m_toolTip : std::string(); }
    void setToolTip(std::string_view text) override
    {
        if (m_toolTip)
            *m_toolTip = text;
        else if (!text.empty())
            m_toolTip = std::make_unique<std::string>(text);
    }

    [[nodiscard]] Host& host() const noexcept override { return m_host; }
    [[nodiscard]] int number() const noexcept override { return m_number; }

protected:
    Rect m_geometry;

private:
    Host& m_host;
    std::unique_ptr<std::string> m_toolTip; ///< made with the first: most widgets never have one
    int m_number;
    Colour m_backColour;
    bool m_visible = true;
    bool m_enabled = true;
};

template <class Interface>
class FontBase : public WidgetBase<Interface> {
public:
    using WidgetBase<Interface>::WidgetBase;

    [[nodiscard]] Colour foreColour() const override { return m_foreColour; }
    void setForeColour(Colour colour) override { m_foreColour = colour; }
    [[nodiscard]] bool isBold() const override { return m_bold; }
    void setBold(bool bold) override { m_bold = bold; }
    [[nodiscard]] bool isItalic() const override { return m_italic; }
    void setItalic(bool italic) override { m_italic = italic; }

private:
    Colour m_foreColour = ButtonText;
    bool m_bold = false;
    bool m_italic = false;
};

} // namespace zor::platform::headless
