// What an action may change, and how often it calculates.
#include "tests/random/expected_message.h"
#include "tests/random/invariants.h"

#include <QSet>

#include <algorithm>

namespace tarvix {

namespace {

bool IsCommand(const Step& step, std::initializer_list<const char*> commands) {
    return std::ranges::any_of(
        commands, [&](const char* name) { return step.command == QLatin1String(name); });
}

// An action that no input of a calculation takes part in.
bool LeavesInputsAlone(const Step& step) {
    return step.refused || IsCommand(step, {"focus", "answer", "customer", "printer"}) ||
           step.Is("click", {"cmdPrint", "cmdExit", "mnuFile", "mnuPrint", "mnuExit", "mnuAbout"});
}

// Every difference between the two views, by control, but for the focus.
QStringList Changes(const Step& step) {
    QStringList changes;
    const std::vector<ControlView>& before = step.before.controls();
    const std::vector<ControlView>& now = step.now.controls();
    for (size_t i = 0; i < now.size(); ++i) {
        if (before[i] != now[i]) {
            changes.append(step.now.NameOf(i));
        }
    }
    return changes;
}

QString NothingChanges(const Step& step) {
    if (step.Opening() || !LeavesInputsAlone(step)) {
        return {};
    }
    return Changes(step).join(QStringLiteral(", "));
}

QString RefusedDoesNothing(const Step& step) {
    if (!step.refused) {
        return {};
    }
    return step.now.focus == step.before.focus && step.now.boxes.empty() && step.now.pages == 0
               ? QString()
               : QStringLiteral("a refused action had an effect");
}

// The fields that an action on this control may change beside itself, the result not counted.
QStringList Followers(const Step& step, const QString& control) {
    static const QStringList kBoreAndBeta{QStringLiteral("txtOriBoreDia"),
                                          QStringLiteral("txtBeta")};
    static const QStringList kDensity{QStringLiteral("txtDensity")};
    static const QStringList kGravity{QStringLiteral("txtSGf")};
    const auto is = [&](std::initializer_list<const char*> names) {
        return std::ranges::any_of(
            names, [&](const char* name) { return control == QLatin1String(name); });
    };
    if (is({"txtBeta", "txtOriBoreDia", "cboPipeID", "cboPipeIDUnit", "cboNomSize"})) {
        return kBoreAndBeta;
    }
    if (is({"cboOriBoreUnit"})) {
        return {QStringLiteral("txtOriBoreDia")};
    }
    if (is({"txtDensity", "cboDensityUnit"})) {
        return step.is.fluid == 'L' ? kGravity : kDensity;
    }
    if (is({"txtPf", "cboPressUnit", "optPgauge", "optPabsolute", "optSteamTbl", "optSteamUser",
            "optSaturated", "optSuperheated"})) {
        return kDensity;
    }
    if (is({"optSgCalc", "optSgUser", "optLiquid", "optSteam"})) {
        return kDensity + kGravity;
    }
    if (is({"optCompDensity", "optCompZf"})) {
        return {QStringLiteral("txtZf")};
    }
    return {};
}

QString OnlyWhatFollowsChanges(const Step& step) {
    if (step.Opening() || LeavesInputsAlone(step) || step.command == QLatin1String("keys")) {
        return {};
    }
    QStringList allowed = Followers(step, step.target);
    allowed.append(step.target);
    // The result, and the bore that follows a solved beta.
    allowed.append(Named(ResultField(step.is.mode)));
    if (step.is.mode == SolveFor::Beta) {
        allowed.append(QStringLiteral("txtOriBoreDia"));
    }
    // The former result is written anew as an input.
    if (step.is.mode != step.was.mode) {
        allowed.append(Named(ResultField(step.was.mode)));
    }
    for (const std::string_view field : kNumericFields) {
        if (step.before[field].text != step.now[field].text && !allowed.contains(Named(field))) {
            return Named(field) + QStringLiteral(" went from ") + Quoted(step.before[field].text) +
                   QStringLiteral(" to ") + Quoted(step.now[field].text);
        }
    }
    return {};
}

QString FormerResultIsEntry(const Step& step) {
    if (!step.Is("click", {"optCalcBeta", "optCalcDP", "optCalcFR"}) ||
        step.is.mode == step.was.mode) {
        return {};
    }
    const std::string_view former = ResultField(step.was.mode);
    const QString& text = step.before[former].text;
    QString expected = text;
    // Beta is left as it is.
    if (former != "txtBeta") {
        if (const auto value = step.world.numbers.ReadSingle(text)) {
            expected = step.world.numbers.Entry(*value);
        }
    }
    return step.now[former].text == expected
               ? QString()
               : Quoted(step.now[former].text) + QStringLiteral(" instead of ") + Quoted(expected);
}

QString CalculationsOf(const Step& step) {
    const int runs = step.Calculations();
    const auto expect = [runs](int least, int most) {
        return runs >= least && runs <= most ? QString()
                                             : QStringLiteral("%1 calculations").arg(runs);
    };
    if (step.Opening()) {
        return step.now.calculations == 1
                   ? QString()
                   : QStringLiteral("%1 at start").arg(step.now.calculations);
    }
    if (LeavesInputsAlone(step) || step.Is("choose", {"cboOriBoreUnit"})) {
        return expect(0, 0);
    }
    if (step.Is("choose", {"cboTimeUnit", "cboFlowUnit", "cboDeltaPunit", "cboZfDensityUnit"}) ||
        step.Is("click", {"optLiquid", "optGas", "optSteam", "optDegF", "optDegC", "optSgCalc",
                          "optCompCorrNone"})) {
        return expect(1, 1);
    }
    // A steam density outside the table is not calculated with.
    if (step.Is("choose", {"cboPressUnit", "cboDensityUnit"}) ||
        step.Is("click", {"optPgauge", "optPabsolute", "optSteamTbl"})) {
        const int expected = SteamTableMessage(step.now, step.is, step.world) ? 0 : 1;
        return expect(expected, expected);
    }
    // A field that is emptied on the way may calculate once more.
    if (step.Is("click", {"optSgUser", "optSteamUser", "optSaturated", "optSuperheated",
                          "optCompDensity", "optCompZf"})) {
        return expect(1, 2);
    }
    if (step.Is("click", {"optCalcBeta", "optCalcDP", "optCalcFR"})) {
        return expect(1, 3);
    }
    if (step.Is("choose", {"cboPipeID", "cboNomSize", "cboPipeIDUnit"})) {
        return expect(1, 8);
    }
    if (step.Is("paste", {"txtFlow", "txtDeltaP", "txtPf", "txtTf", "txtDensity", "txtSGb",
                          "txtSGf", "txtGasSGb", "txtZf"})) {
        const std::string field = step.target.toStdString();
        const bool same = step.before[field].text == step.now[field].text;
        const bool noTable = SteamTableMessage(step.now, step.is, step.world) &&
                             step.target == QLatin1String("txtPf");
        return same || noTable ? expect(0, 0) : expect(1, 1);
    }
    return {};
}

// The same inputs give the same result, digit for digit.
QString PickedAgain(const Step& step) {
    if (!step.Is("choose", {"cboTimeUnit", "cboFlowUnit", "cboDeltaPunit", "cboPressUnit",
                            "cboZfDensityUnit"})) {
        return {};
    }
    const std::string list = step.target.toStdString();
    if (step.before[list].index != step.now[list].index) {
        return {};
    }
    for (const std::string_view field : kNumericFields) {
        if (step.before[field].text != step.now[field].text) {
            return Named(field) + QStringLiteral(" is ") + Quoted(step.now[field].text) +
                   QStringLiteral(" and was ") + Quoted(step.before[field].text);
        }
    }
    return {};
}

QString FocusMoves(const Step& step) {
    // The tab control hands the focus to its row of tabs.
    if (step.refused || step.target == QLatin1String("tabOrifice")) {
        return {};
    }
    const std::pair<const char*, const char*> moves[] = {
        {"optLiquid", "txtSGf"},        {"optSteam", "txtDensity"},
        {"optSgCalc", "txtDensity"},    {"optSgUser", "txtSGf"},
        {"optSteamTbl", "txtPf"},       {"optSteamUser", "txtDensity"},
        {"optSaturated", "txtDensity"}, {"optSuperheated", "txtDensity"},
    };
    QString expected = step.target;
    for (const auto& [option, field] : moves) {
        if (step.Is("click", {option})) {
            expected = QLatin1String(field);
        }
    }
    const bool moves_ =
        IsCommand(step, {"focus", "type", "paste", "choose"}) ||
        (step.command == QLatin1String("click") && step.target.startsWith(QLatin1String("opt")));
    return !moves_ || step.now.focus == expected
               ? QString()
               : QStringLiteral("the focus is on ") + step.now.focus;
}

}  // namespace

void AddActionInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"nothing-changes",
          "What a user can't do changes nothing, nor do focus, menus, printing, About and a "
          "cancelled exit.",
          NothingChanges},
         {"refused-does-nothing", "A refused action moves no focus, shows no box, prints nothing.",
          RefusedDoesNothing},
         {"only-what-follows-changes",
          "An action changes its own field, the result, and what is tied to it; every other input "
          "keeps its text.",
          OnlyWhatFollowsChanges},
         {"former-result-is-entry",
          "A change of mode writes the former flow or differential pressure as an entry, and "
          "leaves beta as it is.",
          FormerResultIsEntry},
         {"calculations",
          "A change of an input calculates, a pick or click of a unit or option exactly once, the "
          "bore unit and everything else never.",
          CalculationsOf},
         {"picked-again", "Picking the selected unit again changes no field.", PickedAgain},
         {"focus-moves",
          "The focus goes to the control that is used, or to the field that its option opens.",
          FocusMoves}});
}

}  // namespace tarvix
