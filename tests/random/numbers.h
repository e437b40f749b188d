// Numbers as the user's system writes them: a second reading and writing of number texts, made
// from the system's own description of itself, to hold the program's against.
#pragma once

#include <QLocale>
#include <QString>

#include <optional>

namespace tarvix {

class Numbers {
  public:
    // A locale that names none (C) counts as US English.
    explicit Numbers(const QLocale& locale);

    // The value of a number text in double precision; nothing when it is no number, or too large
    // for single precision.
    std::optional<double> Read(const QString& text) const;
    std::optional<float> ReadSingle(const QString& text) const;

    // A single with this many decimals: its 7 significant digits (of ten million and more all its
    // digits), halves away from zero.
    QString Fixed(float value, int decimals, bool grouped) const;

    // A single with fewer decimals the larger it is.
    QString Limit(float value) const;
    QString Result(float value) const;
    QString Entry(float value) const;

    QChar decimalSeparator() const { return decimalSeparator_; }
    const QString& groupSeparator() const { return groupSeparator_; }

    // `text` as the program holds it ("." for the decimal separator) in this locale.
    QString Localized(QString text) const {
        return text.replace(QLatin1Char('.'), decimalSeparator_);
    }

  private:
    QString Grouped(const QString& digits) const;
    std::optional<QString> WithoutGroups(const QString& whole) const;

    QLocale locale_;
    QChar decimalSeparator_;
    QString groupSeparator_;  // empty: numbers are not grouped
    int lowestGroup_ = 3;
    int higherGroups_ = 3;
    int firstGroupMinimum_ = 1;
};

}  // namespace tarvix
