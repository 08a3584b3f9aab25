// Lists of 32,767 entries on real widgets, on Qt's offscreen platform: filling them, against Qt's own combo box
// and list filled item by item, and applying a value.

#include <zor/bench/choice_cases.h>
#include <zor/bench/qt_application.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/qt/container.h>

#include <QComboBox>
#include <QListWidget>

namespace {

using namespace zor;

/// A form that is shown.
struct Form {
    Form()
    {
        bench::startQt();
        window = std::make_unique<QWidget>();
        container = std::make_unique<platform::qt::QtContainer>(*window, core::pictureData);
        window->show();
    }
    std::unique_ptr<QWidget> window;
    std::unique_ptr<platform::qt::QtContainer> container;
};

template <void (*Measure)(benchmark::State&, platform::Container&)>
void onForm(benchmark::State& state)
{
    const Form form;
    Measure(state, *form.container);
}

/// The same into a widget of Qt's own.
template <class Widget, class Add>
void fillPlain(benchmark::State& state, Add&& add)
{
    const Form form;
    for (auto _ : state) {
        state.PauseTiming();
        auto widget = std::make_unique<Widget>(form.window.get());
        state.ResumeTiming();
        for (int i = 0; i < bench::kFull; ++i)
            add(*widget, i);
        state.PauseTiming();
        widget.reset();
        state.ResumeTiming();
    }
}

void fillPlainCombo(benchmark::State& state)
{
    fillPlain<QComboBox>(state, [](QComboBox& box, int i) {
        box.addItem(QStringLiteral("an entry of the usual length"), i);
        box.setCurrentIndex(i);
    });
}

void fillPlainList(benchmark::State& state)
{
    fillPlain<QListWidget>(state, [](QListWidget& list, int i) {
        auto* item = new QListWidgetItem(QStringLiteral("an entry of the usual length"), &list);
        item->setData(Qt::UserRole, i % 31);
        item->setCheckState(Qt::Unchecked);
    });
}

BENCHMARK(onForm<bench::fillCombo>)->Name("fill a combo box/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(fillPlainCombo)->Name("fill a combo box/QComboBox")->Unit(benchmark::kMillisecond);
BENCHMARK(onForm<bench::fillList>)->Name("fill a list box/zor")->Unit(benchmark::kMillisecond);
BENCHMARK(fillPlainList)->Name("fill a list box/QListWidget")->Unit(benchmark::kMillisecond);
BENCHMARK(onForm<bench::applyCombo>)->Name("value of a combo box/zor")->Apply(bench::lengths);
BENCHMARK(onForm<bench::applyList>)->Name("value of a list box/zor")->Apply(bench::lengths);

} // namespace
