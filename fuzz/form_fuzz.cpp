#include <zor/core/control.h>
#include <zor/forms/form.h>
#include <zor/forms/form_error.h>
#include <zor/fuzz/target.h>
#include <zor/platform/headless/container.h>

namespace zor::fuzz {
namespace {

/// The form opened, its controls filled and stored, as it is written then.
std::string written(std::string_view text)
{
    platform::headless::HeadlessContainer container;
    forms::Form form = forms::Form::parse(classes(), text, "input");
    std::vector<core::ControlPtr<>> controls;
    constexpr std::size_t kMost = 50;
    for (std::size_t i = 0; i < form.items().size() && i < kMost; ++i) {
        controls.push_back(form.items()[i].info->create(container));
        controls.back()->initialiseProperties();
        form.fill(i, *controls.back());
        form.store(form.items()[i].name, *controls.back(), container);
    }
    return form.text();
}

/// What was written and is opened and written once more must not differ.
std::string play(std::string_view input)
{
    std::string first;
    try {
        first = written(input);
    } catch (const forms::FormError&) {
        return {};
    }
    const std::string second = written(first);
    return first == second ? std::string() : "written twice, it differs:\n" + first + "\n---\n" + second;
}

const Registered kForm({"form", play});

} // namespace
} // namespace zor::fuzz
