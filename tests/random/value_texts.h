// Texts that a user may put into a field: plausible numbers, numbers at the edges, and nonsense.
#pragma once

#include "tests/random/numbers.h"
#include "tests/random/random_source.h"

#include <QString>

namespace tarvix {

class ValueTexts {
  public:
    ValueTexts(RandomSource& random, const Numbers& numbers) : random_(random), numbers_(numbers) {}

    // A number that an engineer may enter in this field, as the system writes numbers.
    QString Plausible(const QString& field);

    // Any of the kinds, plausible ones most often.
    QString Any(const QString& field);

    // Keys, some of them by name.
    QString Keys();

  private:
    QString Written(double value);
    QString Edge();
    QString Odd();

    RandomSource& random_;
    const Numbers& numbers_;
};

}  // namespace tarvix
