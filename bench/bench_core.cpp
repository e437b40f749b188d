// The calculator without its window: whole recalculations, the equations alone, and the gas
// and steam iterations beside bare loops of their square roots and products.
#include "app/sheet/data_checks.h"
#include "app/sheet/solve_sheet.h"
#include "bench/bare_loops.h"
#include "calc/orifice_gas.h"
#include "calc/orifice_liquid.h"
#include "calc/orifice_steam.h"
#include "numbers/decimal_form.h"
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
constexpr MeteringRun kTypicalGasDiffPressure = DiffPressureOf(130000.0F, 0.6F);
constexpr MeteringRun kTypicalGasBeta = BetaOf(130000.0F, 100.0F);
constexpr MeteringRun kTypicalSteamDiffPressure = DiffPressureOf(6500.0F, 0.6F);
constexpr MeteringRun kTypicalSteamBeta = BetaOf(6500.0F, 100.0F);
constexpr MeteringRun kWorstGasBeta = BetaOf(232353.359375F, 50.0F);

BENCHMARK_CAPTURE(TimeLiquid, Flow, FlowOf(100.0F, 0.6F));
BENCHMARK_CAPTURE(TimeLiquid, DiffPressure, DiffPressureOf(200.0F, 0.6F));
BENCHMARK_CAPTURE(TimeLiquid, Beta, BetaOf(200.0F, 100.0F));
BENCHMARK_CAPTURE(TimeGas, Flow, FlowOf(100.0F, 0.6F), true);
BENCHMARK_CAPTURE(TimeGas, DiffPressureTypical, kTypicalGasDiffPressure, true);
BENCHMARK_CAPTURE(TimeGas, DiffPressureLastStep, DiffPressureOf(659775.9375F, 0.7F), true);
BENCHMARK_CAPTURE(TimeGas, DiffPressureUnresolved, DiffPressureOf(661399.25F, 0.7F), false);
BENCHMARK_CAPTURE(TimeGas, BetaTypical, kTypicalGasBeta, true);
BENCHMARK_CAPTURE(TimeGas, BetaLastStep, kWorstGasBeta, true);
BENCHMARK_CAPTURE(TimeGas, BetaUnresolved, BetaOf(240926.546875F, 50.0F), false);
BENCHMARK_CAPTURE(TimeSteam, Flow, FlowOf(100.0F, 0.6F), true);
BENCHMARK_CAPTURE(TimeSteam, DiffPressureTypical, kTypicalSteamDiffPressure, true);
BENCHMARK_CAPTURE(TimeSteam, DiffPressureLastStep, DiffPressureOf(31320.947265625F, 0.7F), true);
BENCHMARK_CAPTURE(TimeSteam, DiffPressureUnresolved, DiffPressureOf(31527.25390625F, 0.7F), false);
BENCHMARK_CAPTURE(TimeSteam, BetaTypical, kTypicalSteamBeta, true);
BENCHMARK_CAPTURE(TimeSteam, BetaLastStep, BetaOf(22972.4296875F, 200.0F), true);
BENCHMARK_CAPTURE(TimeSteam, BetaUnresolved, BetaOf(17174.03125F, 100.0F), false);

// The bare loops ----------------------------------------------------------------------------------

// Beside each solve that iterates: what it cannot do without, in a loop that ends with the same
// value.
void Bare(benchmark::State& state, bare::Result (*loop)(float, float, float), MeteringRun run,
          const Outcome& solved) {
    const float known = run.solveFor == SolveFor::Beta ? run.diffPressInH2O : run.beta;
    const float value = loop(run.flow, known, run.pipeDiameterIn).value;
    const float shown =
        run.solveFor == SolveFor::Beta ? static_cast<float>(Round(value, 5)) : value;
    if (solved.value != shown) {
        state.SkipWithError("not the solve's value");
        return;
    }
    for ([[maybe_unused]] auto _ : state) {
        benchmark::DoNotOptimize(run);
        const bare::Result result =
            loop(run.flow, run.solveFor == SolveFor::Beta ? run.diffPressInH2O : run.beta,
                 run.pipeDiameterIn);
        benchmark::DoNotOptimize(result);
    }
}

void BareGas(benchmark::State& state, bare::Result (*loop)(float, float, float), MeteringRun run) {
    Bare(state, loop, run, SolveGas(run, kAir));
}
void BareSteam(benchmark::State& state, bare::Result (*loop)(float, float, float),
               MeteringRun run) {
    Bare(state, loop, run, SolveSteam(run, kSaturated));
}

BENCHMARK_CAPTURE(BareGas, DiffPressureTypical, bare::GasDiffPressure, kTypicalGasDiffPressure);
BENCHMARK_CAPTURE(BareGas, BetaTypical, bare::GasBeta, kTypicalGasBeta);
BENCHMARK_CAPTURE(BareGas, BetaLastStep, bare::GasBeta, kWorstGasBeta);
BENCHMARK_CAPTURE(BareSteam, DiffPressureTypical, bare::SteamDiffPressure,
                  kTypicalSteamDiffPressure);
BENCHMARK_CAPTURE(BareSteam, BetaTypical, bare::SteamBeta, kTypicalSteamBeta);

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

    // The time of a solve as a multiple of its bare loop's.
    void PrintRatio(const std::string& run) const {
        const auto solve = nanoseconds_.find("Time" + run);
        const auto loop = nanoseconds_.find("Bare" + run);
        if (solve != nanoseconds_.end() && loop != nanoseconds_.end()) {
            std::printf("ratio %s %.2f\n", run.c_str(), solve->second / loop->second);
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
    for (const char* run : {"Gas/DiffPressureTypical", "Gas/BetaTypical", "Gas/BetaLastStep",
                            "Steam/DiffPressureTypical", "Steam/BetaTypical"}) {
        reporter.PrintRatio(run);
    }
    return 0;
}
