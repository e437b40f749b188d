// What the main window tells screen readers and other helpers: a name for every control that makes
// sense without the picture, with quantity and unit for a field, and alerts for messages and
// warnings.
#pragma once

#include "ui/main_form.h"

namespace tarvix {

class AccessibleNames {
  public:
    // Names the controls of the form. Fields and lists are named anew when a mode, an option or a
    // unit has been chosen; so this is built after everything that handles a choice.
    explicit AccessibleNames(MainForm& form);

    // The fields and lists, as modes, options and units stand.
    void Update();

  private:
    void NameFixedControls() const;
    void NameOptions() const;

    MainForm& form_;
};

// Makes the widget an alert that is named by what it says: its own text, or those of the labels in
// it; `silentName` while there are none.
void SetAlertName(QWidget& alert, const QString& silentName);

// Tells screen readers that an alert says something else now.
void AnnounceAlert(QWidget& alert);

}  // namespace tarvix
