#pragma once

/// A form, its controls by name, and the commands that work on them.

#include <zor/core/control.h>
#include <zor/forms/form.h>
#include <zor/pages/page.h>
#include <zor/platform/depth.h>
#include <zor/tools/zorsh/recorder.h>
#include <zor/tools/zorsh/stage.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zor::console {

/// One line that a command printed.
struct OutputLine {
    enum class Kind : std::uint8_t { Answer, Error, Refusal };

    std::string text;
    Kind kind = Kind::Answer;
};

/// Runs commands. An error is a line "error NUMBER text" of the command's output.
class Session {
public:
    explicit Session(std::unique_ptr<Stage> stage);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Runs one line and returns what it printed. Never throws for what is in the line.
    [[nodiscard]] std::vector<OutputLine> run(std::string_view line);
    /// After `quit`.
    [[nodiscard]] bool hasEnded() const noexcept { return m_ended; }

    /// Words that start like this one: commands, classes, controls, their members and widgets.
    [[nodiscard]] std::vector<std::string> completions(std::string_view word) const;

    /// @name For the commands
    /// @{
    struct Object {
        core::ControlPtr<> control;
        std::shared_ptr<Recorder> recorder;
        std::size_t number = 0; ///< order of creation
    };
    using Objects = std::map<std::string, Object, std::less<>>;

    void print(std::string line, OutputLine::Kind kind = OutputLine::Kind::Answer)
    {
        m_output.push_back({std::move(line), kind});
    }
    /// Runs a command inside another; its output joins the other's.
    void runInside(std::string_view line);
    /// Runs something and prints the error it raises.
    void guard(const std::function<void()>& action);

    /// Raises ObjectRequired for a name that is none.
    [[nodiscard]] Object& object(std::string_view name);
    [[nodiscard]] core::Control& control(std::string_view name) { return *object(name).control; }
    [[nodiscard]] const core::ClassInfo& classNamed(std::string_view name) const;
    /// Creates a control under a new name; `prepare` initialises or reads it. When that fails there is no control.
    void create(const core::ClassInfo& info, std::string_view name,
                const std::function<void(core::Control&)>& prepare);
    /// Destroys a control or closes a page.
    void destroy(std::string_view name);
    /// Whether a control or a page may have the name.
    [[nodiscard]] bool isFree(std::string_view name) const { return objection(name).empty(); }
    /// The form that was opened last, or an empty one.
    [[nodiscard]] forms::Form& form();
    void setForm(forms::Form form) { m_form = std::move(form); }
    [[nodiscard]] const core::ClassRegistry& classes() const noexcept { return m_registry; }
    [[nodiscard]] const pages::PageRegistry& pageClasses() const noexcept { return m_pageRegistry; }

    /// Opens a property page under a new name on some controls.
    void openPage(std::string_view pageClass, std::string_view name, std::span<core::Control* const> controls);
    /// The page of a name; nullptr for a name that is no page's.
    [[nodiscard]] pages::Page* page(std::string_view name) const noexcept;

    [[nodiscard]] const Objects& objects() const noexcept { return m_objects; }
    [[nodiscard]] Stage& stage() noexcept { return *m_stage; }
    /// The message boxes shown since the last call.
    [[nodiscard]] std::vector<std::string> takeBoxes() { return std::exchange(m_boxes, {}); }
    void end() noexcept { m_ended = true; }
    /// @}

private:
    struct OpenPage {
        std::unique_ptr<platform::PageFrame> frame;
        std::unique_ptr<pages::Page> page;
    };

    void dispatch(std::string_view line);
    /// Why a name cannot be had; nothing when it can.
    [[nodiscard]] std::string objection(std::string_view name) const;
    void requireFree(std::string_view name) const;
    void printError(int number, std::string_view text);

    std::unique_ptr<Stage> m_stage;
    core::ClassRegistry m_registry;
    std::optional<forms::Form> m_form;
    pages::PageRegistry m_pageRegistry;
    Objects m_objects;
    std::map<std::string, OpenPage, std::less<>> m_pages;
    std::map<const platform::Component*, std::shared_ptr<Recorder>> m_recorders;
    std::vector<OutputLine> m_output;
    std::vector<std::string> m_boxes;
    std::size_t m_created = 0;
    platform::Depth m_depth;
    bool m_isRunaway = false;
    bool m_ended = false;
};

} // namespace zor::console
