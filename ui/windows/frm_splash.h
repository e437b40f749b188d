// The splash window, with which the program starts.
#pragma once

#include "app/shared/module1.h"

#include <QFrame>
#include <QLabel>
#include <QString>

#include <functional>
#include <string>

namespace tarvix {

// The application folder as the program keeps it: in the system's notation, with a separator at its
// end. Where the folder can't be read (`folder` is empty), a fixed one stands in.
std::string AppPathOf(const QString& folder);

class frmSplash : public QFrame {
  public:
    // What the splash hands over to: the main window is loaded while the splash still shows, and
    // shown when it is gone. What takes time and shows nothing may be done while the splash waits.
    struct HandOver {
        std::function<void()> loadMainWindow;
        std::function<void()> showMainWindow;
        std::function<void()> whileWaiting = [] {};
    };

    // Builds the window. Form_Load is the caller's next step, then showing it; the rest happens
    // once the event loop runs.
    frmSplash(Module1& module, HandOver handOver);

    // Sets module.AppPath to the program's folder.
    void Form_Load();

    // Shows the logos, waits about three seconds by the clock of module.platform() and hands over.
    void Form_Activate();

    QLabel* const Label1;
    QLabel* const Label2;
    QLabel* const imgBrindleLogo;
    QLabel* const imgVeltraneLogo;

  protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void LayOut();
    void ShowLogo(QLabel& label, std::string_view fileName);
    void RepaintAtOnce();
    void Wait() const;

    Module1& module_;
    HandOver handOver_;
    bool activated_ = false;
};

}  // namespace tarvix
