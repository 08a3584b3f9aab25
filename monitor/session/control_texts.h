#pragma once

/// A control's texts in the language of the program: messages by their identifiers, unit labels by theirs.

#include <zor/core/control.h>

#include <string>
#include <string_view>
#include <vector>

namespace zor::monitor {

/// Translations come from the installed translators: context "messages", the identifier as the source text and
/// the class as the comment; context "units" for labels. What has no translation stays as the form has it.
class ControlTexts {
public:
    /// Remembers the texts that the control has now.
    explicit ControlTexts(core::Control& control);

    void apply();
    /// Says why there is no value, by the identifier of a text ("MSG_DEVICEBUSY"), or with an empty one that there
    /// is none; `detail` comes before it.
    void explainNoData(std::string_view identifier, const std::string& detail = {});
    /// Says what somebody else has made of the value, behind the words that somebody has; with an empty text, only
    /// that.
    void explainChange(const std::string& value);
    /// The label of the unit that the control shows now.
    void applyUnitLabel();

private:
    struct Original {
        std::int16_t number; ///< 0 for a message without one
        std::string identifier;
        std::string text;
    };

    void applyNoData();
    void applyChange();

    core::Control& m_control;
    std::vector<Original> m_originals;
    std::string m_reason;
    std::string m_detail;
    std::string m_newValue; ///< by somebody else
};

} // namespace zor::monitor
