// Every locale that the toolkit knows: what the program writes in it can be read and typed again.
#include "app/shared/module1.h"
#include "app/window/system_locale.h"
#include "report/printer/printed_text.h"
#include "tests/core/recording_platform.h"

#include <QDate>
#include <QLocale>
#include <QString>
#include <QStringList>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace tarvix {

namespace {

QList<QLocale> EveryLocale() {
    return QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
}

// Calls `test` with each locale and the program's numbers in it.
template <typename Test>
void ForEveryLocale(Test test) {
    for (const QLocale& locale : EveryLocale()) {
        SCOPED_TRACE(locale.name().toStdString());
        test(locale, NumberLocaleOf(locale));
    }
}

// Values of every size and sign, whole, fractional and at the steps of the formatters' scale.
std::vector<float> Values() {
    std::vector<float> values{0.0F,      0.5F,      1.0F / 3,   0.95F,       0.05F,       0.005F,
                              999.96F,   99.996F,   9.9996F,    0.99996F,    0.099996F,   1234.4F,
                              12345.67F, 123456.7F, 1234567.0F, 16777216.0F, 999999999.0F};
    for (int exponent = -45; exponent <= 38; ++exponent) {
        values.push_back(std::pow(10.0F, static_cast<float>(exponent)));
        values.push_back(1.234567F * std::pow(10.0F, static_cast<float>(exponent)));
    }
    values.push_back(std::numeric_limits<float>::max());
    for (const float value : std::vector<float>(values)) {
        values.push_back(-value);
    }
    return values;
}

// How far the written text may be off: half a unit of its last decimal, and what 7 digits leave.
double Tolerance(float value, const std::string& text, const NumberLocale& locale) {
    const auto point = text.rfind(locale.decimalSeparator);
    const bool hasPoint =
        point != std::string::npos && locale.groupSeparator != std::string(1, text[point]);
    const auto decimals = hasPoint ? text.size() - point - 1 : 0;
    return 0.5000001 * std::pow(10.0, -static_cast<double>(decimals)) +
           5.1e-7 * std::fabs(static_cast<double>(value));
}

// The characters of a text, typed one after the other into an empty field.
std::string Typed(const std::string& text, const Module1& module) {
    FieldSelection field;
    for (const char character : text) {
        if (module.NumericKeyFilter(static_cast<unsigned char>(character), field) != 0) {
            field.before += character;
        }
    }
    return field.before;
}

// The toolkit's own writing of a whole number, with the digits 0 to 9.
QString Written(const QLocale& locale, qlonglong number) {
    QString text;
    for (const char32_t character : locale.toString(number).toUcs4()) {
        text += QChar::isDigit(character) ? QString::number(QChar::digitValue(character))
                                          : QString::fromUcs4(&character, 1);
    }
    return text;
}

// Where the first group needs two or three digits (1234, but 12 345), the toolkit writes and reads
// a million without its first separator, as 1234 567; the program groups it as everybody there
// does.
bool GroupsLate(const QLocale& locale) {
    return Written(locale, 1234).size() == 4 && Written(locale, 123456).size() > 6;
}

}  // namespace

TEST(EveryLocale, ThereAreSeveralHundred) {
    EXPECT_GT(EveryLocale().size(), 500);
}

TEST(EveryLocale, SeparatorIsACommaWhereTheSystemWritesOne) {
    ForEveryLocale([](const QLocale& locale, const NumberLocale& numbers) {
        const bool comma = locale.toString(3.14, 'f', 2).contains(QLatin1Char(','));
        EXPECT_EQ(numbers.decimalSeparator, comma ? ',' : '.');
    });
}

TEST(EveryLocale, WhatIsWrittenIsReadAsTheSameValueAndAnEntryCanBeTyped) {
    testing::RecordingPlatform platform;
    ForEveryLocale([&](const QLocale& /*locale*/, const NumberLocale& numbers) {
        const Module1 module(platform, numbers);
        for (const float value : Values()) {
            const std::string entry = module.FormatEntry(value);
            ASSERT_EQ(Typed(entry, module), entry);
            std::vector<std::string> texts{module.FormatResult(value), module.FormatLimit(value),
                                           entry};
            for (const int decimals : {0, 2, 3, 5}) {
                texts.push_back(FormatNumber(value, decimals, numbers, Grouping::On));
            }
            for (const std::string& text : texts) {
                const auto read = TextToSingle(text, numbers);
                ASSERT_TRUE(read) << text;
                ASSERT_NEAR(*read, value, Tolerance(value, text, numbers)) << text;
            }
        }
    });
}

TEST(EveryLocale, GroupsAreTheSystemsOwnAndAMillionHasAllOfThem) {
    int late = 0;
    ForEveryLocale([&](const QLocale& locale, const NumberLocale& numbers) {
        late += GroupsLate(locale) ? 1 : 0;
        if (!GroupsLate(locale) &&
            (numbers.groupSeparator.empty() || locale.language() == QLocale::C)) {
            return;
        }
        const QString million = QStringList{"1", "234", "567"}.join(locale.groupSeparator());
        for (const qlonglong number : {123LL, 1234LL, 12345LL, 123456LL, 1234567LL}) {
            const bool isLate = number == 1234567 && GroupsLate(locale);
            EXPECT_EQ(FormatNumber(static_cast<float>(number), 0, numbers, Grouping::On),
                      (isLate ? million : Written(locale, number)).toStdString());
        }
    });
    EXPECT_GT(late, 10);
}

TEST(EveryLocale, NoGroupsOnlyWhereTheSystemHasNone) {
    ForEveryLocale([](const QLocale& locale, const NumberLocale& numbers) {
        // A locale whose groups are told by the decimal separator can't be read with them.
        const bool ambiguous =
            locale.groupSeparator() == QString(QLatin1Char(numbers.decimalSeparator));
        if (numbers.groupSeparator.empty() && !ambiguous) {
            EXPECT_EQ(Written(locale, 1234567890), QStringLiteral("1234567890"));
        }
    });
}

TEST(EveryLocale, DatesHaveTwoDigitsTheMonthsShortNameAndFourDigits) {
    const QDate day(2026, 1, 5);
    EXPECT_EQ(DateText(day, QLocale(QLocale::English, QLocale::UnitedStates)), "05 Jan 2026");
    EXPECT_EQ(DateText(day, QLocale::c()), "05 Jan 2026");
    EXPECT_EQ(DateText(QDate(987, 3, 31), QLocale(QLocale::German)), "31 M\u00E4rz 0987");
    ForEveryLocale([&](const QLocale& locale, const NumberLocale& /*numbers*/) {
        const std::string text = DateText(day, locale);
        EXPECT_TRUE(text.starts_with("05 ") && text.ends_with(" 2026")) << text;
    });
}

// Of the 40 scripts that the locales write, no machine has fonts for all.
TEST(EveryLocale, MonthsOfNoFontArePrintedInEnglish) {
    const QDate day(2026, 1, 5);
    int inEnglish = 0;
    ForEveryLocale([&](const QLocale& locale, const NumberLocale& /*numbers*/) {
        const std::string own = DateText(day, locale);
        const std::string printed = PrintableDate(day, locale);
        if (printed != own) {
            ++inEnglish;
            EXPECT_EQ(printed, "05 Jan 2026") << own;
            EXPECT_FALSE(CanBePrinted(QString::fromStdString(own))) << own;
        }
        EXPECT_TRUE(CanBePrinted(QString::fromStdString(printed))) << printed;
    });
    EXPECT_GT(inEnglish, 0);
    EXPECT_EQ(PrintableDate(day, QLocale(QLocale::German)), "05 Jan. 2026");
}

}  // namespace tarvix
