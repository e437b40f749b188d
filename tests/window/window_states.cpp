#include "tests/window/window_states.h"

#include <cstdlib>

namespace tarvix::testing {

namespace {

// A fluid with its property options chosen and its fields filled.
const std::vector<WindowState> kProperties = {
    {"liquid",
     {"click optLiquid", "click optSgUser", "choose cboFlowUnit Gallons", "type txtSGb 0.998",
      "type txtSGf 1.024", "type txtFlow 1250"}},
    {"liquid, gravity from density",
     {"click optLiquid", "choose cboFlowUnit Imperial Gallons", "click optSgCalc", "type txtSGb 1",
      "type txtDensity 62.3", "choose cboDensityUnit lb/cubic foot", "type txtFlow 1250"}},
    {"liquid, mass rate",
     {"click optLiquid", "click optSgUser", "type txtSGf 1", "type txtFlow 1250",
      "choose cboFlowUnit Metric Tons", "choose cboTimeUnit Day"}},
    {"liquid, mass rate, gravity from density",
     {"click optLiquid", "click optSgCalc", "type txtDensity 998.2",
      "choose cboDensityUnit kg/cubic meter", "type txtFlow 1250", "choose cboFlowUnit Kilograms",
      "choose cboTimeUnit Second"}},
    {"gas",
     {"click optGas", "click optCompCorrNone", "click optDegF", "click optPgauge",
      "choose cboPressUnit PSI", "type txtTf 60", "type txtPf 150", "type txtGasSGb 0.6",
      "type txtFlow 1250000"}},
    {"gas, compressibility may matter",
     {"click optGas", "click optCompCorrNone", "click optDegC", "click optPgauge",
      "choose cboPressUnit PSI", "type txtTf 15.5", "type txtPf 300", "type txtGasSGb 0.6",
      "type txtFlow 1250000"}},
    {"gas, compressibility matters",
     {"click optGas", "click optCompCorrNone", "click optDegF", "click optPabsolute",
      "choose cboPressUnit mm of Mercury", "type txtTf -20.5", "type txtPf 33000",
      "type txtGasSGb 0.6", "type txtFlow 125000", "choose cboFlowUnit Standard Cubic Meters"}},
    {"gas, correction by density",
     {"click optGas", "click optCompDensity", "click optDegF", "click optPgauge",
      "choose cboPressUnit kPa", "type txtTf 60", "type txtPf 2500", "type txtGasSGb 0.6",
      "type txtZf 21.337", "choose cboZfDensityUnit kg/cubic meter", "type txtFlow 1250000"}},
    {"gas, mass rate, correction by density",
     {"click optGas", "choose cboFlowUnit Pounds", "click optCompDensity", "click optDegC",
      "choose cboPressUnit inches of W.C", "type txtTf 60", "type txtPf 25000", "type txtZf 1.337",
      "choose cboZfDensityUnit lb/cubic foot", "type txtFlow 125000"}},
    {"gas, correction by Zf",
     {"click optGas", "click optCompZf", "click optDegF", "click optPgauge",
      "choose cboPressUnit PSI", "type txtTf 60", "type txtPf 850", "type txtGasSGb 0.6",
      "type txtZf 0.8875", "type txtFlow 12500000"}},
    {"steam",
     {"click optSteam", "choose cboPressUnit PSI", "click optPgauge", "type txtPf 150",
      "choose cboDensityUnit lb/cubic foot", "type txtDensity 0.3627", "type txtFlow 12500"}},
    {"steam from the table",
     {"click optSteam", "choose cboPressUnit mm of Mercury", "click optPabsolute",
      "type txtPf 7750", "choose cboDensityUnit kg/cubic meter", "click optSteamTbl",
      "type txtFlow 12500"}},
    {"superheated steam",
     {"click optSteam", "choose cboPressUnit bar", "click optPgauge", "type txtPf 10",
      "click optSuperheated", "choose cboDensityUnit kg/cubic meter", "type txtDensity 4.85",
      "type txtFlow 1250", "choose cboFlowUnit Kilograms"}},
};

// A pipe, a differential pressure that does or doesn't warn, and a bore.
const std::vector<WindowState> kPipes = {
    {"2 inch pipe",
     {"choose cboPipeIDUnit Inches", "choose cboNomSize 2", "choose cboPipeID #0",
      "choose cboDeltaPunit Inches Water", "type txtDeltaP 100"}},
    {"10 inch pipe in millimeters, plate warning",
     {"choose cboPipeIDUnit Millimeters", "choose cboNomSize 254.0", "choose cboPipeID #0",
      "choose cboDeltaPunit Inches of Mercury", "type txtDeltaP 15"}},
    {"user entered pipe in centimeters",
     {"choose cboPipeIDUnit Centimeters", "choose cboNomSize 25.4", "answer text 25.451",
      "choose cboPipeID Other (User Entered)", "choose cboDeltaPunit mm of Mercury",
      "type txtDeltaP 187.5"}},
};

// The value that the mode solves for is never typed, so each mode keeps the two others.
const std::vector<WindowState> kModes = {
    {"beta", {"click optCalcBeta"}},
    {"differential pressure", {"type txtBeta 0.5", "click optCalcDP"}},
    {"flow rate", {"type txtBeta 0.5", "click optCalcFR"}},
};

WindowState Together(const WindowState& properties, const WindowState& pipe,
                     const WindowState& mode) {
    // Everything is typed while flow and differential pressure are inputs; beta is one in the last
    // two modes only.
    QStringList actions = {"click optCalcBeta"};
    actions += properties.actions;
    actions += pipe.actions;
    if (mode.name != "beta") {
        actions += "click optCalcFR";
    }
    actions += mode.actions;
    return {properties.name + "; " + pipe.name + "; " + mode.name, actions};
}

std::vector<WindowState> MessageStates() {
    const QStringList small = {"choose cboPipeIDUnit Inches", "choose cboNomSize 2",
                               "choose cboPipeID #0"};
    const QStringList liquid =
        small + QStringList{"click optLiquid", "choose cboFlowUnit Gallons", "type txtSGf 1",
                            "type txtSGb 1", "choose cboDeltaPunit Inches Water"};
    const QStringList gas = small + QStringList{"click optGas", "click optCompDensity",
                                                "choose cboFlowUnit Standard Cubic Feet"};
    const QStringList gasAtTen = {
        "click optCompCorrNone", "type txtTf 60",    "choose cboPressUnit PSI",  "click optPgauge",
        "type txtPf 10",         "type txtGasSGb 1", "type txtFlow 999999999999"};
    const QStringList steam =
        small + QStringList{"click optSteam", "choose cboPressUnit inches of W.C"};
    return {
        {"message: all fluid data missing",
         gas + QStringList{"paste txtTf ", "paste txtPf ", "paste txtGasSGb ", "paste txtZf "}},
        {"message: all fluid data not numeric",
         gas + QStringList{"paste txtTf x", "paste txtPf x", "paste txtGasSGb x", "paste txtZf x",
                           "focus txtFlow", "choose cboPressUnit PSI"}},
        {"message: all fluid data not positive",
         liquid + QStringList{"type txtSGf 0", "type txtSGb 0", "focus txtFlow",
                              "choose cboTimeUnit Day"}},
        {"message: liquid's density missing",
         liquid + QStringList{"click optSgCalc", "paste txtSGb ", "paste txtDensity "}},
        {"message: beyond the steam table",
         steam + QStringList{"click optPabsolute", "type txtPf 99999999", "click optSteamTbl"}},
        {"message: below a vacuum",
         steam + QStringList{"click optPgauge", "click optSteamUser", "type txtDensity 1",
                             "type txtPf -99999999"}},
        {"message: below a vacuum, density from the table",
         steam + QStringList{"click optPgauge", "type txtPf -99999999", "click optSteamTbl",
                             "focus cboPressUnit", "choose cboPressUnit inches of W.C"}},
        {"message: all orifice data missing",
         liquid + QStringList{"click optCalcFR", "paste txtDeltaP ", "paste txtBeta "}},
        {"message: beta outside the standard range",
         liquid + QStringList{"click optCalcFR", "type txtDeltaP 100", "type txtBeta 0.75"}},
        {"message: no such flow rate",
         liquid + QStringList{"click optCalcBeta", "type txtFlow 99999999", "type txtDeltaP 1"}},
        {"message: no such gas flow rate",
         gas + QStringList{"click optCalcBeta"} + gasAtTen +
             QStringList{"choose cboDeltaPunit Inches Water", "type txtDeltaP 1"}},
        {"message: no such gas differential pressure",
         gas + QStringList{"click optCalcDP", "type txtBeta 0.3"} + gasAtTen},
    };
}

}  // namespace

std::vector<WindowState> OptionStates() {
    std::vector<WindowState> states;
    for (const WindowState& properties : kProperties) {
        for (const WindowState& pipe : kPipes) {
            for (const WindowState& mode : kModes) {
                states.push_back(Together(properties, pipe, mode));
            }
        }
    }
    return states;
}

std::vector<WindowState> AllWindowStates() {
    std::vector<WindowState> states = OptionStates();
    const std::vector<WindowState> messages = MessageStates();
    states.insert(states.end(), messages.begin(), messages.end());
    return states;
}

StatePlayer::StatePlayer()
    : player_(
          [this](const QJsonObject& line) {
              if (line.contains("refused")) {
                  refusal_ = line["refused"].toString() + ": " + line["why"].toString();
              }
          },
          [] { std::abort(); }) {}

QString StatePlayer::Act(const QString& action) {
    refusal_.clear();
    const QString error = player_.Play(action);
    return error.isEmpty() ? refusal_ : action + ": " + error;
}

QString StatePlayer::Play(const WindowState& state) {
    for (const QString& action : state.actions) {
        const QString why = Act(action);
        if (!why.isEmpty()) {
            return state.name + ": " + why;
        }
    }
    ShowWhole();
    return {};
}

void StatePlayer::ShowWhole() {
    window().setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    window().resize(form().WholeSize() + QSize(0, window().menuBar()->sizeHint().height()));
    // What shows or hides for the new size lets the layout ask for another round.
    for (int round = 0; round < 4; ++round) {
        QCoreApplication::processEvents();
    }
}

}  // namespace tarvix::testing
