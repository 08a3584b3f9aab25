#pragma once

/// A property page at work.

#include <zor/core/control.h>
#include <zor/pages/page_info.h>
#include <zor/platform/property_page.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zor::pages {

/// Shows the settings of a control and writes them back, through its public properties by name only. Of several
/// selected controls the first is shown and written.
class Page final : public platform::PropertyPage, public platform::WidgetListener, public core::EventSink {
public:
    /// A page with nothing selected, in a frame that must outlive it, as its class must.
    Page(const PageInfo& info, platform::PageFrame& frame);
    ~Page();
    Page(const Page&) = delete;
    Page& operator=(const Page&) = delete;

    /// The class of the page.
    [[nodiscard]] const PageInfo& info() const noexcept { return m_info; }
    [[nodiscard]] std::string_view caption() const noexcept override { return m_info.caption; }
    [[nodiscard]] platform::Surface& surface() noexcept override { return *m_surface; }

    /// The selection changed: reads the first control; what was not applied is dropped. Raises NoSuchMember, and
    /// leaves the page as it is, when the page is not made for that control's class. The page notices when the
    /// control ends: nothing is selected then.
    void select(std::span<core::Control* const> controls);
    /// The control that is shown; nullptr when nothing is selected.
    [[nodiscard]] core::Control* control() const noexcept { return m_control; }
    /// Raises ObjectRequired when nothing is selected. The page must outlive it: neither who hears of a write nor
    /// a handler of the control may end the page.
    void apply() override;
    /// Whether the page shows something that has not been applied.
    [[nodiscard]] bool isChanged() const noexcept { return m_frame.isChanged(); }

    /// Takes the place of setProperty(), for a form designer that records what is written.
    std::function<void(core::Control&, std::string_view property, const Variant& value)> onWrite;
    /// After an Apply.
    std::function<void(core::Control&)> onApplied;

    /// A widget of the page by its name, nullptr for another name. Captions are named as their fields, with lbl_.
    [[nodiscard]] platform::Widget* widget(std::string_view name) noexcept;
    /// The names of its widgets, captions included.
    [[nodiscard]] std::vector<std::string> widgetNames() const;

    /// @name For the fields' own rules
    /// A field that the page has not, or that is of another kind, is not ticked, has no position and takes no
    /// choice.
    /// @{
    /// Apply is to write a property of the selected control.
    void write(std::string_view property, const Variant& value);
    /// Whether a check box is ticked.
    [[nodiscard]] bool isTicked(const Field& check) const noexcept;
    /// The chosen position of a list, -1 for none.
    [[nodiscard]] std::int32_t position(const Field& list) const noexcept;
    /// Chooses a position of a list. Raises SubscriptOutOfRange beyond it.
    void choose(const Field& list, std::int32_t position);
    /// @}

    /// A widget of the page reports.
    void notice(int widget, platform::Notice notice, platform::EventArgs args) override;
    [[nodiscard]] platform::Spoken spoken(int widget) override;
    // No report of a page's widget reaches anybody who could end the page.
    void hold() noexcept override {}
    /// Nothing to hold.
    void release() noexcept override {}
    /// The selected control's events do not concern the page.
    void event(core::Control& /*control*/, const core::EventRow& /*row*/, platform::EventArgs /*args*/) override {}
    void ended(core::Control& control) noexcept override;

private:
    enum Part : int { kInput, kSpin, kCaption, kParts };

    /// A field with the widgets it has on this page.
    struct Entry {
        const Field* field;
        std::unique_ptr<platform::Label> caption;
        std::unique_ptr<platform::TextField> text;
        std::unique_ptr<platform::ComboBox> list;
        std::unique_ptr<platform::CheckBox> check;
        std::unique_ptr<platform::SpinButton> spin;
        std::int32_t chosen = -1; ///< of the list, as the page knows it

        [[nodiscard]] platform::Widget& input() const;
    };

    /// What Apply writes, in that order.
    using Writes = std::vector<std::pair<std::string_view, Variant>>;

    void create(const Field& field);
    void arrange();
    [[nodiscard]] const Entry* entry(const Field& field) const noexcept;

    void show(Entry& entry, const Variant& value);
    void acceptNumber(const Entry& entry);
    void acceptNumbers();
    void collect(const Entry& entry);
    void updateUsable();
    void setControl(core::Control* control);

    const PageInfo& m_info;
    platform::PageFrame& m_frame;
    std::unique_ptr<platform::Surface> m_surface;
    std::vector<Entry> m_entries;
    core::Control* m_control = nullptr;
    /// The number field that Apply has taken over as it was left: leaving it after that is no second time.
    const Entry* m_accepted = nullptr;
    Writes m_writes; ///< of the Apply under way
    bool m_isShowing = false;
};

} // namespace zor::pages
