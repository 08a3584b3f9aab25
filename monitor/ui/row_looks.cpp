#include <zor/monitor/data/codec.h>
#include <zor/monitor/language/words.h>
#include <zor/monitor/session/value_texts.h>
#include <zor/monitor/ui/no_value_veil.h>
#include <zor/monitor/ui/row_looks.h>
#include <zor/platform/error.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/qt/looks.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QStyle>

#include <algorithm>
#include <array>
#include <optional>

namespace zor::monitor {
namespace {

constexpr int kField = 200;   ///< pixels: of a text field, a list, a track
constexpr int kIconRoom = 28; ///< right of a list or a track
constexpr int kUsualWidth = kField + kIconRoom;
constexpr int kWidest = 420;  ///< of a control with texts of its own
constexpr int kMostLines = 8; ///< of a list
constexpr int kMark = 32;     ///< before each

constexpr std::array kLooks{
    LooksRow{"ctx_ZorTextBox", kUsualWidth, 27},
    LooksRow{"ctx_ZorUpDown", kUsualWidth, 27},
    LooksRow{"ctx_ZorSlider", kUsualWidth, 52, true},
    LooksRow{"ctx_ZorComboBox", kUsualWidth, 21},
    LooksRow{"ctx_ZorListBox", kUsualWidth, 0, true},
    LooksRow{"ctx_ZorCheckBox", 60, 24, false, "CheckBoxCaption"},
    LooksRow{"ctx_ZorOptionButton", 60, 24, true, "OptionButtonCaption"},
    LooksRow{"ctx_ZorLabel", kUsualWidth, 22},
    LooksRow{"ctx_ZorImage", 34, 32},
};
constexpr LooksRow kUsualLooks{"", kUsualWidth, 27};

constexpr int kRowSpace = 4; ///< between the lines of a list

int linesOf(const Parameter& list) { return std::clamp(static_cast<int>(list.bits.size()), 2, kMostLines); }

QWidget& surfaceOf(core::Control& control) { return platform::qt::widgetOf(control.surface()); }

/// The pixels of this page's sizes are those of the fonts that controls are designed for: with a larger font all
/// of it is larger, as the controls are.
int drawn(const QFont& font, int designed)
{
    constexpr double kTwips = 15;
    return platform::qt::Scale(font).pixels(designed * kTwips);
}

QFont fontAround(const QWidget& surface) { return surface.parentWidget()->font(); }

/// The right end of what is on the control, shown or not: the icon comes and goes.
int rightEnd(const QWidget& surface)
{
    int end = 0;
    for (const QObject* child : surface.children()) {
        const auto* widget = qobject_cast<const QWidget*>(child);
        if (widget != nullptr && !widget->isWindow())
            end = std::max(end, widget->geometry().right() + 1);
    }
    return end;
}

void setWidth(core::Control& control, int width)
{
    QWidget& surface = surfaceOf(control);
    if (surface.width() != width)
        surface.setFixedWidth(width);
    // What is right of the field belongs to unit and icon.
    const core::PropertyRow* row = control.info().property("WidthDifference");
    const QFont font = fontAround(surface);
    const auto room = static_cast<std::int16_t>(platform::qt::Scale(font).twips(width - drawn(font, kField)));
    if (row != nullptr && control.get(*row) != Variant(room))
        control.put(*row, room);
}

/// The value of a control without a text for it.
QString valueText(core::Control& control, const Parameter& parameter, const std::string& language)
{
    const Encoded encoded = encode(parameter, control.property("OutputValue"));
    const MEAS_TYPE unit{control.property("OutputUnit").toInt32()};
    const ShownValue value = describe(parameter, encoded.registers, unit, language);
    return QString::fromStdString(value.text) + ' ' + Words::unit(value.unit);
}

/// As a field with an edit in it looks.
void markEdited(QLabel& note, bool edited)
{
    QPalette palette;
    if (edited) {
        palette.setColor(QPalette::Window, Qt::yellow);
        palette.setColor(QPalette::WindowText, Qt::black);
    }
    note.setPalette(palette);
    note.setAutoFillBackground(edited);
}

/// What a field shows, and how much room it has for that.
struct Shown {
    QString text;
    int room = 0;
};

std::optional<Shown> shownBy(const QWidget& surface)
{
    constexpr int kFrame = 10;
    constexpr int kArrow = 28;
    if (const auto* field = surface.findChild<QLineEdit*>(); field != nullptr)
        return Shown{field->text(), field->width() - kFrame};
    if (const auto* box = surface.findChild<QComboBox*>(); box != nullptr)
        return Shown{box->currentText(), box->width() - kArrow};
    return std::nullopt;
}

/// A text that is wider than its field, in short.
QString overflowText(const Shown& shown, const QFontMetrics& metrics)
{
    constexpr int kDigits = 6;
    if (metrics.horizontalAdvance(shown.text) <= shown.room)
        return {};
    bool number = false;
    const double value = QLocale().toDouble(shown.text, &number);
    return number ? "= " + QLocale().toString(value, 'g', kDigits) : QString(QChar(0x2026));
}

} // namespace

const LooksRow& looksOf(const core::ClassInfo& info)
{
    const auto* const row = std::ranges::find(kLooks, info.name, &LooksRow::name);
    return row == kLooks.end() ? kUsualLooks : *row;
}

void giveSize(core::Control& control)
{
    QWidget& surface = surfaceOf(control);
    const LooksRow& looks = looksOf(control.info());
    const QFont font = fontAround(surface);
    if (looks.height > 0)
        surface.setFixedHeight(drawn(font, looks.height));
    setWidth(control, drawn(font, looks.width));
    if (control.info().name == "ctx_ZorSlider")
        control.setProperty("UnitEnable", false); // the note beside it has the unit
}

void giveRoomForBits(core::Control& list, const Parameter& parameter, const std::string& language)
{
    QWidget& surface = surfaceOf(list);
    const QFontMetrics metrics = surface.fontMetrics();
    int widest = 0;
    for (const Entry& bit : parameter.bits)
        widest = std::max(widest, metrics.horizontalAdvance(QString::fromStdString(bit.text.in(language))));
    const QFont font = fontAround(surface);
    const int most = drawn(font, kWidest);
    const int wanted =
        widest + drawn(font, kMark + kIconRoom) + surface.style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    // What is still too wide is scrolled; the bar for it takes a line.
    surface.setFixedHeight((linesOf(parameter) + (wanted > most ? 1 : 0)) * (metrics.height() + kRowSpace) +
                           kRowSpace);
    setWidth(list, std::clamp(wanted, drawn(font, kUsualWidth), most));
}

int heightIn(const core::ClassInfo& info, const Parameter& parameter, const QFont& font)
{
    const int height = drawn(font, looksOf(info).height);
    if (height == 0)
        return linesOf(parameter) * (QFontMetrics(font).height() + kRowSpace) + kRowSpace;
    const bool choice = info.property("EnumEntryValue") != nullptr;
    return choice ? height * static_cast<int>(parameter.entries.size()) : height;
}

void giveRoomForEntries(core::Control& comboBox)
{
    auto* box = surfaceOf(comboBox).findChild<QComboBox*>();
    if (box != nullptr)
        box->view()->setMinimumWidth(std::min(box->view()->sizeHintForColumn(0) + kMark, kWidest));
}

void setOwnCaption(core::Control& control, const QString& caption)
{
    QWidget& surface = surfaceOf(control);
    const QString shown = surface.fontMetrics().elidedText(
        caption, Qt::ElideRight, drawn(fontAround(surface), kWidest - kMark - kIconRoom));
    control.setProperty(looksOf(control.info()).caption, shown.toStdString());
    surface.setToolTip(shown == caption ? QString() : platform::qt::plainToolTip(caption.toStdString()));
}

bool showIfHad(core::Control& control)
{
    const bool lacks = control.DeviceTypeNotSupported() || control.DeviceVerNotSupported();
    if (surfaceOf(control).isHidden() != lacks)
        surfaceOf(control).setHidden(lacks);
    return !lacks;
}

void fitSize(core::Control& control)
{
    QWidget& surface = surfaceOf(control);
    // Their bodies fill them: what they are wide follows from what they are given.
    const bool fixed = control.info().name == "ctx_ZorListBox" || control.info().name == "ctx_ZorImage";
    if (surface.isVisible() && !fixed)
        setWidth(control,
                 std::max(drawn(fontAround(surface), looksOf(control.info()).width), rightEnd(surface) + 1));
}

void showNote(QLabel& note, core::Control& control, const Parameter& parameter, bool known,
              const std::string& language)
{
    const bool slider = control.info().name == "ctx_ZorSlider";
    const bool edited = isEdited(control);
    QString text;
    if (const auto shown = shownBy(surfaceOf(control))) {
        text = overflowText(*shown, note.fontMetrics());
        note.setToolTip(text.isEmpty() ? QString() : platform::qt::plainToolTip(shown->text.toStdString()));
        const core::PropertyRow* unit = control.info().property("OutputUnit");
        if (unit != nullptr && MEAS_TYPE{control.get(*unit).toInt32()} == NoneU)
            text = (Words::unit(parameter.unit) + ' ' + text).trimmed();
    } else if (!known && !edited && isNeverEmpty(control)) {
        text = NoValueVeil::tr("no value");
    } else if (slider) {
        text = valueText(control, parameter, language);
        if (edited)
            text = QCoreApplication::translate("GeneratedForm", "%1 (edited)").arg(text);
    }
    if (note.text() != text)
        note.setText(text);
    note.setEnabled(!control.WaitingForData());
    const bool marked = slider && edited;
    if (note.autoFillBackground() != marked)
        markEdited(note, marked);
}

QString breakable(const QString& text)
{
    constexpr int kLongWord = 20;
    QString result;
    int length = 0;
    for (const QChar character : text) {
        length = character.isSpace() ? 0 : length + 1;
        if (length > kLongWord && character.isLetterOrNumber())
            result.append(QChar(0x200B));
        result.append(character);
    }
    return result;
}

} // namespace zor::monitor
