// The fields for numbers: what they do on focus, on keys and on every change of their text.
// (Changes of the bore and of beta: bore_and_beta_fields.h.)
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

void ConnectNumericFields(const FormContext& context);

// The same for every field. Selects the whole text, so that typing replaces it.
void NumericField_GotFocus(NumericField& field);

// The same for every field. The key code to keep, or 0.
int NumericField_KeyPress(const FormContext& context, const NumericField& field, int keyCode);

void txtFlow_Change(const FormContext& context);
void txtDeltaP_Change(const FormContext& context);
void txtPf_Change(const FormContext& context);
void txtTf_Change(const FormContext& context);
void txtSGf_Change(const FormContext& context);
void txtSGb_Change(const FormContext& context);
void txtGasSGb_Change(const FormContext& context);
void txtZf_Change(const FormContext& context);
void txtDensity_Change(const FormContext& context);

}  // namespace tarvix
