#pragma once

#include "numbers/number_text.h"

#include <string>

class QDate;
class QLocale;

namespace tarvix {

// How `locale` writes numbers. A locale that names none (C, POSIX) counts as US English.
NumberLocale NumberLocaleOf(const QLocale& locale);

// How the user's system writes numbers.
NumberLocale SystemNumberLocale();

// A date as dd mmm yyyy, such as 05 Jan 2026, the month's short name as `locale` writes it; in
// English for a locale that names none.
std::string DateText(const QDate& date, const QLocale& locale);

// The same for the report: in English, too, where no font here has the letters of the month.
std::string PrintableDate(const QDate& date, const QLocale& locale);

}  // namespace tarvix
