#pragma once

/// One input of the form reader: for the fuzzer, and for the test that replays its corpus.

#include <zor/controls/registration.h>
#include <zor/core/control.h>
#include <zor/forms/form.h>
#include <zor/forms/form_error.h>
#include <zor/platform/headless/container.h>

#include <string>
#include <string_view>
#include <vector>

namespace zor::fuzz {

/// Opens a form, fills its controls, stores and writes them, and opens what was written. Answers what is wrong
/// with that: a second writing that differs from the first. Empty when all is well or the form is refused.
inline std::string formRound(std::string_view input)
{
    static const core::ClassRegistry classes = [] {
        core::ClassRegistry all;
        registerControls(all);
        return all;
    }();
    const auto written = [](std::string_view text) {
        platform::headless::HeadlessContainer container;
        forms::Form form = forms::Form::parse(classes, text, "input");
        std::vector<core::ControlPtr<>> controls;
        constexpr std::size_t kMost = 50;
        for (std::size_t i = 0; i < form.items().size() && i < kMost; ++i) {
            controls.push_back(form.items()[i].info->create(container));
            controls.back()->initialiseProperties();
            form.fill(i, *controls.back());
            form.store(form.items()[i].name, *controls.back(), container);
        }
        return form.text();
    };
    std::string first;
    try {
        first = written(input);
    } catch (const forms::FormError&) {
        return {};
    }
    const std::string second = written(first);
    return first == second ? std::string() : "written twice, it differs:\n" + first + "\n---\n" + second;
}

} // namespace zor::fuzz
