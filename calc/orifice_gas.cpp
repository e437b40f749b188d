#include "calc/orifice_gas.h"

#include "calc/orifice_iteration.h"

#include <cmath>

namespace tarvix {

namespace {

bool IsConverged(float s) {
    return s > 0.999999F && s < 1.000001F;
}

// 2.698825 P G, the gas's density at a Tf Zf of 1.
double DensityTimesTemperature(const GasProperties& gas) {
    return kGasDensityConstant * double{gas.pressurePsia} * double{gas.baseSG};
}

float EnteredZf(const GasProperties& gas) {
    return gas.correction == CompCorrection::Zf ? gas.userZf : 1.0F;
}

// rho, lb per cubic foot: what a mass flow takes of the gas besides P.
float FlowingDensity(const GasProperties& gas) {
    return gas.correction == CompCorrection::Density
               ? gas.operDensity
               : static_cast<float>(DensityTimesTemperature(gas) /
                                    double{gas.flowingTempR * EnteredZf(gas)});
}

// Tf G Zf: what a standard volume flow takes of the gas besides P.
float VolumeDivisor(const GasProperties& gas) {
    const float zf = gas.correction == CompCorrection::Density
                         ? static_cast<float>(DensityTimesTemperature(gas) /
                                              double{gas.flowingTempR * gas.operDensity})
                         : EnteredZf(gas);
    return gas.flowingTempR * gas.baseSG * zf;
}

Outcome GasFlow(const MeteringRun& run, const GasProperties& gas) {
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
                                           dSquared * std::sqrt(double{h * FlowingDensity(gas)}));
        return FlowWithinLimits(static_cast<float>(
            double{qm} / (kBaseAirDensityNumerator / kBaseAirDensityDenominator)));
    }
    const auto qv =
        static_cast<float>(kStandardVolumeConstant * double{e} * double{y} * betaSquared *
                           dSquared * double{gas.baseTempR / gas.basePressurePsia} *
                           std::sqrt(double{h * gas.pressurePsia / VolumeDivisor(gas)}));
    return FlowWithinLimits(qv);
}

Outcome GasDiffPressure(const MeteringRun& run, const GasProperties& gas) {
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
        const auto flowRoot = [rho = FlowingDensity(gas)](float h) {
            return std::sqrt(double{h * rho});
        };
        return IterateDiffPressure(run, t, gas.pressurePsia, flowRoot, IsConverged,
                                   kGasDiffPressureTexts);
    }
    const auto t = static_cast<float>(double{run.flow} /
                                      (kStandardVolumeConstant * double{e} * betaSquared *
                                       double{gas.baseTempR} / double{gas.basePressurePsia}));
    const auto flowRoot = [&, divisor = VolumeDivisor(gas)](float h) {
        return std::sqrt(double{h * kBaseCompressibility * gas.pressurePsia / divisor});
    };
    return IterateDiffPressure(run, t, gas.pressurePsia, flowRoot, IsConverged,
                               kGasDiffPressureTexts);
}

// T of the beta iteration.
float BetaTarget(const MeteringRun& run, const GasProperties& gas) {
    const float h = run.diffPressInH2O;
    if (gas.flowKind == FlowKind::Mass) {
        return static_cast<float>(double{run.flow} * kBaseAirDensityNumerator /
                                  kBaseAirDensityDenominator /
                                  (kMassConstant * std::sqrt(double{h * FlowingDensity(gas)})));
    }
    return static_cast<float>(
        double{run.flow} / (kStandardVolumeConstant * double{gas.baseTempR / gas.basePressurePsia} *
                            std::sqrt(double{h * gas.pressurePsia / VolumeDivisor(gas)})));
}

Outcome GasBeta(const MeteringRun& run, const GasProperties& gas) {
    const float h = run.diffPressInH2O;
    if (run.pipeDiameterIn * run.flow * h == 0) {
        return Outcome::Nothing();
    }
    const float t = BetaTarget(run, gas);
    const auto requiredSquare = [t](float ye, float beta) { return t / (ye * beta * beta); };
    const auto outOfRange = [](float beta, int /*step*/) -> std::optional<Outcome> {
        // The search itself may pass kMaxBeta, which the message names, and come back.
        if (beta >= 1) {
            return Outcome::Message(kBetaTooLarge);
        }
        if (beta <= 0) {
            return Outcome::Message(kBetaTooSmall);
        }
        return std::nullopt;
    };
    return IterateBeta(run, gas.pressurePsia, requiredSquare, IsConverged, outOfRange,
                       kGasBetaTexts);
}

}  // namespace

Outcome SolveGas(const MeteringRun& run, const GasProperties& gas) {
    switch (run.solveFor) {
        case SolveFor::FlowRate:
            return GasFlow(run, gas);
        case SolveFor::DiffPressure:
            return GasDiffPressure(run, gas);
        case SolveFor::Beta:
            break;
    }
    return GasBeta(run, gas);
}

}  // namespace tarvix
