#pragma once

#include "app/number_text.h"

class QLocale;

namespace tarvix {

// How `locale` writes numbers. A locale that names none (C, POSIX) counts as US English.
NumberLocale NumberLocaleOf(const QLocale& locale);

// How the user's system writes numbers.
NumberLocale SystemNumberLocale();

}  // namespace tarvix
