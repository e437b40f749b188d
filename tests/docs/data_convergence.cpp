// Where the iterations of gas and steam find the run that they are given, in a 4 inch Sch 40 pipe
// at 100 psi gauge.
//   betamap FLUID DP/P BETA RESULT     the flow of BETA, solved back for beta
//   dpmap FLUID DP/P BETA RESULT       the same, solved back for the differential pressure
//   betaend FLUID INH2O LAST UNRESOLVED LEFT
//       LAST: the largest beta of a thousandth step up to which all are found; UNRESOLVED: the
//       first that ends after 100 steps; LEFT: the first that leaves the range of beta
//   dpend FLUID BETA DP/P              the first of a thousandth step that is not found
//   lowpressure FLUID BETA NONE ALL    psia: below NONE no run of a dp/p of 0.01 to 0.25 gets its
//                                      differential pressure back, from ALL on every one does
//   band DP/P H BETA                   what the iteration's band of 0.000001 leaves, in percent of
//                                      the differential pressure and of beta, at beta 0.5
//   peak BETA DP/P                     where the program's flow of a gas is largest
// RESULT: ok, other (another root), unresolved, range (beta limits), toohigh, nothing, noflow.
#include "calc/orifice_steam.h"
#include "tests/docs/data_lines.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/reference_meter.h"

#include <cmath>
#include <cstdio>
#include <string_view>

namespace tarvix::accuracy {

namespace {

constexpr float kDiameterIn = 4.026F;

struct Way {
    const char* name;
    bool steam;
};
constexpr Way kWays[] = {{"gas", false}, {"steam", true}};

Outcome SolveAt(const Way& way, const MeteringRun& run, float psia) {
    if (way.steam) {
        return SolveSteam(run, {.pressurePsia = psia, .density = 0.25704F});
    }
    return SolveGas(run, GasAt(psia));
}

const char* ResultOf(const Outcome& outcome, float wanted) {
    if (outcome.value) {
        return std::fabs(*outcome.value / wanted - 1) < 1e-3F ? "ok" : "other";
    }
    const std::string_view message = outcome.message;
    if (message.empty()) {
        return "nothing";
    }
    if (message.find("resolve") != std::string_view::npos) {
        return "unresolved";
    }
    return message.find("calculate") != std::string_view::npos ? "toohigh" : "range";
}

const char* ThereAndBack(const Way& way, SolveFor back, float beta, float h, float psia) {
    MeteringRun run{SolveFor::FlowRate, kDiameterIn, 0, h, beta};
    const Outcome flow = SolveAt(way, run, psia);
    if (!flow.value) {
        return "noflow";
    }
    run.flow = *flow.value;
    run.solveFor = back;
    return ResultOf(SolveAt(way, run, psia), back == SolveFor::Beta ? beta : h);
}

bool IsFound(const char* result) {
    return std::string_view(result) == "ok";
}

void PrintMaps(const Way& way) {
    for (int percent = 2; percent <= 120; percent += 2) {
        for (int betaPercent = 10; betaPercent <= 94; betaPercent += 2) {
            const auto beta = static_cast<float>(betaPercent / 100.0);
            const float h = InchesOf(percent / 100.0);
            std::printf("betamap\t%s\t%.2f\t%.2f\t%s\n", way.name, percent / 100.0, double{beta},
                        ThereAndBack(way, SolveFor::Beta, beta, h, kPressurePsia));
            std::printf("dpmap\t%s\t%.2f\t%.2f\t%s\n", way.name, percent / 100.0, double{beta},
                        ThereAndBack(way, SolveFor::DiffPressure, beta, h, kPressurePsia));
        }
    }
}

void PrintBetaEnds(const Way& way) {
    for (const float h : {25.0F, 100.0F, 300.0F, 700.0F, 795.0F}) {
        double last = 0;
        double unresolved = 0;
        double left = 0;
        for (int i = 100; i <= 949; ++i) {
            const double beta = i / 1000.0;
            const std::string_view result =
                ThereAndBack(way, SolveFor::Beta, static_cast<float>(beta), h, kPressurePsia);
            if (IsFound(result.data()) && unresolved == 0 && left == 0) {
                last = beta;
            } else if (result == "unresolved" && unresolved == 0) {
                unresolved = beta;
            } else if ((result == "range" || result == "nothing") && left == 0) {
                left = beta;
            }
        }
        std::printf("betaend\t%s\t%.0f\t%.3f\t%.3f\t%.3f\n", way.name, double{h}, last, unresolved,
                    left);
    }
}

void PrintDiffPressureEnds(const Way& way) {
    for (const float beta : {0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.67F, 0.75F}) {
        int thousandths = 10;
        while (thousandths < 2000 &&
               IsFound(ThereAndBack(way, SolveFor::DiffPressure, beta,
                                    InchesOf(thousandths / 1000.0), kPressurePsia))) {
            ++thousandths;
        }
        std::printf("dpend\t%s\t%.2f\t%.3f\n", way.name, double{beta}, thousandths / 1000.0);
    }
}

constexpr int kLowPressureRuns = 25;

// How many of the runs of a dp/p from 0.01 to 0.25 get their differential pressure back.
int FoundAt(const Way& way, float beta, double psia) {
    int found = 0;
    for (int percent = 1; percent <= kLowPressureRuns; ++percent) {
        found += IsFound(ThereAndBack(way, SolveFor::DiffPressure, beta,
                                      InchesOf(percent / 100.0, psia), static_cast<float>(psia)))
                     ? 1
                     : 0;
    }
    return found;
}

void PrintLowPressure(const Way& way) {
    for (const float beta : {0.2F, 0.5F, 0.67F, 0.75F}) {
        int all = 300;
        while (all > 1 && FoundAt(way, beta, (all - 1) / 100.0) == kLowPressureRuns) {
            --all;
        }
        int none = 1;
        while (none < all && FoundAt(way, beta, none / 100.0) == 0) {
            ++none;
        }
        std::printf("lowpressure\t%s\t%.2f\t%.2f\t%.2f\n", way.name, double{beta}, none / 100.0,
                    all / 100.0);
    }
}

// What the band around s = 1 leaves of the differential pressure and of beta.
void PrintBands() {
    for (const int percent : {1, 25, 50, 60}) {
        const testing::ReferenceMeter meter(1, 1, double{kPressurePsia}, double{kDiameterIn});
        const auto h = double{InchesOf(percent / 100.0)};
        std::printf("band\t%.2f\t%.6f\t%.6f\n", percent / 100.0,
                    1e-4 / (1 - meter.DiffPressureContraction(0.5, h)),
                    1e-4 / (1 - meter.BetaContraction(0.5, h)));
    }
}

void PrintPeaks() {
    for (const float beta : {0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F, 0.67F, 0.75F}) {
        float largest = 0;
        int peak = 0;
        for (int percent = 1; percent <= 200; ++percent) {
            const float h = InchesOf(percent / 100.0);
            const Outcome flow =
                SolveAt(kWays[0], {SolveFor::FlowRate, kDiameterIn, 0, h, beta}, kPressurePsia);
            if (flow.value.value_or(0) > largest) {
                largest = *flow.value;
                peak = percent;
            }
        }
        std::printf("peak\t%.2f\t%.2f\n", double{beta}, peak / 100.0);
    }
}

}  // namespace

void PrintConvergence() {
    for (const Way& way : kWays) {
        PrintMaps(way);
        PrintBetaEnds(way);
        PrintDiffPressureEnds(way);
        PrintLowPressure(way);
    }
    PrintPeaks();
    PrintBands();
}

}  // namespace tarvix::accuracy
