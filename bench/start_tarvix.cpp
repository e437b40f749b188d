// The program's own start, splash included but for its wait, up to the painted main window.
#include "app/window/frm_tarvix.h"
#include "app/window/system_locale.h"
#include "bench/bench_desk.h"
#include "bench/stop_after.h"
#include "ui/windows/frm_splash.h"

#include <memory>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    tarvix::BenchDesk desk;
    tarvix::Module1 module(desk, tarvix::SystemNumberLocale());
    std::unique_ptr<tarvix::frmTarvix> mainWindow;
    tarvix::frmSplash splash(
        module,
        {.loadMainWindow =
             [&] {
                 mainWindow->Form_Load();
                 tarvix::StopAfterFirstPaint(*mainWindow, QApplication::arguments());
             },
         .showMainWindow =
             [&] {
                 mainWindow->show();
                 mainWindow->form().txtPf->setFocus();
             },
         .whileWaiting = [&] { mainWindow = std::make_unique<tarvix::frmTarvix>(module, desk); }});
    splash.Form_Load();
    splash.show();
    return QApplication::exec();
}
