// Text boxes as QWidgets on Qt's offscreen platform, against spin boxes and against what a text box shows made by
// hand: creating, showing and deleting many of them, and loading a form.

#include <zor/bench/measures.h>
#include <zor/bench/qt_application.h>
#include <zor/widgets/form_loader.h>
#include <zor/widgets/zor_widgets.h>

#include <QBuffer>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>

namespace {

using namespace zor;

/// A line edit with two labels: what a text box has on it.
struct ByHand : QWidget {
    explicit ByHand(QWidget* parent) : QWidget(parent)
    {
        new QLineEdit(this);
        auto* unit = new QLabel(QStringLiteral("m"), this);
        unit->move(118, 0);
        new QLabel(this);
    }
};

/// It hears what has been posted before it ends: Qt looks through all that is posted to anybody for each widget
/// that ends.
struct Page : QWidget {
    ~Page() override { QCoreApplication::sendPostedEvents(); }
};

/// A page of widgets of one kind, most of which lie outside its window, as on a page that scrolls.
template <class Widget>
std::unique_ptr<Page> page(std::int64_t count)
{
    constexpr int kColumns = 5;
    auto form = std::make_unique<Page>();
    form->resize(1000, 700);
    for (int i = 0; i < count; ++i)
        (new Widget(form.get()))->setGeometry(i % kColumns * 200, i / kColumns * 30, 180, 22);
    return form;
}

template <class Widget>
void create(benchmark::State& state)
{
    bench::startQt();
    bench::createMany(state, page<Widget>);
}

void show(QWidget& form)
{
    form.show();
    QCoreApplication::processEvents();
}

/// Measures one part of the life of a page.
template <class Widget, bool kShows>
void live(benchmark::State& state)
{
    bench::startQt();
    for (auto _ : state) {
        state.PauseTiming();
        auto form = page<Widget>(state.range(0));
        if (kShows)
            state.ResumeTiming();
        show(*form);
        if (kShows)
            state.PauseTiming();
        else
            state.ResumeTiming();
        form.reset();
        if (kShows)
            state.ResumeTiming();
    }
}

/// A form file of widgets of one class with a name and a place each.
QByteArray formOf(const char* className, std::int64_t count)
{
    QString text = "<ui version=\"4.0\"><class>F</class><widget class=\"QWidget\" name=\"F\">";
    for (int i = 0; i < count; ++i) {
        text += QString("<widget class=\"%1\" name=\"w%2\"><property name=\"geometry\"><rect><x>%3</x><y>%4</y>"
                        "<width>180</width><height>22</height></rect></property></widget>")
                    .arg(className)
                    .arg(i)
                    .arg(i % 5 * 200)
                    .arg(i / 5 * 30);
    }
    return (text + "</widget></ui>").toUtf8();
}

template <class Loader>
void load(benchmark::State& state, const char* className)
{
    bench::startQt();
    Loader loader;
    QByteArray text = formOf(className, state.range(0));
    for (auto _ : state) {
        QBuffer file(&text);
        file.open(QIODevice::ReadOnly);
        std::unique_ptr<QWidget> form(loader.load(&file));
        state.PauseTiming();
        // The loader itself may have put something beside the widgets.
        if (form == nullptr || form->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size() != state.range(0)) {
            state.SkipWithError("not loaded");
            break;
        }
        QCoreApplication::sendPostedEvents();
        form.reset();
        state.ResumeTiming();
    }
}

template <class Widget>
void widget(const std::string& name)
{
    using benchmark::RegisterBenchmark;
    RegisterBenchmark(("create/" + name).c_str(), create<Widget>)->Apply(bench::tenfold);
    RegisterBenchmark(("show/" + name).c_str(), live<Widget, true>)->Arg(10'000)->Unit(benchmark::kMillisecond);
    RegisterBenchmark(("delete/" + name).c_str(), live<Widget, false>)->Arg(10'000)->Unit(benchmark::kMillisecond);
}

const bool registered = [] {
    widget<ZorTextBox>("zor");
    widget<QDoubleSpinBox>("QDoubleSpinBox");
    benchmark::RegisterBenchmark("create/a line edit and two labels", create<ByHand>)
        ->Arg(1000)
        ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("load/zor", load<ZorUiLoader>, "zor::ZorTextBox")
        ->Arg(1000)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("load/QUiLoader", load<QUiLoader>, "QDoubleSpinBox")
        ->Arg(1000)
        ->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
