// The checks and one whole calculation on random input sheets.
#include "app/sheet/data_checks.h"
#include "app/sheet/derived_densities.h"
#include "app/sheet/solve_sheet.h"
#include "app/sheet/warning_rules.h"
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

void JudgeResult(const tarvix::CalculationResult& result, const tarvix::Module1& module) {
    Require(result.text.empty() || result.message.empty(), "a result or a message, never both");
    Require(result.text.empty() || tarvix::TextToDouble(result.text, module.locale()).has_value(),
            "a result is a number");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    tarvix::fuzz::FuzzedRun fuzzed(bytes, size);
    auto& [data, locale, platform, module] = fuzzed;
    const tarvix::InputSheet sheet = tarvix::fuzz::AnySheet(data, locale);
    module.MsgText = "left over";

    const tarvix::CheckResult check = tarvix::CheckInputs(sheet, module.working, module);
    Require((check.status() == tarvix::kDataGood) == check.message.empty(),
            "a check objects exactly when it has a message");
    Require(NamesNoNumber(check.message), "no infinity in a message");
    Require(tarvix::CheckInputs(sheet, module.working, module).message == check.message,
            "a check judges the same sheet the same way");
    if (check.status() == tarvix::kDataGood) {
        JudgeResult(tarvix::CalculateResult(sheet, check.working, module), module);
    }
    Require(module.MsgText == "left over", "checks and equations write nothing");

    const std::string gravity =
        tarvix::FlowingGravityText(sheet.density, sheet.densityUnit, locale);
    Require(gravity.empty() || tarvix::TextToDouble(gravity, locale).has_value(),
            "a gravity is a number");
    const tarvix::SteamDensityText steam = tarvix::SteamDensityTextOf(sheet, module);
    Require(steam.density.empty() ||
                (steam.message.empty() && tarvix::TextToDouble(steam.density, locale).has_value()),
            "a steam density is a number, and then there is no message");
    Require(NamesNoNumber(steam.message), "no infinity in a steam message");
    if (tarvix::CheckZfComp(sheet) != tarvix::CompressibilityWarning::None) {
        Require(sheet.compCorrection == tarvix::CompCorrection::None && sheet.pf.IsNumeric(),
                "the compressibility warning needs a pressure and no correction");
    }
    if (tarvix::CheckPlateThickness(sheet.sgb, sheet.deltaP, sheet.deltaPUnit)) {
        Require(sheet.sgb.SingleOrZero() >= 8 && sheet.deltaP.IsNumeric(),
                "the plate warning needs a large pipe and a differential pressure");
    }
    (void)tarvix::IsBetaOutsideStandardRange(sheet.beta);
    return 0;
}
