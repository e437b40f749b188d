// The fluid and every property option: which fields apply, and the enable procedures they share.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

void ConnectFluidOptions(const FormContext& context);

void optLiquid_Click(const FormContext& context);
void optGas_Click(const FormContext& context);
void optSteam_Click(const FormContext& context);

void optSgCalc_Click(const FormContext& context);
void optSgUser_Click(const FormContext& context);
void optSteamTbl_Click(const FormContext& context);
void optSteamUser_Click(const FormContext& context);
void optSaturated_Click(const FormContext& context);
void optSuperheated_Click(const FormContext& context);
void optCompCorrNone_Click(const FormContext& context);
void optCompDensity_Click(const FormContext& context);
void optCompZf_Click(const FormContext& context);
void optDegC_Click(const FormContext& context);
void optDegF_Click(const FormContext& context);
void optPgauge_Click(const FormContext& context);
void optPabsolute_Click(const FormContext& context);

// Open or close a group of controls. The four that nothing calls yet complete the set.
void SGfOptEnableOn(const FormContext& context);
void SGfOptEnableOff(const FormContext& context);
void DenEnableOn(const FormContext& context);
void DenEnableOff(const FormContext& context);
void DenOptEnableOn(const FormContext& context);
void DenOptEnableOff(const FormContext& context);
void TfEnableOn(const FormContext& context);
void TfEnableOff(const FormContext& context);
void ToptEnableOn(const FormContext& context);
void ToptEnableOff(const FormContext& context);

}  // namespace tarvix
