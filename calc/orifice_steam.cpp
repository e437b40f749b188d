#include "calc/orifice_steam.h"

#include "calc/orifice_iteration.h"

#include <cmath>

namespace tarvix {

namespace {

// Compared in double precision, unlike gas. Only 1 and the next single below it lie within the
// narrow band of the differential pressure.
bool IsDiffPressureConverged(float s) {
    return double{s} > 0.9999999 && double{s} < 1.0000001;
}
bool IsBetaConverged(float s) {
    return double{s} > 0.999999 && double{s} < 1.000001;
}

Outcome SteamFlow(const MeteringRun& run, const SteamProperties& steam) {
    const float beta = run.beta;
    const float d = run.pipeDiameterIn;
    const float h = run.diffPressInH2O;
    if (beta * d * h == 0) {
        return Outcome::Nothing();
    }
    if (beta >= 1) {
        return Outcome::Message(kBetaNotBelowOne);
    }
    const float e = CoefficientTimesApproach(beta);
    const float y = ExpansionFactor(beta, h, steam.pressurePsia);
    const auto qm =
        static_cast<float>(kMassConstant * double{e} * double{y} * (double{beta} * double{beta}) *
                           (double{d} * double{d}) * std::sqrt(double{h * steam.density}));
    return FlowWithinLimits(qm);
}

Outcome SteamDiffPressure(const MeteringRun& run, const SteamProperties& steam) {
    const float beta = run.beta;
    if (beta * run.pipeDiameterIn * run.flow == 0) {
        return Outcome::Nothing();
    }
    if (beta >= 1) {
        return Outcome::Message(kBetaNotBelowOne);
    }
    const float e = CoefficientTimesApproach(beta);
    const auto t = static_cast<float>(double{run.flow} /
                                      (kMassConstant * double{e} * (double{beta} * double{beta}) *
                                       std::sqrt(double{steam.density})));
    const auto flowRoot = [](float h) { return std::sqrt(double{h}); };
    return IterateDiffPressure(run, t, steam.pressurePsia, flowRoot, IsDiffPressureConverged,
                               kSteamDiffPressureTexts);
}

Outcome SteamBeta(const MeteringRun& run, const SteamProperties& steam) {
    const float h = run.diffPressInH2O;
    if (run.pipeDiameterIn * run.flow * h == 0) {
        return Outcome::Nothing();
    }
    const auto t = static_cast<float>(double{run.flow} /
                                      (kMassConstant * std::sqrt(double{h * steam.density})));
    const auto requiredSquare = [t](float ye, float beta) {
        return static_cast<float>(double{t} / (double{ye} * (double{beta} * double{beta})));
    };
    // Unlike gas, a beta that has left its range ends the search without a word, and the last step
    // is not asked where it led to.
    const auto outOfRange = [](float beta, int step) -> std::optional<Outcome> {
        const bool inRange = beta > 0 && beta <= 1;
        return inRange || step == kMaxSteps ? std::nullopt : std::optional(Outcome::Nothing());
    };
    return IterateBeta(run, steam.pressurePsia, requiredSquare, IsBetaConverged, outOfRange,
                       kSteamBetaTexts);
}

}  // namespace

Outcome SolveSteam(const MeteringRun& run, const SteamProperties& steam) {
    switch (run.solveFor) {
        case SolveFor::FlowRate:
            return SteamFlow(run, steam);
        case SolveFor::DiffPressure:
            return SteamDiffPressure(run, steam);
        case SolveFor::Beta:
            break;
    }
    return SteamBeta(run, steam);
}

}  // namespace tarvix
