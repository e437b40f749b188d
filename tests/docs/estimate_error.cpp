#include "tests/docs/estimate_error.h"

#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "calc/steam_table.h"
#include "tests/docs/iso5167.h"

#include <stdexcept>

namespace tarvix::accuracy {

namespace {

constexpr float kGaugePressurePsi = 100.0F;
constexpr float kBasePressurePsia = 14.7F;
constexpr float kBaseTempR = 519.67F;  // 60 deg F

constexpr double kWaterPoundPerFt3 = 62.366;  // specific gravity 1
constexpr double kGallonM3 = 231 * kMetersPerInch * kMetersPerInch * kMetersPerInch;

// Ideal gas: molar mass of air, lb/lbmol, and the gas constant, psi ft3 / (lbmol deg R).
constexpr double kAirMolarMass = 28.9625;
constexpr double kGasConstant = 10.73159;

double AirDensity(double pressurePsia, double tempR) {  // lb per cubic foot
    return pressurePsia * kAirMolarMass / (kGasConstant * tempR);
}

double SolvedValue(Fluid fluid, const MeteringRun& run) {
    const Outcome outcome = Solve(fluid, run);
    if (!outcome.value) {
        throw std::runtime_error("no result at a point of the comparison");
    }
    return double{*outcome.value};
}

// What the fluid adds to the standard's flow: its density, its exponent (0: a liquid), and kg/s in
// one unit of the program's flow.
struct FluidData {
    double poundPerFt3 = 0;
    double isentropicExponent = 0;
    double kgPerSecondPerUnit = 0;
};

FluidData DataOf(Fluid fluid) {
    constexpr double kSecondsPerHour = 3600;
    switch (fluid) {
        case Fluid::Liquid:  // US gallons per minute
            return {kWaterPoundPerFt3, 0,
                    kGallonM3 * kWaterPoundPerFt3 * kKgPerM3PerPoundPerFt3 / 60};
        case Fluid::Gas:  // standard cubic feet per hour
        case Fluid::MonatomicGas:
            return {AirDensity(double{kPressurePsia}, double{kBaseTempR}),
                    fluid == Fluid::Gas ? kAirExponent : kMonatomicExponent,
                    AirDensity(double{kBasePressurePsia}, double{kBaseTempR}) * kKgPerPound /
                        kSecondsPerHour};
        case Fluid::Steam:  // pounds per hour
            return {double{SaturatedSteamDensity(kGaugePressurePsi).density}, kSteamExponent,
                    kKgPerPound / kSecondsPerHour};
    }
    throw std::logic_error("unknown fluid");
}

}  // namespace

Outcome Solve(Fluid fluid, const MeteringRun& run) {
    switch (fluid) {
        case Fluid::Liquid:
            return SolveLiquid(run, {.flowingSG = 1.0F, .baseSG = 1.0F});
        case Fluid::Gas:
        case Fluid::MonatomicGas:
            return SolveGas(run, GasAt(kPressurePsia));
        case Fluid::Steam:
            return SolveSteam(run, {.pressurePsia = kPressurePsia,
                                    .density = SaturatedSteamDensity(kGaugePressurePsi).density});
    }
    throw std::logic_error("unknown fluid");
}

Comparison Compare(const Point& point) {
    const auto beta = double{point.beta};
    const double diameterM = double{point.pipeDiameterIn} * kMetersPerInch;
    const double diffPressurePa = double{point.diffPressInH2O} * kPascalPerInchWater;
    const FluidData fluid = DataOf(point.fluid);

    iso5167::MeteringConditions conditions;
    conditions.diameterM = diameterM;
    conditions.beta = beta;
    conditions.diffPressurePa = diffPressurePa;
    conditions.upstreamDensity = fluid.poundPerFt3 * kKgPerM3PerPoundPerFt3;
    const double diameterMm = diameterM * 1000;
    conditions.dischargeCoefficient = iso5167::DischargeCoefficient(
        beta, diameterMm, point.reynolds, iso5167::FlangeTaps(diameterMm));
    if (fluid.isentropicExponent > 0) {
        const double pressureRatio = 1 - diffPressurePa / (double{kPressurePsia} * kPascalPerPsi);
        conditions.expansibility =
            iso5167::Expansibility(beta, pressureRatio, fluid.isentropicExponent);
    }

    MeteringRun run;
    run.pipeDiameterIn = point.pipeDiameterIn;
    run.diffPressInH2O = point.diffPressInH2O;

    Comparison result;
    result.withinLimits = iso5167::IsWithinFlangeTapLimits(beta, diameterMm, point.reynolds);
    result.standard = iso5167::MassFlow(conditions) / fluid.kgPerSecondPerUnit;

    run.solveFor = SolveFor::FlowRate;
    run.beta = point.beta;
    result.estimate = SolvedValue(point.fluid, run);

    run.flow = static_cast<float>(result.standard);
    run.solveFor = SolveFor::DiffPressure;
    result.solvedDiffPress = SolvedValue(point.fluid, run);

    run.solveFor = SolveFor::Beta;
    run.beta = 0;
    result.solvedBeta = SolvedValue(point.fluid, run);

    result.flowErrorPercent = 100 * (result.estimate / result.standard - 1);
    result.diffPressErrorPercent =
        100 * (result.solvedDiffPress / double{point.diffPressInH2O} - 1);
    result.betaErrorPercent = 100 * (result.solvedBeta / beta - 1);
    return result;
}

}  // namespace tarvix::accuracy
