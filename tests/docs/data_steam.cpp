// The steam table against IAPWS-IF97.
//   steamrow PSIG TABLE ERROR        each row, lb per cubic foot, error in percent
//   steambetween PSIG ERROR          between the rows, in tenths of each step
#include "calc/steam_table.h"
#include "tests/docs/data_lines.h"
#include "tests/docs/estimate_error.h"
#include "tests/docs/iapws_if97.h"

#include <cstdio>

namespace tarvix::accuracy {

namespace {

constexpr double kAtmospherePsi = 14.7;

double ErrorAt(float psig) {
    const double exact =
        if97::SaturatedVaporDensity((double{psig} + kAtmospherePsi) * kPascalPerPsi * 1e-6) /
        kKgPerM3PerPoundPerFt3;
    return 100 * (double{SaturatedSteamDensity(psig).density} / exact - 1);
}

}  // namespace

void PrintSteam() {
    for (std::size_t i = 0; i < kSteamTable.size(); ++i) {
        const SteamTableRow& row = kSteamTable[i];
        const float psig = row.pressurePsig;
        std::printf("steamrow\t%d\t%.5f\t%.6f\n", row.pressurePsig, double{row.density},
                    ErrorAt(psig));
        if (i + 1 == kSteamTable.size()) {
            break;
        }
        const float step = static_cast<float>(kSteamTable[i + 1].pressurePsig) - psig;
        for (int tenth = 1; tenth < 10; ++tenth) {
            const float between = psig + step * static_cast<float>(tenth) / 10.0F;
            std::printf("steambetween\t%.2f\t%.6f\n", double{between}, ErrorAt(between));
        }
    }
}

}  // namespace tarvix::accuracy
