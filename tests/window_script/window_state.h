#pragma once

#include "ui/form/main_form.h"

#include <QJsonObject>

namespace tarvix {

// What a user sees of every control of the form, by its name.
QJsonObject ControlStates(const MainForm& form);

}  // namespace tarvix
