#include "tests/random/value_texts.h"

#include <cmath>

namespace tarvix {

namespace {

struct Range {
    const char* field;
    double low;
    double high;
    bool logarithmic;
};

constexpr Range kRanges[] = {
    {"txtFlow", 0.001, 1e7, true},   {"txtDeltaP", 0.01, 2000, true},
    {"txtBeta", 0.02, 0.97, false},  {"txtOriBoreDia", 0.05, 500, true},
    {"txtPf", -16, 700, false},      {"txtTf", -300, 1200, false},
    {"txtDensity", 0.01, 100, true}, {"txtSGb", 0.3, 2, false},
    {"txtSGf", 0.3, 2, false},       {"txtGasSGb", 0.05, 3, false},
    {"txtZf", 0.2, 2, false},
};

// Where the text draws a line, and what lies on either side of it.
constexpr const char* kEdges[] = {
    "0",          "0.0",      "-0",       "0.95",      "0.9499",      "0.94999",      "0.950001",
    "0.15",       "0.149999", "0.67",     "0.67001",   "150",         "149.9",        "150.0001",
    "200",        "200.0001", "400",      "400.001",   "414.7",       "414.8",        "-14.7",
    "-14.69",     "-14.71",   "14.7",     "14.6",      "3000",        "3000.001",     "3014.7",
    "67.5",       "68",       "384",      "62.366",    "1000000",     "1000000.1",    "999999999",
    "1e9",        "0.00001",  "0.000009", "1",         "0.5",         "-459.67",      "-459.68",
    "1e-30",      "1e-45",    "1e-46",    "3.4e38",    "3.402824e38", "3.4028236e38", "1e39",
    "-1e30",      "1e30",     "999.95",   "99.995",    "9.9995",      "0.99995",      "0.0999995",
    "0.00999999", "16777217", "9999999",  "9999999.5", "123456789"};

// "%d" stands for the decimal separator, "%g" for the group separator.
constexpr const char* kOdd[] = {"",
                                " ",
                                "-",
                                "+",
                                "%d",
                                "%g",
                                "e",
                                "e5",
                                "1e",
                                "1e+",
                                "+-1",
                                "--1",
                                "1-",
                                "1 2",
                                " 12 ",
                                "\t1",
                                "0x10",
                                "&H10",
                                "inf",
                                "nan",
                                "-inf",
                                "INF",
                                "1%d2%d3",
                                "%d5",
                                "5%d",
                                "1%g234",
                                "12%g34",
                                "1%g234%d5",
                                "%g123",
                                "1%g%g000",
                                "1234%g567",
                                "1%g234%g56",
                                "1%g23%g456",
                                "(5)",
                                "$5",
                                "5%",
                                "1e400",
                                "1e-400",
                                "abc",
                                "1,5",
                                "1.5",
                                "1.000,5",
                                "1,000.5",
                                "1\u00A0000",
                                "1\u202F000",
                                "1\u2019000",
                                "\u0661\u0662",
                                "\u06F1\u06F2",
                                "1\u066B5",
                                "\u22125",
                                "\uFF11",
                                "1_000",
                                "1'000",
                                "00000000000000000001",
                                "0000%d5",
                                "1e00000000000000000003",
                                "1E-2",
                                "1e+2",
                                "+7",
                                "1d3",
                                "true",
                                "99999999999999999999999999999999999999999999999999",
                                "\u200B1",
                                "1\u200F",
                                "0%d00000000000000000000000000000000000000000000000000001",
                                "3%d14159265358979323846264338327950288"};

constexpr const char* kKeys[] = {"{Backspace}", "{Delete}", "{Left}", "{Right}",    "{Home}",
                                 "{End}",       "{Enter}",  "{Esc}",  "{SelectAll}"};

}  // namespace

QString ValueTexts::Written(double value) {
    const int decimals = random_.Below(7);
    QString text = numbers_.Fixed(static_cast<float>(value), decimals, random_.Chance(15));
    if (random_.Chance(4)) {
        text = QString::number(value, 'e', random_.Below(6));
        text.replace(QLatin1Char('.'), numbers_.decimalSeparator());
    }
    if (random_.Chance(3)) {
        text = QLatin1Char(' ') + text;
    }
    if (random_.Chance(2)) {
        text = QLatin1Char('+') + text;
    }
    return text;
}

QString ValueTexts::Plausible(const QString& field) {
    for (const Range& range : kRanges) {
        if (field == QLatin1String(range.field)) {
            return Written(range.logarithmic
                               ? range.low * std::pow(range.high / range.low, random_.Fraction())
                               : random_.Between(range.low, range.high));
        }
    }
    return Written(random_.Between(0.1, 60));
}

QString ValueTexts::Edge() {
    return numbers_.Localized(QString::fromUtf8(random_.Pick(kEdges)));
}

QString ValueTexts::Odd() {
    return QString::fromUtf8(random_.Pick(kOdd))
        .replace(QLatin1String("%d"), QString(numbers_.decimalSeparator()))
        .replace(QLatin1String("%g"), numbers_.groupSeparator());
}

QString ValueTexts::Any(const QString& field) {
    const int kind = random_.Below(100);
    if (kind < 60) {
        return Plausible(field);
    }
    if (kind < 80) {
        return Edge();
    }
    if (kind < 95) {
        return Odd();
    }
    // Any bit pattern of a single.
    const double exponent = random_.Between(-45, 39);
    return numbers_.Localized(
        QString::number(std::pow(10.0, exponent) * random_.Between(-1, 1), 'g', 9));
}

QString ValueTexts::Keys() {
    QString keys;
    const int count = 1 + random_.Below(6);
    for (int i = 0; i < count; ++i) {
        const int kind = random_.Below(100);
        if (kind < 45) {
            keys += QChar(QLatin1Char('0').unicode() + random_.Below(10));
        } else if (kind < 65) {
            keys += QLatin1String(random_.Pick(kKeys));
        } else if (kind < 75) {
            keys += numbers_.decimalSeparator();
        } else if (kind < 85) {
            keys += random_.Chance(50) ? QLatin1Char('-') : QLatin1Char('+');
        } else {
            keys += QChar(0x20 + random_.Below(0x5F));
        }
    }
    // At most one way on to the next control, at the end.
    if (random_.Chance(20)) {
        keys += QLatin1String("{Tab}");
    }
    return keys;
}

}  // namespace tarvix
