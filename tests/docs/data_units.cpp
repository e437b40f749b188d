// The unit factors against the physical definitions.
//   unit LIST TEXT FACTOR PLAIN DIFFERENCE ON FLOW    PLAIN: worked out from the definitions, in
//                                                     the factor's unit; the differences in
//                                                     percent, that of the flow for an entry in
//                                                     this unit (of a flow unit: of the flow shown)
//   pipe SIZE SCHEDULE TABLE PLAIN DIFFERENCE         inside diameter, inches
// The definitions, from which the column `exact` of tests/data/units.tsv is worked out: inch and
// pound exact, standard gravity, conventional mercury (13595.1 kg/m3), water of 20 deg C (998.2063
// kg/m3) for columns of water; for the mass of a liquid, water of specific gravity 1 (62.366 lb per
// cubic foot), and for that of a gas, air of 39.6619322 / 519.67.
#include "tests/docs/data_lines.h"
#include "tests/docs/double_solver.h"
#include "units/flow_units.h"
#include "units/nominal_sizes.h"
#include "units/unit_tables.h"

#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>

namespace tarvix::accuracy {

namespace {

enum class Enters { Root, Flow, Time };  // under the square root, as the flow itself, as its time

// `list` as the documents call it, `table` as the table does.
template <typename UnitList>
void PrintList(const char* list, const char* table, const UnitList& units, Enters enters) {
    static const UnitFactors factors(TARVIX_UNITS);
    for (const auto& unit : units) {
        const double plain = factors.ExactOf(table, unit.text);
        const double ratio = double{unit.factor} / plain;
        double onFlow = ratio;  // of a time: a factor too large shows a flow too large
        if (enters != Enters::Time) {
            onFlow = enters == Enters::Root ? std::sqrt(ratio) : 1 / ratio;
        }
        std::printf("unit\t%s\t%s\t%.7g\t%.7g\t%.6f\t%.6f\n", list, std::string(unit.text).c_str(),
                    double{unit.factor}, plain, 100 * (ratio - 1), 100 * (onFlow - 1));
    }
}

void PrintPipe(const char* size, std::string_view schedule, double outside, double wall) {
    for (const PipeSchedule& pipe : SchedulesOf(size)) {
        if (pipe.text == schedule) {
            const double table = std::stod(std::string(pipe.insideDiameter));
            const double plain = outside - 2 * wall;
            std::printf("pipe\t%s\t%s\t%.3f\t%.3f\t%.6f\n", size, pipe.text.data(), table, plain,
                        100 * (table / plain - 1));
        }
    }
}

}  // namespace

void PrintUnits() {
    using tarvix::Fluid;
    PrintList("pressure", "press", kPressUnits, Enters::Root);
    PrintList("differential pressure", "deltaP", kDeltaPUnits, Enters::Root);
    PrintList("density", "density", kDensityUnits, Enters::Root);
    PrintList("flow of liquid", "flow L", FlowUnitsOf(Fluid::Liquid).units, Enters::Flow);
    PrintList("flow of gas", "flow G", FlowUnitsOf(Fluid::Gas).units, Enters::Flow);
    PrintList("flow of steam", "flow S", FlowUnitsOf(Fluid::Steam).units, Enters::Flow);
    PrintList("time", "time", kTimeUnits, Enters::Time);
    // Outside diameter and wall of ASME B36.10.
    PrintPipe("6", "Sch 160 5.187", 6.625, 0.719);
    PrintPipe("14", "Sch 120", 14, 1.094);
    PrintPipe("16", "Sch 120", 16, 1.219);
}

}  // namespace tarvix::accuracy
