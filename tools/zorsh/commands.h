#pragma once

/// The commands, aspects and actions of the console: three tables.

#include <zor/tools/zorsh/session.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace zor::console {

/// The words behind a command's name, and the whole line without its comment.
struct Call {
    std::span<const std::string_view> words;
    std::string_view line;

    [[nodiscard]] std::string_view operator[](std::size_t i) const { return words[i]; }
    /// The line from a word on.
    [[nodiscard]] std::string_view from(std::size_t i) const
    {
        return line.substr(static_cast<std::size_t>(words[i].data() - line.data()));
    }
};

struct Command {
    std::string_view name;
    std::string_view usage;
    std::string_view help;
    std::size_t least; ///< number of words behind the name
    std::size_t most;
    void (*run)(Session&, const Call&);
};

[[nodiscard]] std::span<const Command> commands() noexcept;

/// A value that was read: a variant, and how it is printed.
struct Reading {
    enum class Form : std::uint8_t { Value, Colour, Word };

    Variant value;
    Form form = Form::Value;
};

[[nodiscard]] std::string print(const Reading& reading);

/// The value behind NAME.PROPERTY or NAME.WIDGET.ASPECT.
[[nodiscard]] Reading read(Session& session, std::string_view path);

/// What the operator sees of a widget. Raises NoSuchMember for an aspect the widget has not.
[[nodiscard]] Reading aspect(const platform::Widget& widget, std::string_view name);

/// The operator acts on a control's widget or its menu, or on any widget; prints a refusal.
void act(Session& session, core::Control& control, std::string_view widget,
         std::span<const std::string_view> arguments);
void act(Session& session, platform::Widget& widget, std::span<const std::string_view> arguments);

/// Gives a control its place on the form, as its container does.
void place(core::Control& control, const platform::Rect& area);

void openForm(Session& session, const Call& call);
void saveForm(Session& session, const Call& call);

/// Evaluates a sum over numbers and paths.
[[nodiscard]] double evaluate(std::string_view expression, Session& session);

/// Prints the tables of a class of controls or pages, or the names of all.
void describe(Session& session, const core::ClassInfo& info);
void describe(Session& session, const pages::PageInfo& info);
void describeAll(Session& session);

/// NAME and what stands behind the first point. Raises ObjectRequired for an unknown NAME, InvalidCall when
/// there is nothing behind it.
[[nodiscard]] std::pair<Session::Object&, std::string_view> resolve(Session& session, std::string_view path);

/// The widget of a control or a page by name. Raises ObjectRequired.
[[nodiscard]] platform::Widget& widgetNamed(core::Control& control, std::string_view name);
[[nodiscard]] platform::Widget& widgetNamed(pages::Page& page, std::string_view name);

/// The page in front of the first point of a path and what stands behind it; nullptr when no page goes by the
/// name. Raises InvalidCall when there is nothing behind it.
[[nodiscard]] std::pair<pages::Page*, std::string_view> resolvePage(Session& session, std::string_view path);

/// The name by which a control's pop-up menu goes.
inline constexpr std::string_view kMenuName = "mnu_Edit";

} // namespace zor::console
