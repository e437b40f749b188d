#include "calc/orifice_gas.h"

#include "calc/orifice_iteration.h"

#include <cmath>

namespace tarvix {

namespace {

constexpr double kMassConstant = 358.927;
constexpr double kStandardVolumeConstant = 218.468;
constexpr double kGasDensityConstant = 2.698825;
constexpr float kBaseCompressibility = 1.0F;  // Zb

constexpr IterationTexts kDiffPressureTexts{
    "Unable to calculate differential pressure for conditions (Flow rate too high).",
    "Unable to resolve differential pressure for conditions."};
constexpr IterationTexts kBetaTexts{"Unable to calculate beta for conditions (Flow rate too high).",
                                    "Unable to resolve beta for conditions."};

bool IsConverged(float s) {
    return s > 0.999999F && s < 1.000001F;
}

// What the flow equations take of the gas besides P: the flowing density for a mass flow, the
// flowing compressibility for a standard volume.
struct FlowingState {
    float rho = 0;  // lb per cubic foot
    float zf = 1;
};

FlowingState FlowingStateOf(const GasProperties& gas) {
    const double pg = kGasDensityConstant * double{gas.pressurePsia} * double{gas.baseSG};
    const float zf = gas.correction == CompCorrection::Zf ? gas.userZf : 1.0F;
    FlowingState state;
    if (gas.flowKind == FlowKind::Mass) {
        state.rho = gas.correction == CompCorrection::Density
                        ? gas.operDensity
                        : static_cast<float>(pg / double{gas.flowingTempR * zf});
    } else {
        state.zf = gas.correction == CompCorrection::Density
                       ? static_cast<float>(pg / double{gas.flowingTempR * gas.operDensity})
                       : zf;
    }
    return state;
}

// Tf G Zf
float VolumeDivisor(const GasProperties& gas, const FlowingState& state) {
    return gas.flowingTempR * gas.baseSG * state.zf;
}

Outcome GasFlow(const MeteringRun& run, const GasProperties& gas, const FlowingState& state) {
    const float beta = run.beta;
    const float d = run.pipeDiameterIn;
    const float h = run.diffPressInH2O;
    if (beta * d * h == 0) {
        return Outcome::Nothing();
    }
    if (beta >= 1) {
        return Outcome::Message(kBetaNotBelowOne);
    }
    const double betaSquared = double{beta} * double{beta};
    const double dSquared = double{d} * double{d};
    const float e = CoefficientTimesApproach(beta);
    const float y = ExpansionFactor(beta, h, gas.pressurePsia);
    if (gas.flowKind == FlowKind::Mass) {
        const auto qm = static_cast<float>(kMassConstant * double{e} * double{y} * betaSquared *
                                           dSquared * std::sqrt(double{h * state.rho}));
        return FlowWithinLimits(static_cast<float>(
            double{qm} / (kBaseAirDensityNumerator / kBaseAirDensityDenominator)));
    }
    const auto qv =
        static_cast<float>(kStandardVolumeConstant * double{e} * double{y} * betaSquared *
                           dSquared * double{gas.baseTempR / gas.basePressurePsia} *
                           std::sqrt(double{h * gas.pressurePsia / VolumeDivisor(gas, state)}));
    return FlowWithinLimits(qv);
}

Outcome GasDiffPressure(const MeteringRun& run, const GasProperties& gas,
                        const FlowingState& state) {
    const float beta = run.beta;
    if (beta * run.pipeDiameterIn * run.flow == 0) {
        return Outcome::Nothing();
    }
    if (beta >= 1) {
        return Outcome::Message(kBetaNotBelowOne);
    }
    const double betaSquared = double{beta} * double{beta};
    const float e = CoefficientTimesApproach(beta);
    if (gas.flowKind == FlowKind::Mass) {
        const auto t = static_cast<float>(double{run.flow} * kBaseAirDensityNumerator /
                                          kBaseAirDensityDenominator /
                                          (kMassConstant * double{e} * betaSquared));
        const auto flowRoot = [&](float h) { return std::sqrt(double{h * state.rho}); };
        return IterateDiffPressure(run, t, gas.pressurePsia, flowRoot, IsConverged,
                                   kDiffPressureTexts);
    }
    const auto t = static_cast<float>(double{run.flow} /
                                      (kStandardVolumeConstant * double{e} * betaSquared *
                                       double{gas.baseTempR} / double{gas.basePressurePsia}));
    const auto flowRoot = [&, divisor = VolumeDivisor(gas, state)](float h) {
        return std::sqrt(double{h * kBaseCompressibility * gas.pressurePsia / divisor});
    };
    return IterateDiffPressure(run, t, gas.pressurePsia, flowRoot, IsConverged, kDiffPressureTexts);
}

// T of the beta iteration.
float BetaTarget(const MeteringRun& run, const GasProperties& gas, const FlowingState& state) {
    const float h = run.diffPressInH2O;
    if (gas.flowKind == FlowKind::Mass) {
        return static_cast<float>(double{run.flow} * kBaseAirDensityNumerator /
                                  kBaseAirDensityDenominator /
                                  (kMassConstant * std::sqrt(double{h * state.rho})));
    }
    return static_cast<float>(
        double{run.flow} / (kStandardVolumeConstant * double{gas.baseTempR / gas.basePressurePsia} *
                            std::sqrt(double{h * gas.pressurePsia / VolumeDivisor(gas, state)})));
}

Outcome GasBeta(const MeteringRun& run, const GasProperties& gas, const FlowingState& state) {
    const float h = run.diffPressInH2O;
    if (run.pipeDiameterIn * run.flow * h == 0) {
        return Outcome::Nothing();
    }
    const float t = BetaTarget(run, gas, state);
    float beta = kFirstBeta;
    for (int n = 1; n <= kMaxSteps; ++n) {
        const float e = CoefficientTimesApproach(beta);
        const float y = ExpansionFactor(beta, h, gas.pressurePsia);
        const float r = t / (y * e * beta * beta);
        if (!std::isfinite(y) || !std::isfinite(r)) {
            return Outcome::Message(kBetaTexts.unresolved, n);
        }
        if (r < 0) {
            return Outcome::Message(kBetaTexts.flowTooHigh, n);
        }
        const float s = DiameterRatio(r, run.pipeDiameterIn);
        if (IsConverged(s)) {
            return SolvedBeta(beta, n);
        }
        beta = beta * s;
        if (beta >= 1) {
            return Outcome::Message(kBetaTooLarge, n);
        }
        if (beta <= 0) {
            return Outcome::Message(kBetaTooSmall, n);
        }
    }
    return Outcome::Message(kBetaTexts.unresolved, kMaxSteps);
}

}  // namespace

Outcome OrificeCalcGas(const MeteringRun& run, const GasProperties& gas) {
    const FlowingState state = FlowingStateOf(gas);
    switch (run.solveFor) {
        case SolveFor::FlowRate:
            return GasFlow(run, gas, state);
        case SolveFor::DiffPressure:
            return GasDiffPressure(run, gas, state);
        case SolveFor::Beta:
            break;
    }
    return GasBeta(run, gas, state);
}

}  // namespace tarvix
