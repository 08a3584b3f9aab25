#pragma once

/// The platform a session plays on.

#include <zor/platform/container.h>
#include <zor/platform/operator.h>
#include <zor/platform/property_page.h>

#include <functional>
#include <memory>
#include <span>
#include <string_view>

namespace zor::console {

/// A form of one platform, with an operator in front of it.
class Stage {
public:
    virtual ~Stage() = default;

    [[nodiscard]] virtual platform::Container& container() = 0;
    [[nodiscard]] virtual platform::Operator& hands() = 0;
    [[nodiscard]] virtual platform::PopupMenu* openMenu() = 0;
    virtual void setUserMode(bool userMode) = 0;
    /// The colours of the system that the operator chose, where the platform has any; light at first.
    virtual void setTheme(bool /*isDark*/) {}
    /// A frame for a property page, shown beside the form; it ends before the stage.
    [[nodiscard]] virtual std::unique_ptr<platform::PageFrame> createPageFrame() = 0;
    /// Lets pending events of the platform happen.
    virtual void settle() {}
    /// Runs an action; then throws what a control has thrown into the platform's event loop meanwhile.
    virtual void during(const std::function<void()>& action) { action(); }

    std::function<void(platform::Component&, std::string_view)> onPropertyChanged;
    std::function<void(const platform::MessageBox&)> onMessage;
};

/// A platform that this program was built with.
struct PlatformRow {
    std::string_view name;
    /// What must live as long as stages of the platform do; may be empty.
    std::shared_ptr<void> (*start)();
    std::unique_ptr<Stage> (*createStage)();
};

/// The default stands first.
[[nodiscard]] std::span<const PlatformRow> platforms() noexcept;

[[nodiscard]] std::unique_ptr<Stage> headlessStage();

} // namespace zor::console
