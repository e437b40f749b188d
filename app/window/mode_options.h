#pragma once

#include "app/dispatch/do_orifice_calculations.h"

namespace tarvix {

// The three calculation modes: which of beta, differential pressure and flow is the result.
class ModeOptions {
  public:
    ModeOptions(const FormContext& context, OrificeCalculations& calculations);

    void optCalcBeta_Click();
    void optCalcDP_Click();
    void optCalcFR_Click();

  private:
    // Turns a former result into a plain input: without grouping, so that it can be typed over. The
    // green mode option tells which mode was selected until now.
    void ReformatFormerResult(const OptionButton& formerMode, NumericField& field) const;
    void SelectModeColors(const OptionButton* selected) const;
    static void MakeResult(NumericField& field);
    static void MakeInput(NumericField& field);

    FormContext context_;
    OrificeCalculations& calculations_;
};

}  // namespace tarvix
