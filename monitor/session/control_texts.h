#pragma once

/// A control's texts in the language of the program: messages by their identifiers, unit labels by theirs.

#include <zor/core/control.h>

#include <string>
#include <vector>

namespace zor::monitor {

/// Translations come from the installed translators: context "messages", the identifier as the source text and
/// the class as the comment; context "units" for labels. What has no translation stays as the form has it.
class ControlTexts {
public:
    /// Remembers the texts that the control has now.
    explicit ControlTexts(core::Control& control);

    void apply();
    /// The label of the unit that the control shows now.
    void applyUnitLabel();

private:
    struct Original {
        std::int16_t number; ///< 0 for a message without one
        std::string identifier;
        std::string text;
    };

    core::Control& m_control;
    std::vector<Original> m_originals;
};

} // namespace zor::monitor
