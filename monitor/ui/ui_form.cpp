#include <zor/core/control.h>
#include <zor/core/frm_Container.h>
#include <zor/forms/form.h>
#include <zor/forms/form_error.h>
#include <zor/monitor/data/file_content.h>
#include <zor/monitor/data/message.h>
#include <zor/monitor/ui/form.h>
#include <zor/monitor/ui/no_value_veil.h>
#include <zor/platform/qt/container.h>
#include <zor/widgets/form_loader.h>
#include <zor/widgets/zor_control.h>

#include <QBuffer>
#include <QMainWindow>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>

namespace zor::monitor {
namespace {

/// Shows a drawn form in the size it was drawn in, and scrolls where there is less room. Designer saves a form
/// without a layout unless somebody lays it out: such a form has a size, but no size that it asks for.
class DrawnArea final : public QScrollArea {
public:
    DrawnArea(QWidget& form, QSize drawn) : m_drawn(drawn)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        if (form.layout() == nullptr)
            form.setMinimumSize(drawn);
        setWidget(&form);
    }
    [[nodiscard]] QSize sizeHint() const override
    {
        // Beside the bars of the window and what else is on the screen.
        constexpr double kShare = 0.8;
        return m_drawn.boundedTo(screen()->availableSize() * kShare);
    }

private:
    QSize m_drawn;
};

/// What the library's reader says of a form, in the operator's language; the tags and names in it are the file's.
FileError translated(const std::string& said, const std::string& file)
{
    static const QRegularExpression own("<[^> ]*>?|\"[^\"]*\"|^[^ :]+\\.[^ :]+(?=: )|(?<=of the kind ).+");
    const std::size_t place = said.find(": ", file.size());
    QString english = QString::fromStdString(said.substr(place + 2));
    std::array<std::string, 3> names;
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QRegularExpressionMatch match = own.match(english);
        if (!match.hasMatch())
            break;
        names[i] = match.captured().toStdString();
        english.replace(match.capturedStart(), match.capturedLength(), '%' + QString::number(i + 1));
    }
    return {said.substr(0, place), 0, message(english.toUtf8().constData(), {names[0], names[1], names[2]})};
}

/// What Qt passes over in silence is refused: a class that the library does not have, a property or a member of an
/// enumeration that there is not. A class of somebody else's may come from a plugin.
void refuseNotes(const forms::Form& form, const std::string& file)
{
    for (const std::string& note : form.notes()) {
        if (note.find("unknown class \"") == std::string::npos ||
            note.find("unknown class \"zor::") != std::string::npos)
            throw translated(note, file);
    }
}

} // namespace

std::vector<UiForm::Place> UiForm::placesIn(const core::ClassRegistry& classes, const QByteArray& text,
                                            const std::string& file)
{
    // What is wrong is said by the library's own reader, with the line.
    try {
        forms::Form form = forms::Form::parse(classes, text.toStdString(), file);
        refuseNotes(form, file);
        std::vector<Place> places;
        QWidget nowhere;
        platform::qt::QtContainer container(nowhere, core::pictureData);
        for (std::size_t i = 0; i < form.items().size(); ++i) {
            const core::ControlPtr<> control = form.items()[i].info->create(container);
            control->initialiseProperties();
            form.fill(i, *control);
            places.push_back({control->DeviceTag(), forms::located(file, form.items()[i].line, {})});
        }
        refuseNotes(form, file);
        return places;
    } catch (const forms::FormError& error) {
        throw translated(error.what(), file);
    }
}

UiForm::UiForm(const QString& file, const core::ClassRegistry& classes)
{
    const std::string name = file.toStdString();
    QByteArray text = QByteArray::fromStdString(contentOf(name));
    m_places = placesIn(classes, text, name);
    if (m_places.empty())
        throw FileError(name, 0,
                        message(QT_TRANSLATE_NOOP("texts", "no controls of the library are on this form")));
    QBuffer source(&text);
    source.open(QIODevice::ReadOnly);
    ZorUiLoader loader;
    QWidget* loaded = loader.load(&source);
    if (loaded == nullptr)
        throw FileError(name, 0, loader.errorString().toStdString());
    const QSize drawn = loaded->size().expandedTo(loaded->minimumSizeHint());
    // A form drawn as a window would bring its own frame, menus and status bar.
    if (auto* window = qobject_cast<QMainWindow*>(loaded);
        window != nullptr && window->centralWidget() != nullptr) {
        loaded = window->takeCentralWidget();
        loaded->setParent(nullptr);
        delete window;
    }
    loaded->setWindowFlags(Qt::Widget);
    m_widget = new DrawnArea(*loaded, drawn);
    for (core::Control* control : controls()) {
        if (QWidget* face = NoValueVeil::faceOf(*control))
            m_veilable.emplace_back(control, face);
    }
}

UiForm::~UiForm()
{
    if (m_widget != nullptr && m_widget->parent() == nullptr)
        delete m_widget;
}

std::vector<core::Control*> UiForm::controls()
{
    std::vector<core::Control*> controls;
    for (ZorControl* control : m_widget->findChildren<ZorControl*>())
        controls.push_back(&control->control());
    return controls;
}

void UiForm::translate(const std::string& /*language*/)
{
    // Its own texts stay; what is laid over the controls is drawn anew.
    m_widget->update();
}

void UiForm::arrange()
{
    for (const auto& [control, face] : m_veilable)
        NoValueVeil::put(*face, isKnown && !isEdited(*control) && !isKnown(*control));
}

std::vector<std::string> UiForm::notes(const ParameterFile& file) const
{
    const TagIndex indexOf(file);
    std::vector<std::string> notes;
    for (const Place& place : m_places) {
        if (!indexOf(place.tag))
            notes.push_back(place.place +
                            message(QT_TRANSLATE_NOOP("texts", "no parameter has the tag \"%1\""), {place.tag}));
    }
    return notes;
}

QTabWidget* UiForm::tabs() { return m_widget->findChild<QTabWidget*>(); }

} // namespace zor::monitor
