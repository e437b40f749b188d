#include "tests/random/expected_message.h"

#include <algorithm>

namespace tarvix {

const char* const kBetaRangeText = "Warning: Beta value exceeds standard range (0.15 to 0.67).";

namespace {

enum class Rule { Positive, Pressure, Any };

struct Entry {
    std::string_view field;
    QString name;
    bool required;
    Rule rule;
};

using Entries = std::vector<Entry>;

struct Judge {
    const WindowView& now;
    const Reading& is;
    const World& world;

    const QString& TextOf(const Entry& entry) const { return now[entry.field].text; }
    std::optional<float> ValueOf(const Entry& entry) const {
        return world.numbers.ReadSingle(TextOf(entry));
    }
    bool IsPositive(const Entry& entry) const { return ValueOf(entry).value_or(0) > 0; }

    // The limit that the operating pressure breaks, after the name; empty when it keeps it.
    QString BrokenLimit(const char* end) const {
        const float psi = is.PressurePsi().value_or(0);
        if (is.absolute) {
            return psi > 0 ? QString()
                           : QStringLiteral(" must be greater than 0") + QLatin1String(end);
        }
        return psi > -14.7F ? QString()
                            : QStringLiteral(" must be greater than %1 %2.")
                                  .arg(world.numbers.Limit(-14.7F / is.pressFactor),
                                       now["cboPressUnit"].text);
    }

    template <typename Predicate>
    QString List(const Entries& entries, Predicate isBad) const {
        QStringList names;
        for (const Entry& entry : entries) {
            if (entry.required && isBad(entry)) {
                names.append(entry.name);
            }
        }
        return names.join(QStringLiteral(", "));
    }
};

Entries FluidEntries(const WindowView& now, const Reading& is) {
    const QString gravity = QStringLiteral("Base Specific Gravity");
    switch (is.fluid) {
        case 'L':
            return {{"txtSGf",
                     QStringLiteral("Flowing Specific Gravity") +
                         (is.sgCalculated ? QStringLiteral(" [from Density]") : QString()),
                     !is.sgCalculated, Rule::Positive},
                    {"txtSGb", gravity, now["txtSGb"].visible, Rule::Positive},
                    {"txtDensity", QStringLiteral("Operating Density"), is.sgCalculated,
                     Rule::Positive}};
        case 'S':
            return {{"txtDensity",
                     QStringLiteral("Operating Density") +
                         (is.steamTable ? QStringLiteral(" [from Op. Pressure]") : QString()),
                     !is.steamTable, Rule::Positive},
                    {"txtPf", QStringLiteral("Operating Pressure"), true, Rule::Pressure}};
        default:
            return {{"txtTf", QStringLiteral("Op. Temperature"), true, Rule::Any},
                    {"txtPf", QStringLiteral("Op. Pressure"), true, Rule::Pressure},
                    {"txtGasSGb", gravity, now["txtGasSGb"].visible, Rule::Positive},
                    {"txtZf",
                     is.correction == CompCorrection::Density ? QStringLiteral("Density")
                                                              : QStringLiteral("Zf"),
                     now["txtZf"].visible, Rule::Positive}};
    }
}

QString FluidMessage(const Judge& judge, std::string_view active) {
    const Entries entries = FluidEntries(judge.now, judge.is);
    QString pressureName;
    for (const Entry& entry : entries) {
        if (entry.rule == Rule::Pressure) {
            pressureName = entry.name;
        }
        if (entry.field != active || judge.TextOf(entry).isEmpty()) {
            continue;
        }
        if (!judge.ValueOf(entry)) {
            return QStringLiteral("Non-Numeric ") + entry.name;
        }
        if (entry.rule == Rule::Positive && !judge.IsPositive(entry)) {
            return entry.name + QStringLiteral(" must be greater than 0.");
        }
        if (entry.rule == Rule::Pressure && !judge.BrokenLimit("").isEmpty()) {
            return entry.name + judge.BrokenLimit("");
        }
    }
    QString names = judge.List(entries, [&](const Entry& e) { return judge.TextOf(e).isEmpty(); });
    if (!names.isEmpty()) {
        return QStringLiteral("Incomplete fluid data (%1).").arg(names);
    }
    names = judge.List(entries, [&](const Entry& e) { return !judge.ValueOf(e); });
    if (!names.isEmpty()) {
        return QStringLiteral("Non-Numeric fluid data (%1).").arg(names);
    }
    if (!pressureName.isEmpty() && !judge.BrokenLimit(".").isEmpty()) {
        return pressureName + judge.BrokenLimit(".");
    }
    names = judge.List(
        entries, [&](const Entry& e) { return e.rule == Rule::Positive && !judge.IsPositive(e); });
    if (!names.isEmpty()) {
        return names + QStringLiteral(" must be greater than 0.");
    }
    return judge.is.fluid == 'S' && judge.is.steamTable && judge.now["txtDensity"].text.isEmpty()
               ? QStringLiteral(
                     "The Operating Density [from Op. Pressure] must not exceed steam table "
                     "limits.")
               : QString();
}

QString RunMessage(const Judge& judge, std::string_view active) {
    const SolveFor mode = judge.is.mode;
    const Entries entries{
        {"txtFlow", QStringLiteral("Flow Rate"), mode != SolveFor::FlowRate, Rule::Positive},
        {"txtDeltaP", QStringLiteral("Differential Pressure"), mode != SolveFor::DiffPressure,
         Rule::Positive},
        {"txtBeta", QStringLiteral("Beta Ratio"), mode != SolveFor::Beta, Rule::Positive}};
    for (const Entry& entry : entries) {
        if (entry.field == active && entry.required && !judge.TextOf(entry).isEmpty()) {
            if (!judge.ValueOf(entry)) {
                return QStringLiteral("Non-Numeric %1 data.").arg(entry.name);
            }
            if (!judge.IsPositive(entry)) {
                return QStringLiteral("The %1 must be greater than 0.").arg(entry.name);
            }
        }
    }
    QString names = judge.List(entries, [&](const Entry& e) { return !judge.ValueOf(e); });
    if (!names.isEmpty()) {
        return QStringLiteral("Incomplete or Non-Numeric fluid data (%1).").arg(names);
    }
    names = judge.List(entries, [&](const Entry& e) { return !judge.IsPositive(e); });
    return names.isEmpty() ? QString()
                           : QStringLiteral("Fluid data (%1) must be greater than 0.").arg(names);
}

}  // namespace

QString CheckMessage(const WindowView& now, const Reading& is, const World& world,
                     std::string_view activeField) {
    const Judge judge{now, is, world};
    const QString message = FluidMessage(judge, activeField);
    return message.isEmpty() ? RunMessage(judge, activeField) : message;
}

std::optional<QString> SteamTableMessage(const WindowView& now, const Reading& is,
                                         const World& world) {
    const auto psi = is.PressurePsi();
    if (is.fluid != 'S' || !is.steamTable || !psi) {
        return std::nullopt;
    }
    const float atmosphere = is.absolute ? 14.7F : 0.0F;
    const float gauge = *psi - atmosphere;
    if (gauge >= 0 && gauge <= 3000) {
        return std::nullopt;
    }
    const float limit = (gauge < 0 ? 0.0F : 3000.0F) + atmosphere;
    return (gauge < 0 ? QStringLiteral("The Op. Pressure is below the steam table mimimum: ")
                      : QStringLiteral("The Op. Pressure exceeds the steam table maximum: ")) +
           world.numbers.Result(limit / is.pressFactor) + QLatin1Char(' ') +
           now["cboPressUnit"].text +
           (is.absolute ? QStringLiteral(" (absolute)") : QStringLiteral(" (gauge)"));
}

bool IsBetaOutsideRange(const Reading& is) {
    return is.beta && (*is.beta < 0.15F || *is.beta > 0.67F);
}

QStringList CalculationMessages(const Reading& is) {
    const QString tooHigh =
        QStringLiteral("Unable to calculate %1 for conditions (Flow rate too high).");
    const QString unresolved = QStringLiteral("Unable to resolve %1 for conditions.");
    const QString outside = QStringLiteral("Flow rate is out of range (beta %1");
    switch (is.mode) {
        case SolveFor::FlowRate:
            return {};
        case SolveFor::DiffPressure:
            if (is.fluid == 'L') {
                return {};
            }
            return {tooHigh.arg(QStringLiteral("differential pressure")),
                    unresolved.arg(is.fluid == 'S' ? QStringLiteral("Differential Pressure")
                                                   : QStringLiteral("differential pressure"))};
        case SolveFor::Beta:
            break;
    }
    QStringList messages{outside.arg(QStringLiteral("> 0.95). Flow rate too high for pipe size.")),
                         outside.arg(QStringLiteral("<= 0.0)."))};
    if (is.fluid != 'L') {
        messages.append(tooHigh.arg(QStringLiteral("beta")));
        messages.append(unresolved.arg(is.fluid == 'S' ? QStringLiteral("Beta Ratio")
                                                       : QStringLiteral("beta")));
    }
    return messages;
}

}  // namespace tarvix
