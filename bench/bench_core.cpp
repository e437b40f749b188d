// The calculator without its window: whole recalculations, the equations alone, and the gas
// iteration beside the bare loop of its square roots and powers.
#include "app/sheet/data_checks.h"
#include "app/sheet/solve_sheet.h"
#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "units/flow_units.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>

namespace tarvix {

namespace {

// No calculation here may need the system.
class NoPlatform : public Platform {
  public:
    int ShowMessageBox(const MessageBoxRequest& /*request*/) override { std::abort(); }
    std::optional<std::string> ShowInputBox(const InputBoxRequest& /*request*/) override {
        std::abort();
    }
    int CurrentSecond() override { std::abort(); }
    void SleepUntilNextSecond() override { std::abort(); }
    [[noreturn]] void EndProgram(int /*exitStatus*/) override { std::abort(); }
};

// Whole recalculations ----------------------------------------------------------------------------

InputSheet SheetOf(Fluid fluid, SolveFor mode, const char* flow) {
    InputSheet sheet;
    sheet.fluid = fluid;
    sheet.mode = mode;
    const FlowUnit& flowUnit = FlowUnitsOf(fluid).units.front();
    sheet.flowUnit = {flowUnit.text, flowUnit.factor};
    sheet.flowKind = flowUnit.kind;
    sheet.timeUnit = kTimeUnits[1];
    sheet.deltaPUnit = kDeltaPUnits[7];
    sheet.pressUnit = kPressUnits[2];
    sheet.densityUnit = kDensityUnits[0];
    sheet.zfDensityUnit = kDensityUnits[0];
    sheet.pipeDiameter = "4.026";
    sheet.flow = flow;
    sheet.deltaP = "25.00";
    sheet.beta = "0.5";
    sheet.sgf = "0.82";
    sheet.sgb = "0.85";
    sheet.sgbVisible = true;
    sheet.pf = "700";
    sheet.tf = "75.5";
    sheet.gasSGb = "0.65";
    sheet.gasSGbVisible = true;
    sheet.density = "0.26";
    sheet.activeField = Field::DeltaP;
    return sheet;
}

// Checks, equation and the text of the result.
void Recalculation(benchmark::State& state, Fluid fluid, SolveFor mode, const char* flow) {
    NoPlatform platform;
    Module1 module(platform, NumberLocale{});
    const InputSheet sheet = SheetOf(fluid, mode, flow);
    for ([[maybe_unused]] auto _ : state) {
        const CheckResult check = CheckInputs(sheet, module.working, module);
        if (check.status() != kDataGood) {
            state.SkipWithError(check.message.c_str());
            break;
        }
        CalculationResult result = CalculateResult(sheet, check.working, module);
        if (result.text.empty()) {
            state.SkipWithError(result.message.c_str());
            break;
        }
        benchmark::DoNotOptimize(result);
    }
}

BENCHMARK_CAPTURE(Recalculation, LiquidFlow, Fluid::Liquid, SolveFor::FlowRate, "");
BENCHMARK_CAPTURE(Recalculation, LiquidDiffPressure, Fluid::Liquid, SolveFor::DiffPressure,
                  "8,500");
BENCHMARK_CAPTURE(Recalculation, LiquidBeta, Fluid::Liquid, SolveFor::Beta, "8,500");
BENCHMARK_CAPTURE(Recalculation, GasFlow, Fluid::Gas, SolveFor::FlowRate, "");
BENCHMARK_CAPTURE(Recalculation, GasDiffPressure, Fluid::Gas, SolveFor::DiffPressure, "110,000");
BENCHMARK_CAPTURE(Recalculation, GasBeta, Fluid::Gas, SolveFor::Beta, "130,000");
BENCHMARK_CAPTURE(Recalculation, SteamFlow, Fluid::Steam, SolveFor::FlowRate, "");
BENCHMARK_CAPTURE(Recalculation, SteamDiffPressure, Fluid::Steam, SolveFor::DiffPressure, "4,500");
BENCHMARK_CAPTURE(Recalculation, SteamBeta, Fluid::Steam, SolveFor::Beta, "6,000");

// The equations -----------------------------------------------------------------------------------

constexpr float kPipeIn = 4.026F;
const LiquidProperties kOil{0.82F, 0.85F};
const GasProperties kAir{
    FlowKind::Volume, CompCorrection::None, 114.7F, 14.7F, 519.67F, 519.67F, 1.0F, 0.0F, 0.0F};
const SteamProperties kSaturated{114.7F, 0.25704F};

template <typename Properties>
void Solve(benchmark::State& state, Outcome (*solve)(const MeteringRun&, const Properties&),
           MeteringRun run, const Properties& fluid, bool resolves) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(run);
        const Outcome outcome = solve(run, fluid);
        if (outcome.value.has_value() != resolves) {
            state.SkipWithError("not the run that was meant");
            break;
        }
        benchmark::DoNotOptimize(outcome);
    }
}

void TimeLiquid(benchmark::State& state, MeteringRun run) {
    Solve<LiquidProperties>(state, SolveLiquid, run, kOil, true);
}
void TimeGas(benchmark::State& state, MeteringRun run, bool resolves) {
    Solve<GasProperties>(state, SolveGas, run, kAir, resolves);
}
void TimeSteam(benchmark::State& state, MeteringRun run, bool resolves) {
    Solve<SteamProperties>(state, SolveSteam, run, kSaturated, resolves);
}

constexpr MeteringRun FlowOf(float h, float beta) {
    return {SolveFor::FlowRate, kPipeIn, 0.0F, h, beta};
}
constexpr MeteringRun DiffPressureOf(float flow, float beta) {
    return {SolveFor::DiffPressure, kPipeIn, flow, 0.0F, beta};
}
constexpr MeteringRun BetaOf(float flow, float h) {
    return {SolveFor::Beta, kPipeIn, flow, h, 0.0F};
}

// Typical runs have a beta of about 0.6 and 100 inches of water. The worst ones settle on the last
// of the hundred steps, or not at all.
constexpr MeteringRun kTypicalGasBeta = BetaOf(130000.0F, 100.0F);
constexpr MeteringRun kWorstGasBeta = BetaOf(232353.359375F, 50.0F);

BENCHMARK_CAPTURE(TimeLiquid, Flow, FlowOf(100.0F, 0.6F));
BENCHMARK_CAPTURE(TimeLiquid, DiffPressure, DiffPressureOf(200.0F, 0.6F));
BENCHMARK_CAPTURE(TimeLiquid, Beta, BetaOf(200.0F, 100.0F));
BENCHMARK_CAPTURE(TimeGas, Flow, FlowOf(100.0F, 0.6F), true);
BENCHMARK_CAPTURE(TimeGas, DiffPressureTypical, DiffPressureOf(130000.0F, 0.6F), true);
BENCHMARK_CAPTURE(TimeGas, DiffPressureLastStep, DiffPressureOf(659775.9375F, 0.7F), true);
BENCHMARK_CAPTURE(TimeGas, DiffPressureUnresolved, DiffPressureOf(661399.25F, 0.7F), false);
BENCHMARK_CAPTURE(TimeGas, BetaTypical, kTypicalGasBeta, true);
BENCHMARK_CAPTURE(TimeGas, BetaLastStep, kWorstGasBeta, true);
BENCHMARK_CAPTURE(TimeGas, BetaUnresolved, BetaOf(240926.546875F, 50.0F), false);
BENCHMARK_CAPTURE(TimeSteam, Flow, FlowOf(100.0F, 0.6F), true);
BENCHMARK_CAPTURE(TimeSteam, DiffPressureTypical, DiffPressureOf(6500.0F, 0.6F), true);
BENCHMARK_CAPTURE(TimeSteam, DiffPressureLastStep, DiffPressureOf(31320.947265625F, 0.7F), true);
BENCHMARK_CAPTURE(TimeSteam, DiffPressureUnresolved, DiffPressureOf(31527.25390625F, 0.7F), false);
BENCHMARK_CAPTURE(TimeSteam, BetaTypical, BetaOf(6500.0F, 100.0F), true);
BENCHMARK_CAPTURE(TimeSteam, BetaLastStep, BetaOf(22972.4296875F, 200.0F), true);
BENCHMARK_CAPTURE(TimeSteam, BetaUnresolved, BetaOf(17174.03125F, 100.0F), false);

// The bare loop -----------------------------------------------------------------------------------

// What the gas beta iteration cannot do without, written plainly for one run: the square roots and
// powers of each step and the conditions that end it, with nothing around them.
struct BareResult {
    float beta;
    int steps;
};

template <bool withPow>
BareResult BareGasBeta(float q, float h, float d) {
    const float p = 114.7F;
    const double root = std::sqrt(double{h * p / (519.67F * 1.0F * 1.0F)});
    const auto t = static_cast<float>(double{q} / (218.468 * double{519.67F / 14.7F} * root));
    float beta = 0.5F;
    for (int n = 1; n <= 100; ++n) {
        double b4 = 0;
        if constexpr (withPow) {
            b4 = std::pow(double{beta}, 4.0);
        } else {
            const double b2 = double{beta} * double{beta};
            b4 = b2 * b2;
        }
        const auto e = static_cast<float>(double{0.6F} / std::sqrt(1.0 - b4));
        const auto y =
            static_cast<float>(1.0 - (0.41 + 0.35 * b4) * (double{h} / (27.707 * double{p})) / 1.3);
        const float r = t / (y * e * beta * beta);
        if (r < 0) {
            return {0, n};
        }
        const auto s = static_cast<float>(std::sqrt(double{r}) / double{d});
        if (s > 0.999999F && s < 1.000001F) {
            return {beta, n};
        }
        beta = beta * s;
        if (beta >= 1 || beta <= 0) {
            return {0, n};
        }
    }
    return {0, 100};
}

template <bool withPow>
void BareLoop(benchmark::State& state, MeteringRun run) {
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(run);
        const BareResult result =
            BareGasBeta<withPow>(run.flow, run.diffPressInH2O, run.pipeDiameterIn);
        benchmark::DoNotOptimize(result);
    }
}

void BareByMultiplication(benchmark::State& state, MeteringRun run) {
    BareLoop<false>(state, run);
}
void BareByPow(benchmark::State& state, MeteringRun run) {
    BareLoop<true>(state, run);
}

BENCHMARK_CAPTURE(BareByMultiplication, GasBetaTypical, kTypicalGasBeta);
BENCHMARK_CAPTURE(BareByMultiplication, GasBetaLastStep, kWorstGasBeta);
BENCHMARK_CAPTURE(BareByPow, GasBetaTypical, kTypicalGasBeta);
BENCHMARK_CAPTURE(BareByPow, GasBetaLastStep, kWorstGasBeta);

// Ratios ------------------------------------------------------------------------------------------

// Remembers the shortest time of each benchmark.
class RememberingReporter : public benchmark::ConsoleReporter {
  public:
    using ConsoleReporter::ConsoleReporter;

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred || run.run_type != Run::RT_Iteration) {
                continue;
            }
            const double time = run.GetAdjustedCPUTime();
            const auto [known, isNew] = nanoseconds_.emplace(run.run_name.function_name, time);
            if (!isNew && time < known->second) {
                known->second = time;
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    void PrintRatio(const char* text, const std::string& of, const std::string& to) const {
        const auto a = nanoseconds_.find(of);
        const auto b = nanoseconds_.find(to);
        if (a != nanoseconds_.end() && b != nanoseconds_.end()) {
            std::printf("%s: %.2f\n", text, a->second / b->second);
        }
    }

  private:
    std::map<std::string, double> nanoseconds_;
};

}  // namespace

}  // namespace tarvix

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    tarvix::RememberingReporter reporter(benchmark::ConsoleReporter::OO_Tabular);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    reporter.PrintRatio("Gas beta solve to the bare loop, typical run (aim 1.25)",
                        "SolveGas/BetaTypical", "BareByMultiplication/GasBetaTypical");
    reporter.PrintRatio("Gas beta solve to the bare loop, last step (aim 1.25)",
                        "SolveGas/BetaLastStep", "BareByMultiplication/GasBetaLastStep");
    reporter.PrintRatio("Gas beta solve to the bare loop with pow, typical run",
                        "SolveGas/BetaTypical", "BareByPow/GasBetaTypical");
    reporter.PrintRatio("Gas beta solve to the bare loop with pow, last step",
                        "SolveGas/BetaLastStep", "BareByPow/GasBetaLastStep");
    return 0;
}
