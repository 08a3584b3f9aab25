// A device value into a text box of real widgets, against a value into a spin box, on Qt's offscreen platform:
// hidden, where the value path alone counts, and shown, where a frame is painted with each. The bare line edit is
// what the text box has under it.

#include <zor/bench/qt_application.h>
#include <zor/controls/numeric/text_box/ctx_ZorTextBox.h>
#include <zor/core/frm_Container.h>
#include <zor/platform/qt/container.h>

#include <QDoubleSpinBox>
#include <QLineEdit>

namespace {

using namespace zor;

template <class Set>
void run(benchmark::State& state, QWidget& form, bool shown, Set&& set)
{
    form.resize(400, 100);
    form.setVisible(shown);
    QCoreApplication::processEvents();
    int value = 0;
    for (auto _ : state) {
        value = (value + 10) % 300'000; // a new text with each: the device counts tenths
        set(value);
        if (shown)
            QCoreApplication::processEvents();
    }
}

void textBox(benchmark::State& state, bool shown)
{
    bench::startQt();
    QWidget form;
    platform::qt::QtContainer container(form, core::pictureData);
    container.setUserMode(true);
    auto box = ctx_ZorTextBox::create(container);
    box->initialiseProperties();
    run(state, form, shown, [&](int value) { box->DeviceValue(value); });
}

void spinBox(benchmark::State& state, bool shown)
{
    bench::startQt();
    QWidget form;
    QDoubleSpinBox box(&form);
    box.setRange(0, 300'000);
    run(state, form, shown, [&](int value) { box.setValue(value); });
}

void lineEdit(benchmark::State& state, bool shown)
{
    bench::startQt();
    QWidget form;
    QLineEdit edit(&form);
    run(state, form, shown, [&](int value) { edit.setText(QString::number(value)); });
}

BENCHMARK_CAPTURE(textBox, hidden, false)->Name("a value, hidden/zor");
BENCHMARK_CAPTURE(spinBox, hidden, false)->Name("a value, hidden/QDoubleSpinBox");
BENCHMARK_CAPTURE(lineEdit, hidden, false)->Name("a value, hidden/QLineEdit");
BENCHMARK_CAPTURE(textBox, shown, true)->Name("a value, with a frame/zor");
BENCHMARK_CAPTURE(spinBox, shown, true)->Name("a value, with a frame/QDoubleSpinBox");
BENCHMARK_CAPTURE(lineEdit, shown, true)->Name("a value, with a frame/QLineEdit");

} // namespace
