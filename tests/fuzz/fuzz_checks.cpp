// The checks and one whole calculation on random input sheets.
#include "app/sheet/data_checks.h"
#include "app/sheet/solve_sheet.h"
#include "tests/fuzz/sheets.h"

#include <algorithm>
#include <cctype>

namespace {

using tarvix::fuzz::Require;

bool NamesNoNumber(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text.find("inf") == std::string::npos && text.find("nan") == std::string::npos;
}

void CheckResult(const tarvix::CalculationResult& result, const tarvix::Module1& module) {
    Require(result.text.empty() || result.message.empty(), "a result or a message, never both");
    Require(result.text.empty() || tarvix::IsNumeric(result.text, module.locale()),
            "a result is a number");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    const tarvix::NumberLocale locale = tarvix::fuzz::PickLocale(data);
    const tarvix::InputSheet sheet = tarvix::fuzz::AnySheet(data, locale);
    tarvix::fuzz::FuzzPlatform platform;
    tarvix::Module1 module(platform, locale);
    module.FluidType = sheet.fluidType;
    module.MsgText = "left over";

    const int status = tarvix::CheckInputs(sheet, module);
    Require(status == tarvix::kDataGood || status == tarvix::kDataBad, "a check says 1 or 2");
    Require((status == tarvix::kDataGood) == module.MsgText.empty(),
            "a check objects exactly when it has a message");
    Require(NamesNoNumber(module.MsgText), "no infinity in a message");
    const std::string first = module.MsgText;
    Require(tarvix::CheckInputs(sheet, module) == status && module.MsgText == first,
            "a check judges the same sheet the same way");
    if (status == tarvix::kDataGood) {
        CheckResult(tarvix::CalculateResult(sheet, module), module);
    }

    const std::string gravity = tarvix::CalcSGf(sheet.density, sheet.densityUnit, module);
    Require(gravity.empty() || tarvix::IsNumeric(gravity, locale), "a gravity is a number");
    const tarvix::SteamDensityResult steam = tarvix::CalcSteamDensity(sheet, module);
    Require(steam.density.empty() ||
                (steam.message.empty() && tarvix::IsNumeric(steam.density, locale)),
            "a steam density is a number, and then there is no message");
    Require(NamesNoNumber(steam.message), "no infinity in a steam message");
    if (tarvix::CheckZfComp(sheet, module) != tarvix::CompressibilityWarning::None) {
        Require(sheet.compCorrection == tarvix::CompCorrection::None &&
                    tarvix::IsNumeric(sheet.pf, locale),
                "the compressibility warning needs a pressure and no correction");
    }
    if (tarvix::CheckPlateThickness(sheet.sgb, sheet.deltaP, sheet.deltaPUnit, locale)) {
        Require(tarvix::TextToSingle(sheet.sgb, locale).value_or(0) >= 8 &&
                    tarvix::IsNumeric(sheet.deltaP, locale),
                "the plate warning needs a large pipe and a differential pressure");
    }
    (void)tarvix::IsBetaOutsideStandardRange(sheet.beta, locale);
    return 0;
}
