// The three options that choose the result: beta, the differential pressure or the flow rate.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

void ConnectModeOptions(const FormContext& context);

void optCalcBeta_Click(const FormContext& context);
void optCalcDP_Click(const FormContext& context);
void optCalcFR_Click(const FormContext& context);

}  // namespace tarvix
