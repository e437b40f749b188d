// The main window.
//
// It builds its form, links the controls with their handlers, and holds the start-up, the menus and
// the buttons. One edit travels: control -> handler (ui/handlers/) -> DoOrificeCalculations ->
// checks and equation (pure, app/sheet/ and calc/) -> result field or message line.
#pragma once

#include "ui/form/form_state.h"
#include "ui/form/form_view.h"
#include "ui/form/result_line.h"
#include "ui/form/spoken_result.h"
#include "ui/windows/logo_picture.h"
#include "ui/windows/window_host.h"

#include <QMainWindow>

#include <optional>

namespace tarvix {

class frmTarvix : public QMainWindow {
  public:
    // Builds the window. Form_Load is the caller's next step, then showing it.
    frmTarvix(Module1& module, WindowHost& host);

    frmTarvix(const frmTarvix&) = delete;
    frmTarvix& operator=(const frmTarvix&) = delete;
    ~frmTarvix() override;

    // Places the window, fills the lists, loads the logo and selects the first mode.
    void Form_Load();

    MainForm& form() { return form_; }
    const FormState& state() const { return state_; }
    int calculationRuns() const { return state_.calculationRuns; }

  protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    // Selects gas when the window is first shown, which ends the loading state.
    void Form_Activate();
    void ConnectHandlers();
    void cmdPrint_Click();
    void cmdExit_Click();
    void mnuPrint_Click();
    void mnuExit_Click();
    void mnuAbout_Click();
    void CopySolvedValue() const;
    void ShowLogo();
    void ApplyReadableColors();
    void FitToScreen();
    void PrintOrificeReport();

    Module1& module_;
    WindowHost& host_;
    FormView view_;
    FormState state_;
    MainForm form_;
    FormContext context_;
    SpokenResult spokenResult_;
    ResultLine resultLine_;
    std::optional<Logo> logo_;  // from Form_Load on
    QMargins frame_;            // that the window manager adds
};

}  // namespace tarvix
