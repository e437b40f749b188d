// The program's own start, splash included but for the time that its wait takes, up to the painted
// main window. Prints, in milliseconds and pixels: the processor time up to the painted splash, the
// time from the end of the wait to the painted main window, and the sizes of the two windows.
#include "app/window/frm_tarvix.h"
#include "app/window/system_locale.h"
#include "bench/bench_desk.h"
#include "bench/stop_after.h"
#include "ui/windows/frm_splash.h"

#include <QElapsedTimer>

#include <cstdio>
#include <ctime>
#include <memory>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    tarvix::BenchDesk desk;
    tarvix::Module1 module(desk, tarvix::SystemNumberLocale());
    std::unique_ptr<tarvix::frmTarvix> mainWindow;
    QElapsedTimer sinceWait;
    double splashProcessorMs = 0;
    qint64 afterWaitNs = 0;
    tarvix::frmSplash splash(
        module, {.loadMainWindow =
                     [&] {
                         sinceWait.start();
                         mainWindow->Form_Load();
                         new tarvix::FirstPaint(*mainWindow,
                                                [&] { afterWaitNs = sinceWait.nsecsElapsed(); });
                         tarvix::StopAfterFirstPaint(*mainWindow, QApplication::arguments());
                     },
                 .showMainWindow =
                     [&] {
                         mainWindow->show();
                         mainWindow->form().txtPf->setFocus();
                     },
                 .whileWaiting =
                     [&] {
                         splashProcessorMs =
                             1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
                         mainWindow = std::make_unique<tarvix::frmTarvix>(module, desk);
                     }});
    splash.Form_Load();
    splash.show();
    const int status = QApplication::exec();
    std::printf("%.2f %.2f %dx%d %dx%d\n", splashProcessorMs,
                static_cast<double>(afterWaitNs) / 1e6, splash.width(), splash.height(),
                mainWindow->width(), mainWindow->height());
    return status;
}
