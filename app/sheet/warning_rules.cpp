#include "app/sheet/warning_rules.h"

#include "calc/constants.h"

namespace tarvix {

namespace {

// Gauge pressures above which a gas without correction may be, and will be, computed wrongly.
constexpr float kMayFromPsig = 200;
constexpr float kWillFromPsig = 400;

constexpr float kDeflectingSizeIn = 8;
constexpr float kDeflectingDiffPressInH2O = 150;

constexpr float kLowestStandardBeta = 0.15F;
constexpr float kHighestStandardBeta = 0.67F;

}  // namespace

CompressibilityWarning CheckZfComp(const InputSheet& sheet) {
    const auto value = sheet.pf.Single();
    if (sheet.compCorrection != CompCorrection::None || !value) {
        return CompressibilityWarning::None;
    }
    float gaugePsi = *value * sheet.pressUnit.factor;
    if (sheet.absolutePressure) {
        gaugePsi = gaugePsi - kAtmosphericPressurePsi;
    }
    if (gaugePsi > kWillFromPsig) {
        return CompressibilityWarning::Will;
    }
    return gaugePsi > kMayFromPsig ? CompressibilityWarning::May : CompressibilityWarning::None;
}

bool CheckPlateThickness(const EnteredNumber& nominalSizeIn, const EnteredNumber& deltaP,
                         const SelectedUnit& deltaPUnit) {
    return nominalSizeIn.SingleOrZero() >= kDeflectingSizeIn &&
           deltaP.SingleOrZero() * deltaPUnit.factor >= kDeflectingDiffPressInH2O;
}

bool IsBetaOutsideStandardRange(const EnteredNumber& beta) {
    const auto value = beta.Single();
    return value && (*value < kLowestStandardBeta || *value > kHighestStandardBeta);
}

}  // namespace tarvix
