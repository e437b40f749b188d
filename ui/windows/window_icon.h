#pragma once

#include <QIcon>

namespace tarvix {

// The program's icon, as its windows show it in title bars and task lists.
QIcon WindowIcon();

}  // namespace tarvix
