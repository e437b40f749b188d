#pragma once

#include "app/dispatch/do_orifice_calculations.h"

namespace tarvix {

// The bore and beta fields, which follow each other.
class BoreAndBeta {
  public:
    BoreAndBeta(const FormContext& context, OrificeCalculations& calculations);

    void txtBeta_Change();
    void txtOriBoreDia_Change();
    void cboOriBoreUnit_Click();

    // Keeps the bore and lets beta follow a new pipe diameter, then recalculates.
    void FollowPipeDiameter();

  private:
    std::string BetaLimitMessage() const;
    void WriteBore(float beta);
    void WriteBeta();
    float PipeDiameterIn() const;
    float BoreUnitFactor() const;

    FormContext context_;
    OrificeCalculations& calculations_;
};

}  // namespace tarvix
