// The orifice equations on every bit pattern of their singles: they always end,
// with a finite value, with one of their messages or with neither; never with both.
#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "calc/steam_table.h"
#include "tests/fuzz/fuzz_support.h"
#include "units/bore_and_beta.h"

#include <algorithm>
#include <cmath>

namespace {

using tarvix::Outcome;
using tarvix::SolveFor;
using tarvix::fuzz::AnySingle;
using tarvix::fuzz::Require;

constexpr std::string_view kMessages[] = {
    "Flow rate is out of range (beta > 0.95). Flow rate too high for pipe size.",
    "Flow rate is out of range (beta <= 0.0).",
    "Beta Ratio must be less than 1.",
    "Unable to calculate differential pressure for conditions (Flow rate too high).",
    "Unable to resolve differential pressure for conditions.",
    "Unable to resolve Differential Pressure for conditions.",
    "Unable to calculate beta for conditions (Flow rate too high).",
    "Unable to resolve beta for conditions.",
    "Unable to resolve Beta Ratio for conditions.",
};

// A single that an input may hold, or any bit pattern.
float Value(FuzzedDataProvider& data) {
    if (data.ConsumeBool()) {
        return AnySingle(data);
    }
    return static_cast<float>(data.ConsumeIntegralInRange(0, 1000000)) /
           static_cast<float>(data.ConsumeIntegralInRange(1, 100000));
}

void Check(const Outcome& outcome, SolveFor solveFor, bool isLiquid) {
    Require(!(outcome.value && !outcome.message.empty()), "a value or a message, never both");
    if (!outcome.message.empty()) {
        Require(std::ranges::find(kMessages, outcome.message) != std::end(kMessages),
                "only the messages that there are");
    }
    if (!outcome.value) {
        return;
    }
    const float value = *outcome.value;
    Require(std::isfinite(value), "a value is finite");
    Require(solveFor != SolveFor::FlowRate || (value <= 999999999.0F && value >= 0.00001F),
            "a flow is within its limits");
    Require(solveFor != SolveFor::DiffPressure || !isLiquid || value <= 1000000.0F,
            "a liquid's differential pressure is within its limit");
    Require(solveFor != SolveFor::Beta || (value > 0 && value <= 0.95F),
            "beta is within its limits");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    tarvix::MeteringRun run;
    run.solveFor =
        data.PickValueInArray({SolveFor::Beta, SolveFor::DiffPressure, SolveFor::FlowRate});
    for (float* known : {&run.pipeDiameterIn, &run.flow, &run.diffPressInH2O, &run.beta}) {
        *known = Value(data);
    }

    const tarvix::LiquidProperties liquid{Value(data), Value(data)};
    Check(tarvix::SolveLiquid(run, liquid), run.solveFor, true);

    const tarvix::SteamProperties steam{Value(data), Value(data)};
    Check(tarvix::SolveSteam(run, steam), run.solveFor, false);

    tarvix::GasProperties gas;
    gas.flowKind = data.ConsumeBool() ? tarvix::FlowKind::Mass : tarvix::FlowKind::Volume;
    gas.correction =
        data.PickValueInArray({tarvix::CompCorrection::None, tarvix::CompCorrection::Density,
                               tarvix::CompCorrection::Zf});
    gas.pressurePsia = Value(data);
    gas.basePressurePsia = data.ConsumeBool() ? 14.7F : Value(data);
    gas.flowingTempR = Value(data);
    gas.baseTempR = data.ConsumeBool() ? 519.67F : Value(data);
    gas.baseSG = Value(data);
    gas.operDensity = Value(data);
    gas.userZf = Value(data);
    Check(tarvix::SolveGas(run, gas), run.solveFor, false);

    const tarvix::SteamDensity density = tarvix::SaturatedSteamDensity(Value(data));
    if (density.range == tarvix::SteamRange::InTable) {
        Require(density.density >= 0.03737F && density.density <= 11.86183F,
                "a density of the table lies in the table");
    }
    const float inchesPerUnit = data.PickValueInArray({1.0F, 0.03937008F, 0.3937008F});
    const auto bore = tarvix::BoreFromBeta(Value(data), Value(data), inchesPerUnit);
    Require(!bore || std::isfinite(*bore), "a bore is finite");
    const auto beta = tarvix::BetaFromBore(Value(data), Value(data), inchesPerUnit);
    Require(!beta || std::isfinite(*beta), "a beta of a bore is finite");
    return 0;
}
