// The window itself: modes, result fields, fluids, colors, captions, focus.
#include "tests/random/invariants.h"

#include <algorithm>
#include <array>

namespace tarvix {

namespace {

using Names = std::initializer_list<std::string_view>;

constexpr std::array kModeOptions{"optCalcBeta", "optCalcDP", "optCalcFR"};
constexpr std::array kFluidOptions{"optLiquid", "optGas", "optSteam"};

// Exactly one of the options is selected, and it alone is green.
QString OneGreenOption(const Step& step, const std::array<const char*, 3>& options) {
    int selected = 0;
    for (const char* name : options) {
        const ControlView& option = step.now[name];
        selected += option.checked ? 1 : 0;
        const BackColor expected = option.checked ? BackColor::Green : BackColor::LightGrey;
        if (option.backColor != expected) {
            return Named(name) + QStringLiteral(" has the wrong color");
        }
    }
    return selected == 1 ? QString() : QStringLiteral("%1 options are selected").arg(selected);
}

QString OneMode(const Step& step) {
    return OneGreenOption(step, kModeOptions);
}

QString OneFluid(const Step& step) {
    return OneGreenOption(step, kFluidOptions);
}

bool IsResult(std::string_view field, SolveFor mode) {
    return field == ResultField(mode) || (field == "txtOriBoreDia" && mode == SolveFor::Beta);
}

QString ResultFields(const Step& step) {
    for (const std::string_view name : {"txtFlow", "txtDeltaP", "txtBeta", "txtOriBoreDia"}) {
        const ControlView& field = step.now[name];
        const bool result = IsResult(name, step.is.mode);
        if (field.locked != result || field.tabStop == result ||
            field.backColor != (result ? BackColor::Green : BackColor::WindowBackground)) {
            return Named(name) + (result ? QStringLiteral(" is the result but does not look it")
                                         : QStringLiteral(" is an input but does not look it"));
        }
    }
    return {};
}

QString InputsAreOpen(const Step& step) {
    for (const std::string_view name :
         {"txtPf", "txtTf", "txtDensity", "txtSGb", "txtSGf", "txtGasSGb", "txtZf"}) {
        const ControlView& field = step.now[name];
        if (field.locked || !field.tabStop || field.backColor == BackColor::Green) {
            return Named(name) + QStringLiteral(" looks like a result");
        }
    }
    return {};
}

QString FluidFrames(const Step& step) {
    struct Row {
        const char* frame;
        std::string_view fluids;  // that show it
    };
    constexpr Row kRows[] = {{"fraSG", "L"},
                             {"fraTemp", "G"},
                             {"fraPress", "GS"},
                             {"fraDensity", "LS"},
                             {"fraCompCorrection", "G"}};
    for (const Row& row : kRows) {
        const bool shown = row.fluids.find(step.is.fluid) != std::string_view::npos;
        if (step.now[row.frame].visible != shown) {
            return Named(row.frame) +
                   (shown ? QStringLiteral(" is hidden") : QStringLiteral(" is shown"));
        }
    }
    return {};
}

QString FluidLayout(const Step& step) {
    if (step.is.fluid != 'G' && step.now["fraDensity"].top != (step.is.fluid == 'L' ? 1320 : 360)) {
        return QStringLiteral("fraDensity is at %1").arg(step.now["fraDensity"].top);
    }
    if (step.is.fluid != 'L' &&
        step.now["fraPress"].width != (step.is.fluid == 'G' ? 6555 : 9015)) {
        return QStringLiteral("fraPress is %1 wide").arg(step.now["fraPress"].width);
    }
    return {};
}

QString OneOfEachGroup(const Step& step) {
    const Names groups[] = {
        {"optSgCalc", "optSgUser"},      {"optSaturated", "optSuperheated"},
        {"optSteamTbl", "optSteamUser"}, {"optCompCorrNone", "optCompDensity", "optCompZf"},
        {"optDegF", "optDegC"},          {"optPgauge", "optPabsolute"}};
    for (const Names& group : groups) {
        const auto selected = std::ranges::count_if(
            group, [&](std::string_view name) { return step.now[name].checked; });
        if (selected != 1) {
            return QStringLiteral("%1 options of the group of %2 are selected")
                .arg(selected)
                .arg(Named(*group.begin()));
        }
    }
    return {};
}

QString CaptionsStay(const Step& step) {
    const std::vector<ControlView>& before = step.before.controls();
    const std::vector<ControlView>& now = step.now.controls();
    for (size_t i = 0; i < now.size(); ++i) {
        const QString& name = step.now.NameOf(i);
        if (name != QLatin1String("lblMsg") && name != QLatin1String("lblCompCorr") &&
            name != QLatin1String("lbl2ZfCompWarning") && before[i].caption != now[i].caption) {
            return name + QStringLiteral(" says ") + Quoted(now[i].caption);
        }
    }
    return step.now.title == QLatin1String("Brindle Tarvix") ? QString() : step.now.title;
}

QString AlwaysThere(const Step& step) {
    for (const std::string_view name : {"fraCalcOptions", "optCalcBeta",
                                        "optCalcDP",      "optCalcFR",
                                        "fraFlowType",    "optLiquid",
                                        "optGas",         "optSteam",
                                        "cmdExit",        "tabOrifice",
                                        "fraPipe",        "cboNomSize",
                                        "cboPipeID",      "cboPipeIDUnit",
                                        "fraFlowrate",    "txtFlow",
                                        "cboFlowUnit",    "cboTimeUnit",
                                        "fraDeltaP",      "txtDeltaP",
                                        "cboDeltaPunit",  "fraOriBoreDiameter",
                                        "txtOriBoreDia",  "cboOriBoreUnit",
                                        "fraBeta",        "txtBeta",
                                        "mnuExit",        "mnuAbout"}) {
        if (!step.now[name].visible || !step.now[name].enabled) {
            return Named(name) + QStringLiteral(" can't be used");
        }
    }
    return {};
}

// Only the colors that tell a state; the rest of the window keeps the system's.
QString StateColors(const Step& step) {
    const std::vector<ControlView>& controls = step.now.controls();
    for (size_t i = 0; i < controls.size(); ++i) {
        const QString& name = step.now.NameOf(i);
        const BackColor color = controls[i].backColor;
        const bool state = name.startsWith(QLatin1String("optCalc")) ||
                           name == QLatin1String("optLiquid") || name == QLatin1String("optGas") ||
                           name == QLatin1String("optSteam") || name == QLatin1String("lblMsg") ||
                           name == QLatin1String("fraZfCompWarning") ||
                           name == QLatin1String("fraPlateThicknessWarning");
        const bool field = controls[i].kind == ControlKind::TextBox;
        if (!state && color != BackColor::Default &&
            !(field && (color == BackColor::WindowBackground || color == BackColor::PaleGrey ||
                        color == BackColor::Green))) {
            return name + QStringLiteral(" is colored");
        }
    }
    return {};
}

QString OpensAsDesigned(const Step& step) {
    if (!step.Opening()) {
        return {};
    }
    for (const char* option : {"optGas", "optCalcBeta", "optPgauge", "optDegF", "optSgUser",
                               "optSaturated", "optSteamUser", "optCompCorrNone"}) {
        if (!step.now[option].checked) {
            return Named(option) + QStringLiteral(" is not selected");
        }
    }
    for (const std::string_view field : kNumericFields) {
        if (!step.now[field].text.isEmpty()) {
            return Named(field) + QStringLiteral(" is not empty");
        }
    }
    const std::pair<const char*, const char*> selections[] = {
        {"cboPressUnit", "PSI"},
        {"cboDeltaPunit", "Inches Water"},
        {"cboDensityUnit", "lb/cubic foot"},
        {"cboZfDensityUnit", "lb/cubic foot"},
        {"cboPipeIDUnit", "Inches"},
        {"cboOriBoreUnit", "Inches"},
        {"cboNomSize", "2"},
        {"cboFlowUnit", "Standard Cubic Feet"},
        {"cboTimeUnit", "Day"},
    };
    for (const auto& [list, text] : selections) {
        if (step.now[list].text != QLatin1String(text)) {
            return Named(list) + QStringLiteral(" shows ") + Quoted(step.now[list].text);
        }
    }
    const QString pipe = step.world.numbers.Localized(QStringLiteral("2.067")) +
                         QStringLiteral("\"  Sch 40, STD, Sch 40S");
    return step.now["cboPipeID"].text == pipe ? QString() : step.now["cboPipeID"].text;
}

QString FocusIsUsable(const Step& step) {
    if (step.now.focus.isEmpty()) {
        return {};
    }
    const ControlView& control = step.now[step.now.focus.toStdString()];
    return control.visible && control.enabled
               ? QString()
               : step.now.focus + QStringLiteral(" has the focus but can't be used");
}

QString TabSkipsResults(const Step& step) {
    if (step.command != QLatin1String("keys") || !step.action.endsWith(QLatin1String("{Tab}")) ||
        step.now.focus.isEmpty()) {
        return {};
    }
    const ControlView& control = step.now[step.now.focus.toStdString()];
    // A lone result field that had the focus already keeps it when nothing else takes it.
    return control.locked && step.now.focus != step.before.focus
               ? step.now.focus + QStringLiteral(" was reached by Tab")
               : QString();
}

}  // namespace

void AddFormInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"one-mode",
          "Exactly one calculation mode is selected; its option is green, the two others light "
          "grey.",
          OneMode},
         {"one-fluid",
          "Exactly one fluid is selected; its option is green, the two others light grey.",
          OneFluid},
         {"result-fields",
          "The result field of the mode (beta mode: bore too) is green, locked and no tab stop; "
          "flow, differential pressure, beta and bore are plain inputs otherwise.",
          ResultFields},
         {"inputs-open", "No other field is ever locked, green or out of the tab order.",
          InputsAreOpen},
         {"fluid-frames", "Each fluid shows its own property frames and no others.", FluidFrames},
         {"fluid-layout",
          "fraDensity stands at 1320 (liquid) or 360 (steam), fraPress is 6555 (gas) or 9015 "
          "(steam) wide.",
          FluidLayout},
         {"one-of-each-group", "Of every group of options exactly one is selected.",
          OneOfEachGroup},
         {"captions-stay",
          "No caption changes but those of lblMsg, lblCompCorr and lbl2ZfCompWarning.",
          CaptionsStay},
         {"always-there", "What does not depend on the fluid is always shown and can be used.",
          AlwaysThere},
         {"state-colors", "Nothing is colored but what shows a state by its color.", StateColors},
         {"opens-as-designed",
          "The window opens with gas, the beta mode, empty fields, a 2 inch pipe of schedule 40 "
          "and "
          "the first unit of every list.",
          OpensAsDesigned},
         {"focus-usable", "The focus is never on a control that is hidden or disabled.",
          FocusIsUsable},
         {"tab-skips-results", "The Tab key never stops on a result field.", TabSkipsResults}});
}

}  // namespace tarvix
