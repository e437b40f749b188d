#include "tests/docs/double_solver.h"

#include "tests/docs/reference_meter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tarvix::accuracy {

namespace {

constexpr double kAtmospherePsi = 14.7;
constexpr double kRankine = 459.67;
constexpr double kBaseTempR = 60 + kRankine;

// The copy of the tables' name of the list of a fluid's flow units.
const char* FlowListOf(tarvix::Fluid fluid) {
    constexpr const char* kLists[] = {"flow L", "flow G", "flow S"};
    return kLists[static_cast<int>(fluid)];
}

struct Meter {
    testing::ReferenceMeter meter;
    double flowPerUnit;  // the calculation unit's flow in one of the shown unit
};

double PressurePsia(const InputSheet& sheet, const UnitFactors& units) {
    const double psi = ValueOfText(sheet.pf.text()) * units.Of("press", sheet.pressUnit.text);
    return sheet.absolutePressure ? psi : psi + kAtmospherePsi;
}

testing::ReferenceMeter GasMeter(const InputSheet& sheet, const UnitFactors& units,
                                 double diameterIn) {
    const double p = PressurePsia(sheet, units);
    const double typed = ValueOfText(sheet.tf.text());
    const double tempR = (sheet.degC ? 1.8 * typed + 32 : typed) + kRankine;
    const double gravity = sheet.gasSGb.empty() ? 1 : ValueOfText(sheet.gasSGb.text());
    const double ideal = 2.698825 * p * gravity / tempR;
    double density = ideal;
    if (sheet.compCorrection == CompCorrection::Zf) {
        density = ideal / ValueOfText(sheet.zf.text());
    } else if (sheet.compCorrection == CompCorrection::Density) {
        density = ValueOfText(sheet.zf.text()) * units.Of("density", sheet.zfDensityUnit.text);
    }
    if (sheet.flowKind == FlowKind::Mass) {
        return {358.927 / (39.6619322 / 519.67), std::sqrt(density), p, diameterIn};
    }
    const double zf = ideal / density;
    return {218.468 * kBaseTempR / kAtmospherePsi, std::sqrt(p / (tempR * gravity * zf)), p,
            diameterIn};
}

Meter MeterOf(const InputSheet& sheet, const UnitFactors& units) {
    const double diameterIn = ValueOfText(sheet.pipeDiameter.text());
    const double flowFactor = units.Of(FlowListOf(sheet.fluid), sheet.flowUnit.text) /
                              units.Of("time", sheet.timeUnit.text);
    if (sheet.fluid == tarvix::Fluid::Liquid) {
        const double base = sheet.flowKind == FlowKind::Mass ? 1 : ValueOfText(sheet.sgb.text());
        return {{5.66646 / base, std::sqrt(ValueOfText(sheet.sgf.text())), 0, diameterIn},
                flowFactor};
    }
    if (sheet.fluid == tarvix::Fluid::Gas) {
        return {GasMeter(sheet, units, diameterIn), flowFactor * 60};
    }
    const double density =
        ValueOfText(sheet.density.text()) * units.Of("density", sheet.densityUnit.text);
    return {{358.927, std::sqrt(density), PressurePsia(sheet, units), diameterIn}, flowFactor * 60};
}

}  // namespace

UnitFactors::UnitFactors(const std::string& path) {
    std::ifstream stream(path);
    std::string line;
    std::getline(stream, line);  // the heading
    while (std::getline(stream, line)) {
        std::istringstream cells(line);
        std::array<std::string, 6> row;  // list, position, text, kind, factor, exact
        for (std::string& cell : row) {
            std::getline(cells, cell, '\t');
        }
        rows_[{row[0], row[2]}] = {ValueOfText(row[4]), ValueOfText(row[5])};
    }
    if (rows_.empty()) {
        throw std::runtime_error("no units in " + path);
    }
}

const UnitFactors::Row& UnitFactors::RowOf(const std::string& list, std::string_view unit) const {
    const auto found = rows_.find({list, std::string(unit)});
    if (found == rows_.end()) {
        throw std::runtime_error("no unit " + std::string(unit) + " in " + list);
    }
    return found->second;
}

double ExactResult(const InputSheet& sheet, const UnitFactors& units) {
    const Meter m = MeterOf(sheet, units);
    const double inches = units.Of("deltaP", sheet.deltaPUnit.text);
    const auto flow = [&] { return ValueOfText(sheet.flow.text()) * m.flowPerUnit; };
    const auto h = [&] { return ValueOfText(sheet.deltaP.text()) * inches; };
    switch (sheet.mode.value()) {
        case SolveFor::FlowRate:
            return m.meter.Flow(ValueOfText(sheet.beta.text()), h()) / m.flowPerUnit;
        case SolveFor::DiffPressure:
            return m.meter.DiffPressure(flow(), ValueOfText(sheet.beta.text())) / inches;
        case SolveFor::Beta:
            break;
    }
    return m.meter.Beta(flow(), h());
}

double ExactResult(InputSheet sheet, SolveFor mode, const UnitFactors& units) {
    sheet.mode = mode;
    return ExactResult(sheet, units);
}

double ValueOfText(std::string text) {
    std::erase(text, ',');
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || *end != '\0') {
        throw std::runtime_error("no number: " + text);
    }
    return value;
}

double HalfOfLastDigit(std::string_view text) {
    const auto point = std::min(text.find('.'), text.size());
    const auto end = std::min(text.find_first_not_of("0123456789", point + 1), text.size());
    const auto decimals = end > point ? end - point - 1 : 0;
    return 0.5 * std::pow(10.0, -static_cast<double>(decimals));
}

}  // namespace tarvix::accuracy
