#include <zor/platform/key_codes.h>
#include <zor/platform/notice.h>
#include <zor/platform/operator.h>
#include <zor/platform/qt/keys.h>

#include <algorithm>
#include <array>

namespace zor::platform::qt {
namespace {

struct KeyRow {
    Qt::Key key;
    std::int16_t code;
};

constexpr std::array kKeys{
    KeyRow{Qt::Key_Backspace, 8}, KeyRow{Qt::Key_Return, 13}, KeyRow{Qt::Key_Enter, 13},
    KeyRow{Qt::Key_Escape, 27},   KeyRow{Qt::Key_Space, 32},  KeyRow{Qt::Key_PageUp, 33},
    KeyRow{Qt::Key_PageDown, 34}, KeyRow{Qt::Key_End, 35},    KeyRow{Qt::Key_Home, 36},
    KeyRow{Qt::Key_Left, 37},     KeyRow{Qt::Key_Up, 38},     KeyRow{Qt::Key_Right, 39},
    KeyRow{Qt::Key_Down, 40},     KeyRow{Qt::Key_Insert, 45}, KeyRow{Qt::Key_Delete, 46},
};

constexpr std::int16_t kFirstFunctionCode = 112;
constexpr std::int16_t kLastFunctionCode = 135;
/// Keys without a name of Qt's, by their code.
constexpr int kUnnamed = 0x01FE0000;
constexpr int kCodeMask = 0x7FFF;

bool isLetterOrDigit(int key)
{
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

} // namespace

std::int16_t codeOf(const QKeyEvent& key)
{
    if (isLetterOrDigit(key.key()))
        return static_cast<std::int16_t>(key.key());
    if (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F24)
        return static_cast<std::int16_t>(key.key() - Qt::Key_F1 + kFirstFunctionCode);
    if ((key.key() & ~kCodeMask) == kUnnamed)
        return static_cast<std::int16_t>(key.key() & kCodeMask);
    const auto row = std::ranges::find(kKeys, key.key(), [](const KeyRow& r) { return static_cast<int>(r.key); });
    if (row != kKeys.end())
        return row->code;
    // Qt's keys of Latin-1 have the numbers of their characters.
    if (key.key() > Qt::Key_Space && key.key() <= Qt::Key_ydiaeresis)
        return keyCodeOf(static_cast<std::int16_t>(key.key()));
    return key.text().isEmpty() ? std::int16_t{0} : kCharacterKey;
}

std::int16_t characterOf(const QKeyEvent& key)
{
    const QString text = key.text();
    if (text.isEmpty() || key.key() == Qt::Key_Delete)
        return 0;
    const char16_t unit = text.at(0).unicode();
    return static_cast<std::int16_t>(unit < 256 ? unit : u'?');
}

std::int16_t shiftOf(Qt::KeyboardModifiers modifiers)
{
    int shift = 0;
    if (modifiers.testFlag(Qt::ShiftModifier))
        shift |= kShiftMask;
    if (modifiers.testFlag(Qt::ControlModifier))
        shift |= kCtrlMask;
    if (modifiers.testFlag(Qt::AltModifier))
        shift |= kAltMask;
    return static_cast<std::int16_t>(shift);
}

std::int16_t buttonsOf(Qt::MouseButtons buttons)
{
    int result = 0;
    if (buttons.testFlag(Qt::LeftButton))
        result |= kLeftButton;
    if (buttons.testFlag(Qt::RightButton))
        result |= kRightButton;
    if (buttons.testFlag(Qt::MiddleButton))
        result |= kMiddleButton;
    return static_cast<std::int16_t>(result);
}

Qt::Key keyOf(std::int16_t code)
{
    if (isLetterOrDigit(code))
        return static_cast<Qt::Key>(code);
    if (code >= kFirstFunctionCode && code <= kLastFunctionCode)
        return static_cast<Qt::Key>(Qt::Key_F1 + code - kFirstFunctionCode);
    const auto row = std::ranges::find(kKeys, code, &KeyRow::code);
    if (row != kKeys.end())
        return row->key;
    return code > 0 ? static_cast<Qt::Key>(kUnnamed | code) : Qt::Key_unknown;
}

} // namespace zor::platform::qt
