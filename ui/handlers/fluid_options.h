#pragma once

#include "ui/handlers/flow_unit_boxes.h"
#include "ui/handlers/numeric_fields.h"

namespace tarvix {

// The fluid and every property option: which fields apply, and the enable procedures they share.
class FluidOptions {
  public:
    FluidOptions(const FormContext& context, OrificeCalculations& calculations,
                 Densities& densities, Warnings& warnings, NumericFields& fields,
                 FlowUnitBoxes& flowUnitBoxes);

    void optLiquid_Click();
    void optGas_Click();
    void optSteam_Click();

    void optSgCalc_Click();
    void optSgUser_Click();
    void optSteamTbl_Click();
    void optSteamUser_Click();
    void optSaturated_Click();
    void optSuperheated_Click();
    void optCompCorrNone_Click();
    void optCompDensity_Click();
    void optCompZf_Click();
    void optDegC_Click();
    void optDegF_Click();
    void optPgauge_Click();
    void optPabsolute_Click();

    // Open or close a group of controls. The four that nothing calls yet complete the set.
    void SGfOptEnableOn();
    void SGfOptEnableOff();
    void DenEnableOn();
    void DenEnableOff();
    void DenOptEnableOn();
    void DenOptEnableOff();
    void TfEnableOn();
    void TfEnableOff();
    void ToptEnableOn();
    void ToptEnableOff();

  private:
    void ConnectOptions();
    void SelectFluidColors(const OptionButton* selected);

    FormContext context_;
    OrificeCalculations& calculations_;
    Densities& densities_;
    Warnings& warnings_;
    NumericFields& fields_;
    FlowUnitBoxes& flowUnitBoxes_;
};

}  // namespace tarvix
