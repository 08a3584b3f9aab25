#include <zor/monitor/session/control_texts.h>
#include <zor/units/mod_Common.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace zor::monitor {
namespace {

/// Texts that are properties only.
constexpr std::array<std::string_view, 5> kUnnumbered{"MsgInvalidEntryForText", "MsgStatusOK", "MsgUndefined",
                                                      "MsgBit", "StatusText"};

/// What a status image says in English where its form says nothing: a new one is without words for some of it.
struct ImageText {
    std::string_view identifier;
    std::string_view fresh; ///< of a new control
    std::string_view text;
};
constexpr std::array<ImageText, 4> kImageTexts{{{"MSG_DEFAULT", "Status OK", "Detailed information about "},
                                                {"StatusText", "", "Status"},
                                                {"MsgUndefined", "", "Unnamed"},
                                                {"MsgBit", "", "bit"}}};

/// Why there is no value, where a control knows only that there is none.
constexpr std::array<std::pair<std::string_view, std::string_view>, 2> kReasons{
    {{"MSG_DEVICEBUSY", "The device is busy. It is asked again."},
     {"MSG_NOENTRY", "is what the device holds; no entry has this value."}}};
constexpr std::string_view kNoData = "MSG_DATANOTAVAILABLE";
constexpr std::string_view kChanged = "MSG_DATACHANGED";
constexpr std::string_view kNewValue = "Data Changed by other user to ";

/// Empty when there is no translation.
std::string translation(const char* context, const std::string& identifier, std::string_view comment)
{
    const std::string copy(comment);
    const QString text = QCoreApplication::translate(context, identifier.c_str(), copy.c_str());
    return text == QString::fromStdString(identifier) ? std::string() : text.toStdString();
}

} // namespace

ControlTexts::ControlTexts(core::Control& control) : m_control(control)
{
    const core::ClassInfo& info = control.info();
    for (std::int16_t number = 1; number <= control.fi_GetMaxMessage(); ++number) {
        const std::string identifier(control.fc_GetMessageID(number));
        const auto row =
            std::ranges::find(info.messages, std::string_view(identifier), &core::MessageRow::identifier);
        if (row != info.messages.end())
            m_originals.push_back({number, identifier, control.get(*row->property).toText()});
    }
    for (const std::string_view name : kUnnumbered) {
        if (const core::PropertyRow* row = info.property(name))
            m_originals.push_back({0, std::string(name), control.get(*row).toText()});
    }
    if (info.name != "ctx_ZorImage")
        return;
    for (const ImageText& row : kImageTexts) {
        const auto own = std::ranges::find(m_originals, row.identifier, &Original::identifier);
        if (own != m_originals.end() && own->text == row.fresh)
            own->text = row.text;
    }
}

void ControlTexts::apply()
{
    for (const Original& original : m_originals) {
        std::string text = translation("messages", original.identifier, m_control.info().name);
        if (text.empty())
            text = original.text;
        if (original.number != 0)
            m_control.fb_SetMessage(original.number, text);
        else
            m_control.setProperty(original.identifier, text);
    }
    applyNoData();
    applyChange();
    applyUnitLabel();
}

void ControlTexts::explainNoData(std::string_view identifier, const std::string& detail)
{
    if (m_reason == identifier && m_detail == detail)
        return;
    m_reason = identifier;
    m_detail = detail;
    applyNoData();
}

void ControlTexts::applyNoData()
{
    const auto original = std::ranges::find(m_originals, kNoData, &Original::identifier);
    if (original == m_originals.end())
        return;
    const auto* const reason = std::ranges::find(kReasons, m_reason, &decltype(kReasons)::value_type::first);
    const bool usual = reason == kReasons.end();
    std::string text = translation("messages", usual ? original->identifier : m_reason, m_control.info().name);
    if (text.empty())
        text = usual ? original->text : std::string(reason->second);
    m_control.fb_SetMessage(original->number, m_detail.empty() ? text : m_detail + ' ' + text);
    // A replaced message is shown from the next refresh of the status on.
    m_control.DataNotAvailable(m_control.DataNotAvailable());
}

void ControlTexts::explainChange(const std::string& value)
{
    if (m_newValue == value)
        return;
    m_newValue = value;
    applyChange();
}

void ControlTexts::applyChange()
{
    const auto original = std::ranges::find(m_originals, kChanged, &Original::identifier);
    if (original == m_originals.end())
        return;
    const bool usual = m_newValue.empty();
    std::string text =
        translation("messages", usual ? original->identifier : "MSG_NEWVALUE", m_control.info().name);
    if (text.empty())
        text = usual ? original->text : std::string(kNewValue);
    m_control.fb_SetMessage(original->number, text + m_newValue);
}

void ControlTexts::applyUnitLabel()
{
    const core::ClassInfo& info = m_control.info();
    if (info.method("fc_GetCaptionID") == nullptr || info.property("UnitLabelCaption") == nullptr)
        return;
    const auto identifier = std::get<Variant>(m_control.call("fc_GetCaptionID", {})).toText();
    std::string label = translation("units", identifier, {});
    if (label.empty())
        label = fc_GetUnitLabel(MEAS_TYPE{m_control.property("OutputUnit").toInt32()});
    m_control.setProperty("UnitLabelCaption", label);
}

} // namespace zor::monitor
