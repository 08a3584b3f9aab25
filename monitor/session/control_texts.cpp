#include <zor/monitor/session/control_texts.h>
#include <zor/units/mod_Common.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace zor::monitor {
namespace {

/// Texts that are properties only.
constexpr std::array<std::string_view, 5> kUnnumbered{"MsgInvalidEntryForText", "MsgStatusOK", "MsgUndefined",
                                                      "MsgBit", "StatusText"};

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
    // A replaced message is shown from the next refresh of the status on.
    m_control.DataNotAvailable(m_control.DataNotAvailable());
    applyUnitLabel();
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
