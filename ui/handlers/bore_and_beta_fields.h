// The bore and beta fields, which follow each other.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

void ConnectBoreAndBeta(const FormContext& context);

void txtBeta_Change(const FormContext& context);
void txtOriBoreDia_Change(const FormContext& context);
void cboOriBoreUnit_Click(const FormContext& context);

// Keeps the bore and lets beta follow a new pipe diameter, then recalculates.
void FollowPipeDiameter(const FormContext& context);

}  // namespace tarvix
