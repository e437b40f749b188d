#include "app/sheet/derived_densities.h"

#include "calc/constants.h"
#include "calc/steam_table.h"
#include "numbers/decimal_form.h"

#include <string_view>

namespace tarvix {

namespace {

constexpr int kSteamDensityDecimals = 5;
constexpr int kSpecificGravityDecimals = 4;

}  // namespace

std::string FlowingGravityText(const EnteredNumber& density, const SelectedUnit& unit,
                               const NumberLocale& locale) {
    const auto value = density.Single();
    if (!value || !(*value > 0)) {
        return "";
    }
    // The factor enters as the double that its decimal text stands for.
    const auto lbPerFt3 = static_cast<float>(DecimalValue(unit.factor) * double{*value});
    return FormatNumber(lbPerFt3 / kWaterDensityLbPerFt3, kSpecificGravityDecimals, locale,
                        Grouping::On);
}

SteamDensityText SteamDensityTextOf(const InputSheet& sheet, const Module1& module) {
    const auto value = sheet.pf.Single();
    if (!value) {
        return {};
    }
    const float factor = sheet.pressUnit.factor;
    const float offset = sheet.absolutePressure ? kAtmosphericPressurePsi : 0.0F;
    const float gaugePsi = *value * factor - offset;
    const SteamDensity steam = SaturatedSteamDensity(gaugePsi);

    const auto outside = [&](std::string_view text, float limitPsig) {
        return SteamDensityText{"", std::string(text) +
                                        module.FormatResult((limitPsig + offset) / factor) + " " +
                                        std::string(sheet.pressUnit.text) +
                                        (sheet.absolutePressure ? " (absolute)" : " (gauge)")};
    };
    switch (steam.range) {
        case SteamRange::BelowTable:
            return outside("The Op. Pressure is below the steam table mimimum: ",
                           kSteamTable.front().pressurePsig);
        case SteamRange::AboveTable:
            return outside("The Op. Pressure exceeds the steam table maximum: ",
                           kSteamTable.back().pressurePsig);
        case SteamRange::InTable:
            break;
    }
    return {FormatNumber(steam.density / sheet.densityUnit.factor, kSteamDensityDecimals,
                         module.locale(), Grouping::On),
            ""};
}

}  // namespace tarvix
