#include "tests/random/numbers.h"

#include <QRegularExpression>
#include <QStringList>

#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#ifdef __GLIBC__
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is not in <clocale>
#endif

namespace tarvix {

namespace {

QString AsciiDigits(const QString& text) {
    QString ascii;
    for (const char32_t character : text.toUcs4()) {
        ascii += QChar::isDigit(character) ? QString::number(QChar::digitValue(character))
                                           : QString::fromUcs4(&character, 1);
    }
    return ascii;
}

// The value of digits with "." and an exponent, whatever locale the process runs in.
double PlainValue(const QString& plain) {
    const QByteArray text = plain.toLatin1();
#ifdef __GLIBC__
    static const locale_t kPlain = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(text.constData(), nullptr, kPlain);
#else
    return std::strtod(text.constData(), nullptr);
#endif
}

}  // namespace

Numbers::Numbers(const QLocale& locale)
    : locale_(locale.language() == QLocale::C ? QLocale(QStringLiteral("en_US")) : locale) {
    const bool comma = locale_.toString(3.14, 'f', 2).contains(QLatin1Char(','));
    decimalSeparator_ = QLatin1Char(comma ? ',' : '.');
    const QStringList groups = AsciiDigits(locale_.toString(1234567890123LL))
                                   .split(locale_.groupSeparator(), Qt::SkipEmptyParts);
    if (groups.size() > 2 && locale_.groupSeparator() != QString(decimalSeparator_)) {
        groupSeparator_ = locale_.groupSeparator();
        lowestGroup_ = static_cast<int>(groups.last().size());
        higherGroups_ = static_cast<int>(groups.at(groups.size() - 2).size());
        // Some write 1234 but 12 345.
        firstGroupMinimum_ = locale_.toString(1234).contains(groupSeparator_)    ? 1
                             : locale_.toString(12345).contains(groupSeparator_) ? 2
                                                                                 : 3;
    }
}

std::optional<QString> Numbers::WithoutGroups(const QString& whole) const {
    static const QRegularExpression kDigits(QStringLiteral("^[0-9]*$"));
    if (groupSeparator_.isEmpty() || !whole.contains(groupSeparator_)) {
        return kDigits.match(whole).hasMatch() ? std::optional(whole) : std::nullopt;
    }
    const QRegularExpression grouped(QStringLiteral("^[0-9]{1,%1}(?:%3[0-9]{%1})*%3[0-9]{%2}$")
                                         .arg(higherGroups_)
                                         .arg(lowestGroup_)
                                         .arg(QRegularExpression::escape(groupSeparator_)));
    if (!grouped.match(whole).hasMatch()) {
        return std::nullopt;
    }
    return QString(whole).remove(groupSeparator_);
}

std::optional<double> Numbers::Read(const QString& text) const {
    // blanks, sign, whole part with its groups, fraction, exponent, blanks
    static const QRegularExpression kParts(
        QStringLiteral("^ *([+-]?)([^eE]*?)(?:[eE]([+-]?[0-9]+))? *$"));
    const auto parts = kParts.match(text);
    if (!parts.hasMatch()) {
        return std::nullopt;
    }
    const QStringList mantissa = parts.captured(2).split(decimalSeparator_);
    if (mantissa.size() > 2) {
        return std::nullopt;
    }
    const auto whole = WithoutGroups(mantissa.at(0));
    const QString fraction = mantissa.value(1);
    static const QRegularExpression kDigits(QStringLiteral("^[0-9]*$"));
    if (!whole || !kDigits.match(fraction).hasMatch() || (whole->isEmpty() && fraction.isEmpty())) {
        return std::nullopt;
    }
    const QString sign = parts.captured(1) == QLatin1String("-") ? QStringLiteral("-") : QString();
    const QString exponent = parts.captured(3).isEmpty() ? QStringLiteral("0") : parts.captured(3);
    const double value = PlainValue(sign + QLatin1Char('0') + *whole + QLatin1Char('.') + fraction +
                                    QLatin1Char('e') + exponent);
    if (!std::isfinite(static_cast<float>(value))) {
        return std::nullopt;
    }
    return value;
}

std::optional<float> Numbers::ReadSingle(const QString& text) const {
    const auto value = Read(text);
    return value ? std::optional(static_cast<float>(*value)) : std::nullopt;
}

QString Numbers::Grouped(const QString& digits) const {
    if (groupSeparator_.isEmpty()) {
        return digits;
    }
    if (digits.size() < lowestGroup_ + firstGroupMinimum_) {
        return digits;
    }
    QString text = digits;
    for (auto at = text.size() - lowestGroup_; at > 0; at -= higherGroups_) {
        text.insert(at, groupSeparator_);
    }
    return text;
}

QString Numbers::Fixed(float value, int decimals, bool grouped) const {
    // All digits of |value| without a point, and how many of them stand before it.
    char text[64];
    QString digits;
    qsizetype point = 0;
    const double magnitude = std::fabs(double{value});
    if (magnitude >= 1e7) {
        std::snprintf(text, sizeof text, "%.0f", magnitude);
        digits = QString::fromLatin1(text);
        point = digits.size();
    } else {
        std::snprintf(text, sizeof text, "%.6e", magnitude);
        const QString scientific = QString::fromLatin1(text);
        // The point is a comma where the process runs in such a locale.
        digits = scientific.left(8).remove(1, 1);
        point = scientific.mid(9).toInt() + 1;
    }
    // Zeros in front, so that the digits begin at least one place before the point.
    if (point < 1) {
        digits.prepend(QString(1 - point, QLatin1Char('0')));
        point = 1;
    }
    digits.prepend(QLatin1Char('0'));
    ++point;
    const auto kept = point + decimals;
    const bool up = digits.size() > kept && digits.at(kept) >= QLatin1Char('5');
    digits = digits.left(kept).leftJustified(kept, QLatin1Char('0'));
    for (auto i = kept - 1; up && i >= 0; --i) {
        const bool carry = digits.at(i) == QLatin1Char('9');
        digits[i] = carry ? QChar(QLatin1Char('0')) : QChar(digits.at(i).unicode() + 1);
        if (!carry) {
            break;
        }
    }
    QString whole = digits.left(point);
    const QString fraction = digits.mid(point);
    while (whole.size() > 1 && whole.startsWith(QLatin1Char('0'))) {
        whole.remove(0, 1);
    }
    const bool isZero = digits.count(QLatin1Char('0')) == digits.size();
    return (value < 0 && !isZero ? QStringLiteral("-") : QString()) +
           (grouped ? Grouped(whole) : whole) +
           (decimals > 0 ? QString(decimalSeparator_) + fraction : QString());
}

QString Numbers::Limit(float value) const {
    const int decimals = value >= 1000  ? 0
                         : value >= 100 ? 1
                         : value >= 10  ? 2
                         : value >= 1   ? 3
                                        : 4;
    return Fixed(value, decimals, true);
}

namespace {

int ResultDecimals(float value) {
    if (value >= 1) {
        return value >= 1000 ? 0 : value >= 100 ? 1 : value >= 10 ? 2 : 3;
    }
    if (value >= 0.01F) {
        return value >= 0.1F ? 4 : 5;
    }
    return value == 0 ? 1 : 6;
}

}  // namespace

QString Numbers::Result(float value) const {
    return Fixed(value, ResultDecimals(value), true);
}

QString Numbers::Entry(float value) const {
    return Fixed(value, ResultDecimals(value), false);
}

}  // namespace tarvix
