// What the main window shows, read once for a calculation: each number as a text with its value.
#pragma once

#include "calc/equation_terms.h"
#include "calc/orifice_gas.h"
#include "numbers/entered_number.h"
#include "units/unit_tables.h"

#include <optional>

namespace tarvix {

// The numeric fields of the main window.
enum class Field { None, Flow, DeltaP, Beta, OriBoreDia, Pf, Tf, Density, SGb, SGf, GasSGb, Zf };

// The unit selected in a unit list: its text and its factor to the calculation unit. No text while
// the lists are not filled yet.
using SelectedUnit = Unit;

struct InputSheet {
    Fluid fluid = Fluid::Gas;
    std::optional<SolveFor> mode;  // what the selected option solves for

    EnteredNumber flow;     // txtFlow
    EnteredNumber deltaP;   // txtDeltaP
    EnteredNumber beta;     // txtBeta
    EnteredNumber pf;       // txtPf
    EnteredNumber tf;       // txtTf
    EnteredNumber density;  // txtDensity
    EnteredNumber sgb;      // txtSGb
    EnteredNumber sgf;      // txtSGf
    EnteredNumber gasSGb;   // txtGasSGb
    EnteredNumber zf;       // txtZf: Zf or the operating density

    SelectedUnit flowUnit{"", 1};
    std::optional<FlowKind> flowKind;
    SelectedUnit timeUnit{"", 1};
    SelectedUnit deltaPUnit{"", 1};
    SelectedUnit pressUnit{"", 1};
    SelectedUnit densityUnit{"", 1};
    SelectedUnit zfDensityUnit{"", 1};
    EnteredNumber pipeDiameter;  // inches, of the selected pipe

    bool sgCalculated = false;      // optSgCalc
    bool steamFromTable = false;    // optSteamTbl
    bool absolutePressure = false;  // optPabsolute
    bool degC = false;              // optDegC
    CompCorrection compCorrection = CompCorrection::None;

    bool sgbVisible = false;     // txtSGb
    bool gasSGbVisible = false;  // txtGasSGb
    bool zfVisible = false;      // txtZf

    Field activeField = Field::None;  // the numeric field that has the focus
};

}  // namespace tarvix
