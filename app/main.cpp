#include "app/window/frm_tarvix.h"
#include "app/window/system_locale.h"
#include "ui/windows/frm_splash.h"
#include "ui/windows/qt_platform.h"
#include "ui/windows/window_host_qt.h"
#include "ui/windows/window_icon.h"

#include <QApplication>
#include <QCoreApplication>

#include <memory>

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tarvix"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tarvix"));
    QGuiApplication::setWindowIcon(tarvix::WindowIcon());

    tarvix::QtPlatform platform;
    tarvix::Module1 module(platform, tarvix::SystemNumberLocale());
    tarvix::WindowHostQt host(platform);
    std::unique_ptr<tarvix::frmTarvix> mainWindow;

    // The main window is built while the splash waits, so that it appears as soon as the wait is
    // over.
    tarvix::frmSplash splash(
        module,
        {.loadMainWindow = [&] { mainWindow->Form_Load(); },
         .showMainWindow = [&] { mainWindow->show(); },
         .whileWaiting = [&] { mainWindow = std::make_unique<tarvix::frmTarvix>(module, host); }});
    splash.Form_Load();
    splash.show();
    return QApplication::exec();
}
