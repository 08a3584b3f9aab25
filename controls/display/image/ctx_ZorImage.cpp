#include <zor/controls/display/image/image_rows.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/error.h>

namespace zor {

namespace {

constexpr platform::Twips kDesignedSize = 480;
constexpr std::string_view kLineBreak = "\r\n";

} // namespace

ctx_ZorImage::ctx_ZorImage(platform::Container& container)
    : Control(classInfo(), container, kDesignedSize, kDesignedSize),
      m_picture(surface().createImage(img_State, true)), m_body{m_picture.get()}
{
    m_messages.header = core::shared<"Qex">();
    m_picture->setPicture(frm_Container::StatusOk);
    s_Layout();
}

core::ControlPtr<ctx_ZorImage> ctx_ZorImage::create(platform::Container& container)
{
    return core::ControlPtr<ctx_ZorImage>(new ctx_ZorImage(container));
}

platform::Widget* ctx_ZorImage::widget(int number) noexcept
{
    return number == img_State ? m_picture.get() : Control::widget(number);
}

void ctx_ZorImage::onNotice(int widget, platform::Notice notice, platform::EventArgs args)
{
    if (widget == img_State && notice == platform::Notice::Click)
        s_ExplainState();
    forward(widget, notice, args);
}

// --- Names of the bits

void ctx_ZorImage::MaxEntries(std::int16_t MaxCount)
{
    if (MaxCount > 0)
        m_names.assign(static_cast<std::size_t>(MaxCount), {});
    m_count = MaxCount;
}

void ctx_ZorImage::AddBitFieldEntry(std::string_view Identifier, std::int16_t BitFieldEntryValue,
                                    std::int16_t Index)
{
    if (Index < 0 || Index >= m_count)
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange)
            .of(info().name, "AddBitFieldEntry", std::to_string(Index));
    m_names[static_cast<std::size_t>(Index)] = {std::string(Identifier), BitFieldEntryValue};
}

void ctx_ZorImage::appendIntroduction(std::string& text) const
{
    text.append(MsgDefault()).append(MessageHeader()).append(":").append(kLineBreak);
}

void ctx_ZorImage::composeConditions()
{
    if (m_texts.notOk.find(kLineBreak) == std::string::npos)
        m_notOkName = m_texts.notOk;
    m_texts.notOk.clear();
    appendIntroduction(m_texts.notOk);
    if (m_count < 0)
        return;
    // One walk over the table, however many bits are set.
    std::array<const std::string*, kBits> names{};
    for (std::size_t row = 0; std::cmp_less(row, m_count); ++row) {
        const auto& [identifier, bit] = m_names[row];
        if (bit >= 0 && std::cmp_less(bit, kBits) && names[static_cast<std::size_t>(bit)] == nullptr)
            names[static_cast<std::size_t>(bit)] = &identifier;
    }
    for (std::size_t bit = 0; bit < kBits; ++bit) {
        if ((static_cast<std::uint32_t>(m_deviceValue) >> bit & 1U) == 0)
            continue;
        m_texts.notOk.append(kLineBreak).append("- ");
        if (names[bit] != nullptr)
            m_texts.notOk.append(*names[bit]);
        else
            m_texts.notOk.append(MsgUndefined() + " (" + MsgBit() + ' ' + std::to_string(bit) + ')');
    }
}

const std::string& ctx_ZorImage::notOkInWords() const noexcept
{
    // A list from a click may be out of date, and is too long to be read out for a state.
    return m_texts.notOk.find(kLineBreak) == std::string::npos ? m_texts.notOk : m_notOkName;
}

// --- Display

void ctx_ZorImage::s_UpdateEnabledState()
{
    // An unknown identifier does not disable the picture: it is all there is to be asked.
    m_picture->setEnabled(!m_status.waitingForData && m_status.enableControl);
}

void ctx_ZorImage::s_UpdateDeviceSupportDisplay() { m_picture->setVisible(isDeviceSupported()); }

void ctx_ZorImage::s_Layout()
{
    const platform::Rect area = surface().geometry();
    m_picture->setGeometry({0, 0, area.width, area.height});
}

// --- Properties

void ctx_ZorImage::DeviceValue(std::int32_t value) { write(Rows::DeviceValue, value); }
void ctx_ZorImage::UseAuxIcon(bool value) { write(Rows::UseAuxIcon, value); }
void ctx_ZorImage::ReadOnly(bool value) { write(Rows::ReadOnly, value); }
void ctx_ZorImage::MessageHeader(std::string_view value) { write(Rows::MessageHeader, value); }
void ctx_ZorImage::StatusText(std::string_view value) { write(Rows::StatusText, value); }
void ctx_ZorImage::MsgStatusNotOK(std::string_view value) { write(Rows::MsgStatusNotOK, value); }
void ctx_ZorImage::MsgStatusOK(std::string_view value) { write(Rows::MsgStatusOK, value); }
void ctx_ZorImage::MsgUndefined(std::string_view value) { write(Rows::MsgUndefined, value); }
void ctx_ZorImage::MsgBit(std::string_view value) { write(Rows::MsgBit, value); }

} // namespace zor
