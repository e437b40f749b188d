// What the main window opens beside itself: its other windows and the printer.
#pragma once

#include "report/page/report_page.h"

class QWidget;
class QImage;

namespace tarvix {

class WindowHost {
  public:
    WindowHost() = default;
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;
    virtual ~WindowHost() = default;

    // Shows the About window modally.
    virtual void ShowAboutBox(QWidget& owner) = 0;

    // Shows the customer window modally; its outcome is in module.MsgResult and the customer lines.
    virtual void ShowCustomerWindow(QWidget& owner, Module1& module) = 0;

    // Prints one page with the logo at its upper left corner on the default printer. Reports a
    // printer that fails in a message box; nothing comes back, the program goes on either way.
    virtual void PrintPage(QWidget& owner, const ReportPage& page, const QImage& logo) = 0;
};

}  // namespace tarvix
