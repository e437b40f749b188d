// The program's own windows beside the main window, and the real printer.
#pragma once

#include "app/shared/platform.h"
#include "ui/windows/window_host.h"

namespace tarvix {

class WindowHostQt : public WindowHost {
  public:
    // `platform` shows the message box about a printer that fails.
    explicit WindowHostQt(Platform& platform) : platform_(platform) {}

    void ShowAboutBox(QWidget& owner) override;
    void ShowCustomerWindow(QWidget& owner, Module1& module) override;
    void PrintPage(QWidget& owner, const ReportPage& page, const QImage& logo) override;

  private:
    Platform& platform_;
};

}  // namespace tarvix
