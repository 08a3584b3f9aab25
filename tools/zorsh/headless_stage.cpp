#include <zor/platform/headless/operator.h>
#include <zor/platform/headless/page_frame.h>
#include <zor/tools/zorsh/stage.h>

namespace zor::console {
namespace {

class HeadlessStage final : public Stage {
public:
    HeadlessStage()
    {
        m_container.onPropertyChanged = [this](platform::Component& component, std::string_view name) {
            onPropertyChanged(component, name);
        };
        m_container.onMessage = [this](platform::Component&, const platform::MessageBox& box) { onMessage(box); };
    }

    platform::Container& container() override { return m_container; }
    platform::Operator& hands() override { return m_operator; }
    platform::PopupMenu* openMenu() override { return m_container.openMenu(); }
    void setUserMode(bool userMode) override { m_container.setUserMode(userMode); }
    std::unique_ptr<platform::PageFrame> createPageFrame() override
    {
        return std::make_unique<platform::headless::HeadlessPageFrame>();
    }

private:
    platform::headless::HeadlessContainer m_container;
    platform::headless::HeadlessOperator m_operator{m_container};
};

} // namespace

std::unique_ptr<Stage> headlessStage() { return std::make_unique<HeadlessStage>(); }

} // namespace zor::console
