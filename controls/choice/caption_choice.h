#pragma once

/// What check box and option button are alike in, beside being choice controls: a button with a caption, and
/// the control around it that follows the caption's width.

#include <zor/controls/choice/choice_rows.h>

namespace zor::controls {

/// How the parts of a control with a caption stand on its height.
struct CaptionLayout {
    platform::Twips lowest;  ///< height of the button, and of the lowest control that centres it
    platform::Twips iconTop; ///< of the icon below the button's top, in a control that centres it
};

/// A choice control with a caption.
class CaptionChoice : public ChoiceControl {
public:
    /// Surface and button.
    void s_ChangeBackColor(Colour l_ColorValue) override;

protected:
    CaptionChoice(const core::ClassInfo& info, platform::Container& container, const CaptionLayout& layout);
    ~CaptionChoice() override = default;
    void adopt(platform::ToggleButton& button, std::string_view caption);

    void s_ShowCaption();
    void s_UpdateColors() override;
    void s_Layout() override;
    void s_AfterLoading() override;

    std::string m_caption;

private:
    platform::ToggleButton* m_button = nullptr;
    const CaptionLayout& m_layout;
};

/// The tables of a class whose other-user value is `Other` and whose reference value is `Reference`.
template <auto Other, auto Reference>
struct CaptionChoiceRows {
    using S = core::SharedRows;
    using R = ChoiceRows;

    static constexpr auto kStored = joined(R::kFirst, R::kState, R::kSettings);
    static constexpr auto kNotStored = joined(R::kNotStored, core::rows(&S::OtherUserValue<Other>));

    static constexpr std::array kMessages{
        core::MessageRow{"MSG_CFAIL", &S::MsgCfail},
        core::MessageRow{"MSG_DATANOTAVAILABLE", &S::MsgDataNotAvailable},
        core::MessageRow{"MSG_DATACHANGED", &S::MsgDataChanged},
        core::MessageRow{"MSG_DEFAULT", &S::MsgDefault},
        core::MessageRow{"MSG_DEVICETAGNOTFOUND", &S::MsgDeviceTagNotFound},
    };
    static constexpr std::array kStates{S::CommunicationFailure, S::TagNotFound, S::NoData,
                                        S::DataChangedByOther<Other, Reference>};
};

} // namespace zor::controls
