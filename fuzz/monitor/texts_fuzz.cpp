#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/fuzz/target.h>
#include <zor/platform/qt/container.h>
#include <zor/platform/qt/looks.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QTextDocument>

#include <map>

namespace zor::fuzz {
namespace {

using platform::qt::shownText;

/// What Qt makes of a tooltip, or of a plain text; both with the same ends of lines and blanks.
QString read(const QString& text, bool isPlain = false)
{
    QTextDocument document;
    if (!isPlain && Qt::mightBeRichText(text))
        document.setHtml(text);
    else
        document.setPlainText(text);
    return document.toPlainText();
}

/// What a widget shows as its own text.
QString shownOn(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->textFormat() == Qt::PlainText ? label->text() : "mark-up";
    const auto* box = qobject_cast<const QCheckBox*>(&widget);
    return box == nullptr ? QString() : box->text().replace("&&", "&");
}

/// A control of each class, that takes one text after the other: making it would take most of the time.
core::Control& controlOf(const core::ClassInfo& info)
{
    struct Shown {
        explicit Shown(const core::ClassInfo& info) : control(info.create(container))
        {
            control->initialiseProperties();
        }
        QWidget form;
        platform::qt::QtContainer container{form, core::pictureData};
        core::ControlPtr<> control;
    };
    static auto& shown = *new std::map<const core::ClassInfo*, Shown>;
    return *shown.try_emplace(&info, info).first->second.control;
}

/// A text of a device, a form or a translator in every place that takes one: it is shown as it stands.
std::string play(std::string_view input)
{
    static int count = 1;
    static char name[] = "fuzz";
    static char* words[] = {name, nullptr};
    // Never destroyed, as the controls: at the program's end Qt's own statics are gone before those of a function.
    static const auto* const application = new QApplication(count, words);
    static_cast<void>(application);
    std::string wrong;
    constexpr int kShort = 2000;
    const QString wanted = shownText(input, kShort);
    // One class a text, by its length.
    const core::ClassInfo& info = *classes().classes()[input.size() % classes().classes().size()];
    core::Control& control = controlOf(info);
    const auto tried = [](auto&& action) {
        try {
            action();
        } catch (const RunTimeError&) {
            // Not every class has it, and a number is no text.
        }
    };
    for (const char* method : {"ClearEnumList", "ClearBitFieldList"})
        tried([&] { control.call(method, {}); });
    for (const char* property :
         {"DeviceTag", "MsgDefault", "CheckBoxCaption", "UnitLabelCaption", "DeviceType", "DeviceValue"})
        tried([&] { control.setProperty(property, input); });
    for (const char* method : {"AddEnumEntry", "AddBitFieldEntry"})
        tried([&] { control.call(method, std::vector<Variant>{input, 0}); });
    const QWidget& face = platform::qt::widgetOf(*control.widget(1));
    if (info.subject == nullptr && read(face.toolTip()) != read(wanted, true))
        wrong.append(info.name).append(": another tooltip: ") += face.toolTip().toStdString();
    if (const QString shown = shownOn(face); !shown.isEmpty() && input.size() < kShort && shown != wanted)
        wrong.append(info.name).append(": another text: ") += shown.toStdString();
    return wrong;
}

const Registered kTexts({"texts", play});

} // namespace
} // namespace zor::fuzz
