// What the main window shows, read once for a calculation.
#pragma once

#include "calc/equation_terms.h"
#include "calc/orifice_gas.h"
#include "units/unit_tables.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvix {

// The numeric fields of the main window.
enum class Field { None, Flow, DeltaP, Beta, OriBoreDia, Pf, Tf, Density, SGb, SGf, GasSGb, Zf };

// The unit selected in a unit list: its text and its factor to the calculation unit.
using SelectedUnit = Unit;

struct InputSheet {
    std::string fluidType;         // "L", "S", "G"
    std::optional<SolveFor> mode;  // what the selected option solves for

    std::string flow;     // txtFlow
    std::string deltaP;   // txtDeltaP
    std::string beta;     // txtBeta
    std::string pf;       // txtPf
    std::string tf;       // txtTf
    std::string density;  // txtDensity
    std::string sgb;      // txtSGb
    std::string sgf;      // txtSGf
    std::string gasSGb;   // txtGasSGb
    std::string zf;       // txtZf: Zf or the operating density

    SelectedUnit flowUnit{"", 1};
    std::string_view flowKind;  // "V" or "M"
    SelectedUnit timeUnit{"", 1};
    SelectedUnit deltaPUnit{"", 1};
    SelectedUnit pressUnit{"", 1};
    SelectedUnit densityUnit{"", 1};
    SelectedUnit zfDensityUnit{"", 1};
    std::string pipeDiameter;  // inches, number text of the selected pipe

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
