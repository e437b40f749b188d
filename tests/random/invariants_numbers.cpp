// The numbers in the fields: what is typed, what follows from what.
#include "tests/random/invariants.h"

#include <algorithm>
#include <cmath>

namespace tarvix {

namespace {

bool IsEdit(const Step& step) {
    return step.command == QLatin1String("type") || step.command == QLatin1String("paste") ||
           step.command == QLatin1String("keys");
}

// True for the fields that the action itself may have typed into. Keys may lead through any field
// that is open.
bool Edited(const Step& step, std::string_view field) {
    if (!IsEdit(step) || step.refused) {
        return false;
    }
    const ControlView& control = step.now[field];
    return step.target == Named(field) || (step.command == QLatin1String("keys") &&
                                           !control.locked && control.enabled && control.visible);
}

QString ProgramWritesNumbers(const Step& step) {
    for (const std::string_view field : kNumericFields) {
        const QString& text = step.now[field].text;
        if (text != step.before[field].text && !text.isEmpty() && !Edited(step, field) &&
            !step.world.numbers.Read(text)) {
            return Named(field) + QStringLiteral(" holds ") + Quoted(text);
        }
    }
    return {};
}

QString BetaBelowLimit(const Step& step) {
    return step.is.beta && *step.is.beta >= 0.95F ? step.now["txtBeta"].text : QString();
}

// Each of the two was rounded when it was last written: beta to 5 decimals, the bore to 3, both to
// the 7 digits of a single.
QString BoreIsBetaTimesPipe(const Step& step) {
    const Reading& is = step.is;
    if (!is.bore || !is.beta) {
        return {};
    }
    const double bore = double{*is.bore} * double{is.boreFactor};
    const double ofBeta = double{*is.beta} * double{is.pipeDiameterIn};
    const double tolerance = 0.5e-5 * double{is.pipeDiameterIn} + 0.5e-3 * double{is.boreFactor} +
                             1e-6 * (std::fabs(bore) + std::fabs(ofBeta));
    return std::fabs(bore - ofBeta) <= tolerance
               ? QString()
               : QStringLiteral("bore %1 in, beta x pipe %2 in").arg(bore).arg(ofBeta);
}

QString Expected(std::string_view field, const QString& found, const QString& expected) {
    return found == expected ? QString()
                             : Named(field) + QStringLiteral(" is ") + Quoted(found) +
                                   QStringLiteral(" instead of ") + Quoted(expected);
}

// The text that a finite single is written with; empty for any other.
QString Text(const Step& step, float value, int decimals) {
    return std::isfinite(value) ? step.world.numbers.Fixed(value, decimals, false) : QString();
}

QString BetaText(const Step& step, std::optional<float> bore) {
    if (!bore || step.is.pipeDiameterIn == 0) {
        return {};
    }
    const float inches = *bore * step.is.boreFactor;
    return Text(step, inches / step.is.pipeDiameterIn, 5);
}

QString BoreText(const Step& step, float beta) {
    const float inches = beta * step.is.pipeDiameterIn;
    return Text(step, inches / step.is.boreFactor, 3);
}

bool WasEdited(const Step& step, std::string_view field) {
    return (step.Is("type", {field}) || step.Is("paste", {field})) && step.now.boxes.empty() &&
           step.now[field].text != step.before[field].text;
}

QString BetaFromTypedBore(const Step& step) {
    return WasEdited(step, "txtOriBoreDia")
               ? Expected("txtBeta", step.now["txtBeta"].text, BetaText(step, step.is.bore))
               : QString();
}

QString BoreFromTypedBeta(const Step& step) {
    if (!WasEdited(step, "txtBeta")) {
        return {};
    }
    const QString& bore = step.now["txtOriBoreDia"].text;
    if (step.is.beta) {
        return Expected("txtOriBoreDia", bore, BoreText(step, *step.is.beta));
    }
    // What is no number leaves the bore alone; while it was typed it may have been one.
    return step.command == QLatin1String("paste")
               ? Expected("txtOriBoreDia", bore, step.before["txtOriBoreDia"].text)
               : QString();
}

QString BoreInNewUnit(const Step& step) {
    if (!step.Is("choose", {"cboOriBoreUnit"})) {
        return {};
    }
    return Expected("txtOriBoreDia", step.now["txtOriBoreDia"].text,
                    step.is.beta ? BoreText(step, *step.is.beta) : QString());
}

QString BetaFollowsPipe(const Step& step) {
    const bool refused = std::ranges::any_of(
        step.now.boxes, [](const ShownBox& box) { return box.title == "Beta Value"; });
    if (!step.Is("choose", {"cboPipeID"}) || step.is.mode == SolveFor::Beta || refused) {
        return {};
    }
    if (!step.was.bore) {
        return Expected("txtBeta", step.now["txtBeta"].text, QString());
    }
    // The bore as rewritten with 3 decimals gives beta, and a new beta writes the bore again.
    const QString rewritten = Text(step, *step.was.bore, 3);
    const QString beta = BetaText(step, step.world.numbers.ReadSingle(rewritten));
    QString fault = Expected("txtBeta", step.now["txtBeta"].text, beta);
    if (!fault.isEmpty() || step.now["txtOriBoreDia"].text == rewritten) {
        return fault;
    }
    return step.is.beta ? Expected("txtOriBoreDia", step.now["txtOriBoreDia"].text,
                                   BoreText(step, *step.is.beta))
                        : QStringLiteral("the bore was not kept");
}

QString GravityFromDensity(const Step& step) {
    const Reading& is = step.is;
    if (is.fluid != 'L' || !is.sgCalculated) {
        return {};
    }
    const QString& text = step.now["txtSGf"].text;
    if (!is.density || !(*is.density > 0)) {
        return Expected("txtSGf", text, QString());
    }
    const double expected = double{*is.density} * double{is.densityFactor} / 62.366;
    const double tolerance = 0.5e-4 + 1e-6 * expected;
    if (expected > 1e38) {
        return {};
    }
    return is.sgf && std::fabs(double{*is.sgf} - expected) <= tolerance
               ? QString()
               : Quoted(text) + QStringLiteral(" for %1").arg(expected);
}

// The table's density at this gauge pressure; nothing outside the table.
std::optional<double> TableDensity(const std::vector<SteamRow>& table, double psig) {
    if (psig < table.front().psig || psig > table.back().psig) {
        return std::nullopt;
    }
    for (size_t i = 1; i < table.size(); ++i) {
        if (psig <= table[i].psig) {
            const double part = (psig - table[i - 1].psig) / (table[i].psig - table[i - 1].psig);
            return table[i - 1].density + part * (table[i].density - table[i - 1].density);
        }
    }
    return std::nullopt;
}

QString DensityFromSteamTable(const Step& step) {
    const Reading& is = step.is;
    if (is.fluid != 'S' || !is.steamTable) {
        return {};
    }
    const QString& text = step.now["txtDensity"].text;
    const auto psi = is.PressurePsi();
    const auto expected =
        psi ? TableDensity(step.world.tables.steam, double{is.absolute ? *psi - 14.7F : *psi})
            : std::nullopt;
    if (!expected) {
        return Expected("txtDensity", text, QString());
    }
    const double density = *expected / double{is.densityFactor};
    return is.density && std::fabs(double{*is.density} - density) <= 1e-5 + 1e-6 * density
               ? QString()
               : Quoted(text) + QStringLiteral(" for %1").arg(density);
}

// What the key filter lets through, one key after the other, into a field whose text was selected.
QString Filtered(const QString& typed, QString text, QChar separator) {
    qsizetype start = 0;
    qsizetype end = text.size();
    for (const QChar key : typed) {
        const bool digit = key >= QLatin1Char('0') && key <= QLatin1Char('9');
        const bool sign = (key == QLatin1Char('+') || key == QLatin1Char('-')) && start == 0;
        const QString searched = start < end ? text.mid(end) : text;
        if (digit || sign || (key == separator && !searched.contains(separator))) {
            text.replace(start, end - start, key);
            ++start;
            end = start;
        }
    }
    return text;
}

QString TypedText(const Step& step) {
    if (step.command != QLatin1String("type") || step.refused || !step.now.boxes.empty()) {
        return {};
    }
    const std::string field = step.target.toStdString();
    return Expected(
        field, step.now[field].text,
        Filtered(step.argument, step.before[field].text, step.world.numbers.decimalSeparator()));
}

QString PastedText(const Step& step) {
    if (step.command != QLatin1String("paste") || step.refused || !step.now.boxes.empty()) {
        return {};
    }
    const std::string field = step.target.toStdString();
    return Expected(field, step.now[field].text, step.argument);
}

}  // namespace

void AddNumberInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"program-writes-numbers",
          "What the program writes into a field is empty or a number of the user's system; never "
          "an infinity or NaN.",
          ProgramWritesNumbers},
         {"beta-below-limit", "A beta of 0.95 or more never stands in its field.", BetaBelowLimit},
         {"bore-is-beta-times-pipe",
          "Bore = beta x pipe diameter to the displayed digits, whenever both hold a number.",
          BoreIsBetaTimesPipe},
         {"beta-from-typed-bore",
          "A bore typed or pasted gives its beta with 5 decimals; what is no number, or a pipe "
          "without a diameter, empties it.",
          BetaFromTypedBore},
         {"bore-from-typed-beta",
          "A beta typed or pasted gives its bore with 3 decimals; what is no number leaves the "
          "bore alone.",
          BoreFromTypedBeta},
         {"bore-in-new-unit", "A new bore unit shows the bore of the beta in that unit.",
          BoreInNewUnit},
         {"beta-follows-pipe", "A new pipe keeps the bore, to 3 decimals, and changes beta.",
          BetaFollowsPipe},
         {"gravity-from-density",
          "A calculated gravity is the density over that of water, or empty without a density.",
          GravityFromDensity},
         {"density-from-steam-table",
          "A density from the table is the one at the operating pressure, or empty outside the "
          "table.",
          DensityFromSteamTable},
         {"typed-text", "Typing leaves in a field what the key filter lets through.", TypedText},
         {"pasted-text", "Pasting leaves in a field what was pasted.", PastedText}});
}

}  // namespace tarvix
