#pragma once

#include "tests/random/invariants.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tarvix {

// The shortest script found, by leaving lines out, that still breaks the invariant of this name.
QStringList Minimized(const World& world, const std::vector<Invariant>& invariants,
                      const QString& locale, QStringList script, const QString& invariant);

}  // namespace tarvix
