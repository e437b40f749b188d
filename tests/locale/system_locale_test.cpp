// The system's own locale, as the environment of the process names it. What is expected is named by
// TARVIX_EXPECT_DECIMAL, TARVIX_EXPECT_MILLION (with "_" between the groups) and
// TARVIX_EXPECT_GROUP (a code point); each environment is a run of its own.
#include "app/window/system_locale.h"

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

namespace tarvix {

TEST(SystemLocale, NumbersFollowTheEnvironment) {
    const QByteArray decimal = qgetenv("TARVIX_EXPECT_DECIMAL");
    ASSERT_EQ(decimal.size(), 1) << "run by ctest, which names what is expected";
    const NumberLocale numbers = SystemNumberLocale();
    EXPECT_EQ(numbers.decimalSeparator, decimal.at(0));
    const char32_t group = qgetenv("TARVIX_EXPECT_GROUP").toUInt(nullptr, 16);
    QString million = QString::fromLatin1(qgetenv("TARVIX_EXPECT_MILLION"));
    million.replace(QLatin1Char('_'), QString::fromUcs4(&group, 1));
    EXPECT_EQ(FormatNumber(1234567.0F, 0, numbers, Grouping::On), million.toStdString());
}

}  // namespace tarvix
