#include "app/window/system_locale.h"

#include "report/printer/printed_text.h"

#include <QDate>
#include <QList>
#include <QLocale>
#include <QString>

#include <algorithm>

namespace tarvix {

namespace {

// The sizes of the digit groups in which `locale` writes `number`, from the left; a single one when
// it does not group.
QList<int> GroupSizes(const QLocale& locale, qlonglong number) {
    QList<int> groups{0};
    for (const char32_t character : locale.toString(number).toUcs4()) {
        if (QChar::isDigit(character)) {
            ++groups.last();
        } else if (groups.last() > 0) {
            groups.append(0);
        }
    }
    return groups;
}

}  // namespace

NumberLocale NumberLocaleOf(const QLocale& locale) {
    NumberLocale numbers;
    if (locale.language() == QLocale::C) {
        return numbers;
    }
    numbers.decimalSeparator = locale.toString(3.14, 'f', 2).contains(QLatin1Char(',')) ? ',' : '.';

    const QList<int> groups = GroupSizes(locale, 1234567890123LL);
    const std::string separator = locale.groupSeparator().toStdString();
    if (groups.size() < 3 || separator == std::string(1, numbers.decimalSeparator)) {
        numbers.groupSeparator.clear();
        return numbers;
    }
    numbers.groupSeparator = separator;
    numbers.lowestGroup = groups.last();
    numbers.higherGroups = groups.at(groups.size() - 2);
    // The shortest number that is grouped tells how many digits the first group needs.
    const qlonglong probes[] = {1234, 12345, 123456};
    const auto* const shortest = std::ranges::find_if(
        probes, [&](qlonglong probe) { return GroupSizes(locale, probe).size() > 1; });
    numbers.firstGroupMinimum = static_cast<int>(shortest - std::begin(probes)) + 1;
    return numbers;
}

NumberLocale SystemNumberLocale() {
    return NumberLocaleOf(QLocale::system());
}

std::string DateText(const QDate& date, const QLocale& locale) {
    const QLocale named =
        locale.language() == QLocale::C ? QLocale(QLocale::English, QLocale::UnitedStates) : locale;
    return QStringLiteral("%1 %2 %3")
        .arg(date.day(), 2, 10, QLatin1Char('0'))
        .arg(named.monthName(date.month(), QLocale::ShortFormat))
        .arg(date.year(), 4, 10, QLatin1Char('0'))
        .toStdString();
}

std::string PrintableDate(const QDate& date, const QLocale& locale) {
    const std::string text = DateText(date, locale);
    return CanBePrinted(QString::fromStdString(text)) ? text : DateText(date, QLocale::c());
}

}  // namespace tarvix
