#pragma once

/// The status image: a device's status word as one picture, with a name for each bit.

#include <zor/controls/display/image/image_events.h>
#include <zor/core/control.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zor {

/// A picture that is the whole control: one for "no bit set", one for "some bit set", one for each state of the
/// connection. A click lists the names of the bits that are set.
class ctx_ZorImage final : public core::Control {
public:
    /// A control in the container, not yet initialised: call initialiseProperties() or readProperties() next.
    [[nodiscard]] static core::ControlPtr<ctx_ZorImage> create(platform::Container& container);
    /// The tables of the class.
    [[nodiscard]] static const core::ClassInfo& classInfo() noexcept;

    /// @name Status word
    /// @{
    /// Bit n (0 to 31) set means that condition n is present; bit 31 is the sign.
    [[nodiscard]] std::int32_t DeviceValue() const noexcept { return m_deviceValue; }
    void DeviceValue(std::int32_t value);
    /// Shows the other pair of status pictures, from the next status refresh on.
    [[nodiscard]] bool UseAuxIcon() const noexcept { return m_useAuxIcon; }
    void UseAuxIcon(bool value);
    /// Stored, without effect: a status word is never edited.
    [[nodiscard]] bool ReadOnly() const noexcept { return m_status.readOnly; }
    void ReadOnly(bool value);
    /// @}

    /// @name Names of the bits
    /// Not stored: the host gives them after creating or loading the control.
    /// @{
    /// Number of rows in the table, which starts empty. A positive count gives that many new rows, none of which
    /// names a bit yet; with 0 no bit has a name. A negative one silences the list: a click then names no bit at
    /// all.
    void MaxEntries(std::int16_t MaxCount);
    /// Row `Index`, from 0 on, names a bit (0 to 31; the row of any other number is taken and names nothing).
    /// Where several rows name one bit, the first counts. SubscriptOutOfRange, and no change, for a row outside
    /// the table.
    void AddBitFieldEntry(std::string_view Identifier, std::int16_t BitFieldEntryValue, std::int16_t Index);
    /// @}

    /// @name Texts
    /// The message box is titled StatusText, " - ", MessageHeader; its text begins with MsgDefault, MessageHeader
    /// and a colon where it speaks of bits. A new control has "" and "Status OK" for StatusText and MsgDefault,
    /// which is no sentence yet: the host gives them words, as MsgUndefined and MsgBit, which are empty.
    /// @{
    /// Name of the monitored unit: tooltip, and end of the message box's title.
    using Control::MessageHeader;
    void MessageHeader(std::string_view value);
    /// Start of the message box's title.
    [[nodiscard]] const std::string& StatusText() const noexcept { return m_texts.status; }
    void StatusText(std::string_view value);
    /// The list of conditions as the last click on a non-zero status composed it.
    [[nodiscard]] const std::string& MsgStatusNotOK() const noexcept { return m_texts.notOk; }
    void MsgStatusNotOK(std::string_view value);
    /// Shown when no bit is set.
    [[nodiscard]] const std::string& MsgStatusOK() const noexcept { return m_texts.ok; }
    void MsgStatusOK(std::string_view value);
    /// Shown for a bit without a name, followed by MsgBit and the bit's number in brackets.
    [[nodiscard]] const std::string& MsgUndefined() const noexcept { return m_texts.undefined; }
    void MsgUndefined(std::string_view value);
    [[nodiscard]] const std::string& MsgBit() const noexcept { return m_texts.bit; }
    void MsgBit(std::string_view value);
    /// @}

    using Control::subscribe;
    using Control::unsubscribe;
    /// A listener must be taken away before it ends.
    void subscribe(__ctx_ZorImage& sink) { addTypedSink(&sink); }
    void unsubscribe(__ctx_ZorImage& sink) noexcept { removeTypedSink(&sink); }

    /// The numbers of its widgets, by their published names, for widget().
    enum Widgets : int {
        img_State = 1, ///< the picture, which is the control; a click explains it
    };
    [[nodiscard]] platform::Widget* widget(int number) noexcept override;

private:
    struct Rows;
    struct States;
    struct Tables;
    static constexpr std::size_t kBits = 32;
    static constexpr std::int16_t kNoBit = -1;

    struct Texts {
        std::string status = "Status";
        std::string notOk = "Status Not OK";
        std::string ok = "- No Information. Status OK";
        std::string undefined;
        std::string bit;
    };
    struct BitName {
        std::string identifier;
        std::int16_t bit = kNoBit;
    };

    explicit ctx_ZorImage(platform::Container& container);
    ~ctx_ZorImage() override = default;

    /// The texts of the message box for no bit and for some bits.
    void appendIntroduction(std::string& text) const;
    void composeConditions();
    /// What the host calls a status that is not OK.
    [[nodiscard]] const std::string& notOkInWords() const noexcept;

    void s_UpdateColors() override {}
    void s_UpdateEnabledState() override;
    void s_UpdateDeviceSupportDisplay() override;
    void s_Layout() override;
    void s_AfterLoading() override { s_UpdateEnabledState(); }
    [[nodiscard]] std::span<platform::Widget* const> body() noexcept override { return m_body; }
    [[nodiscard]] platform::Image& icon() noexcept override { return *m_picture; }
    void onNotice(int widget, platform::Notice notice, platform::EventArgs args) override;

    std::unique_ptr<platform::Image> m_picture;
    std::array<platform::Widget*, 1> m_body;
    std::vector<BitName> m_names;
    Texts m_texts;
    /// MsgStatusNotOK as it was before a click replaced it by a list.
    std::string m_notOkName;
    std::int32_t m_deviceValue = 0;
    std::int16_t m_count = 0;
    bool m_useAuxIcon = false;
};

} // namespace zor
