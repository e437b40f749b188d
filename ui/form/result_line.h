#pragma once

#include "ui/form/form_view.h"
#include "ui/form/main_form.h"

#include <QLabel>

namespace tarvix {

// One quiet line in the footer with the solved value, "Flow Rate 142.3 Gallons per Minute", while
// its field is scrolled out of sight; else it is hidden and takes no room. For the eyes only:
// screen readers know the field itself, and SpokenResult says its value.
class ResultLine : public QLabel {
  public:
    // Outlived by `form` and `view`; built after what handles the choices on the form.
    ResultLine(const MainForm& form, FormView& view);

  protected:
    bool event(QEvent* event) override;

  private:
    void UpdateLater();
    void Update();

    const MainForm& form_;
    const FormView& view_;
    bool willUpdate_ = false;
};

}  // namespace tarvix
