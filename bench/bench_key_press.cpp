// One key press in a field to the new result painted: the calculator's window beside a bare window
// whose text field is echoed into a second one.
#include "app/window/frm_tarvix.h"
#include "bench/bench_desk.h"
#include "ui/windows/frm_splash.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

namespace {

void PressKey(QWidget& field, int key, const QString& text) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &press);
    // Paints what the key has changed.
    QCoreApplication::processEvents();
}

// A digit and its deletion, alternately: each is one key press with a new result.
void PressKeys(benchmark::State& state, QWidget& field) {
    bool type = true;
    for (auto step : state) {
        (void)step;
        if (type) {
            PressKey(field, Qt::Key_1, QStringLiteral("1"));
        } else {
            PressKey(field, Qt::Key_Backspace, QStringLiteral("\b"));
        }
        type = !type;
    }
}

void BareWindow(benchmark::State& state) {
    QWidget window;
    QVBoxLayout layout(&window);
    QLineEdit field;
    QLineEdit echo;
    layout.addWidget(&field);
    layout.addWidget(&echo);
    QObject::connect(&field, &QLineEdit::textChanged, &echo, &QLineEdit::setText);
    window.show();
    field.setFocus();
    field.setText(QStringLiteral("0.5"));
    QCoreApplication::processEvents();
    PressKeys(state, field);
}
BENCHMARK(BareWindow);

void Calculator(benchmark::State& state) {
    tarvix::BenchDesk desk;
    tarvix::Module1 module(desk, {});
    module.AppPath = tarvix::AppPathOf(QCoreApplication::applicationDirPath());
    tarvix::frmTarvix window(module, desk);
    window.Form_Load();
    window.show();
    tarvix::MainForm& form = window.form();
    form.optLiquid->click();
    form.optCalcFR->click();
    form.txtSGf->SetText("1");
    form.txtSGb->SetText("1");
    form.txtDeltaP->SetText("100");
    form.txtBeta->setFocus();
    form.txtBeta->SetText("0.5");
    QCoreApplication::processEvents();
    PressKeys(state, *form.txtBeta);
    if (form.txtFlow->text().isEmpty()) {
        state.SkipWithError("no result");
    }
}
BENCHMARK(Calculator);

}  // namespace

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
