// What the main window tells screen readers and other helpers: a name for every control that makes
// sense without the picture, with quantity and unit for a field.
#pragma once

#include "ui/form/main_form.h"

namespace tarvix {

// What a field holds, in words.
struct FieldWords {
    QString quantity;
    QString unit;    // empty for a ratio
    QString source;  // where a value that is not typed comes from
};

FieldWords WordsOf(const MainForm& form, const NumericField& field);

// Names the controls of the form. Fields and lists are named anew when a mode, an option or a unit
// has been chosen; so this is called after everything that handles a choice is linked.
void NameControls(const MainForm& form);

// Names the fields and lists as modes, options and units stand.
void UpdateNames(const MainForm& form);

}  // namespace tarvix
