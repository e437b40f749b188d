#include "tests/random/action_generator.h"

#include "tests/random/expected_flow.h"

#include <algorithm>
#include <cmath>

namespace tarvix {

namespace {

constexpr const char* kModes[] = {"optCalcBeta", "optCalcDP", "optCalcFR"};
constexpr const char* kFluids[] = {"optLiquid", "optGas", "optSteam"};

// Stands in a plan for a flow that is worked out when its turn comes.
constexpr const char* kFittingFlow = "fitting flow";

QString Line(const char* command, const QString& rest) {
    return QLatin1String(command) + QLatin1Char(' ') + rest;
}

}  // namespace

QString ActionGenerator::Control(const WindowView& view, std::initializer_list<ControlKind> kinds) {
    const bool anyAtAll = random_.Chance(4);
    std::vector<size_t> candidates;
    for (size_t i = 0; i < view.controls().size(); ++i) {
        const ControlView& control = view.controls()[i];
        if (anyAtAll || (std::ranges::find(kinds, control.kind) != kinds.end() && control.visible &&
                         control.enabled && !control.locked)) {
            candidates.push_back(i);
        }
    }
    return view.NameOf(random_.Pick(candidates));
}

QString ActionGenerator::Next(const WindowView& view) {
    // What was planned goes on, mostly.
    if (!planned_.empty() && !random_.Chance(3)) {
        const QString line = planned_.front();
        planned_.pop_front();
        return line == QLatin1String(kFittingFlow) ? FittingFlow(view) : line;
    }
    if (planned_.empty() && calmActions_ > 0 && !random_.Chance(5)) {
        --calmActions_;
        return Calm(view);
    }
    if (planned_.empty() && random_.Chance(10)) {
        PlanRun(view);
    }
    return Free(view);
}

QString ActionGenerator::Calm(const WindowView& view) {
    const int kind = random_.Below(100);
    if (kind < 40) {
        const QString field = Control(view, {ControlKind::TextBox});
        return Line(random_.Chance(80) ? "type" : "paste",
                    field + QLatin1Char(' ') + texts_.Plausible(field));
    }
    if (kind < 60) {
        return Choose(view, Control(view, {ControlKind::ComboBox}));
    }
    if (kind < 75) {
        return Line("click", QLatin1String(random_.Pick(kModes)));
    }
    if (kind < 80) {
        return Click(view);
    }
    if (kind < 90) {
        return FittingFlow(view);
    }
    if (kind < 98) {
        return Line("keys", random_.Chance(50) ? QStringLiteral("{Tab}") : texts_.Keys());
    }
    // A page takes as long as hundreds of other actions.
    if (random_.Chance(10) && !printerFile_.isEmpty()) {
        planned_.push_back(QStringLiteral("click cmdPrint"));
        planned_.push_back(QStringLiteral("printer"));
        return Line("printer", printerFile_);
    }
    return QStringLiteral("click mnuPrint");
}

QString ActionGenerator::Free(const WindowView& view) {
    const int kind = random_.Below(1000);
    if (kind < 420) {
        return Enter(view);
    }
    if (kind < 520) {
        return Line("keys", texts_.Keys());
    }
    if (kind < 690) {
        return Choose(view, Control(view, {ControlKind::ComboBox}));
    }
    if (kind < 890) {
        return Click(view);
    }
    if (kind < 940) {
        return Line("focus", Control(view, {ControlKind::TextBox, ControlKind::ComboBox,
                                            ControlKind::Option, ControlKind::Button}));
    }
    if (kind < 965) {
        return random_.Chance(50) ? QStringLiteral("answer cancel") : QStringLiteral("answer ok");
    }
    if (kind < 980) {
        return Line("answer text", texts_.Any(QString()));
    }
    if (kind < 990) {
        return QStringLiteral("customer Some customer|%1|%2")
            .arg(texts_.Any(QString()), texts_.Any(QString()));
    }
    return Leave();
}

QString ActionGenerator::Enter(const WindowView& view) {
    const QString field = Control(view, {ControlKind::TextBox});
    const QString text = texts_.Any(field);
    return Line(random_.Chance(65) ? "type" : "paste", field + QLatin1Char(' ') + text);
}

QString ActionGenerator::Choose(const WindowView& view, QString list) {
    if (list == QLatin1String("cboPipeID") && random_.Chance(25)) {
        return ChoosePipe();
    }
    const ControlView& control = view[list.toStdString()];
    list += QLatin1Char(' ');
    if (control.items.isEmpty() || random_.Chance(2)) {
        return Line("choose", list + QStringLiteral("no such entry"));
    }
    // The selected entry again, one by its place, one by its text.
    if (control.index >= 0 && random_.Chance(15)) {
        return Line("choose", list + QLatin1Char('#') + QString::number(control.index));
    }
    const int place = random_.Below(static_cast<int>(control.items.size()));
    return Line("choose", list + (random_.Chance(30) ? control.items.at(place)
                                                     : QLatin1Char('#') + QString::number(place)));
}

QString ActionGenerator::ChoosePipe() {
    planned_.push_back(QStringLiteral("choose cboPipeID Other (User Entered)"));
    return random_.Chance(80) ? Line("answer text", random_.Chance(70) ? texts_.Plausible(QString())
                                                                       : texts_.Any(QString()))
                              : QStringLiteral("answer cancel");
}

QString ActionGenerator::Click(const WindowView& view) {
    return Line("click", Control(view, {ControlKind::Option}));
}

QString ActionGenerator::Leave() {
    const int kind = random_.Below(10);
    if (kind < 4) {
        return QStringLiteral("click ") +
               (kind < 2 ? QStringLiteral("cmdPrint") : QStringLiteral("mnuPrint"));
    }
    if (kind < 6) {
        return kind < 5 ? QStringLiteral("click mnuAbout") : QStringLiteral("click mnuFile");
    }
    // Mostly cancelled, so that a window lives for a while.
    QString exit =
        random_.Chance(50) ? QStringLiteral("click cmdExit") : QStringLiteral("click mnuExit");
    if (random_.Chance(90)) {
        planned_.push_front(exit);
        return QStringLiteral("answer cancel");
    }
    return exit;
}

// A complete run: mode, fluid, options, units and a plausible value in every field. What can't be
// used with the options at that moment is refused, and no harm done.
void ActionGenerator::PlanRun(const WindowView& view) {
    const auto plan = [this](const QString& line) { planned_.push_back(line); };
    plan(Line("click", QLatin1String(random_.Pick(kFluids))));
    plan(Line("click", QLatin1String(random_.Pick(kModes))));
    for (const char* option : {"optSgCalc", "optSteamTbl", "optCompDensity", "optCompZf",
                               "optCompCorrNone", "optDegC", "optPabsolute", "optPgauge"}) {
        if (random_.Chance(25)) {
            plan(Line("click", QLatin1String(option)));
        }
    }
    for (const char* list : {"cboFlowUnit", "cboTimeUnit", "cboDeltaPunit", "cboPressUnit",
                             "cboDensityUnit", "cboNomSize", "cboPipeID", "cboPipeIDUnit"}) {
        if (random_.Chance(25)) {
            plan(Choose(view, QLatin1String(list)));
        }
    }
    for (const std::string_view field : kNumericFields) {
        const QString name =
            QString::fromLatin1(field.data(), static_cast<qsizetype>(field.size()));
        // The bore would undo beta; one of the two is entered.
        if (field != "txtOriBoreDia" || random_.Chance(20)) {
            plan(Line("type", name + QLatin1Char(' ') + texts_.Plausible(name)));
        }
    }
    if (random_.Chance(80)) {
        plan(QLatin1String(kFittingFlow));
    }
    calmActions_ = random_.Below(60);
}

// A flow that the pipe can carry, so that there is a beta or a differential pressure for it.
QString ActionGenerator::FittingFlow(const WindowView& view) {
    const Reading is(view, world_);
    const ShownRun run(is);
    const double beta = is.mode == SolveFor::Beta ? random_.Between(0.1, 0.94) : run.beta;
    const double inches = is.mode == SolveFor::DiffPressure ? random_.Between(1, 400)
                                                            : run.diffPress * run.diffPressFactor;
    const double flow = run.Flow(beta, inches) / run.flowFactor;
    const QString text = std::isfinite(flow) && flow > 0 && flow < 1e30
                             ? world_.numbers.Entry(static_cast<float>(flow))
                             : texts_.Plausible(QStringLiteral("txtFlow"));
    return QStringLiteral("type txtFlow ") + text;
}

}  // namespace tarvix
