// The unit boxes of pressure, differential pressure and density.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

void ConnectUnitBoxes(const FormContext& context);

// Each fills its boxes, keeping the unit selected that was, else the first.
void LoadcboPressUnit(const FormContext& context);
void LoadcboDeltaPUnit(const FormContext& context);
void LoadcboDensityUnit(const FormContext& context);

void cboPressUnit_Click(const FormContext& context);
void cboDeltaPunit_Click(const FormContext& context);
void cboDensityUnit_Click(const FormContext& context);
void cboZfDensityUnit_Click(const FormContext& context);

}  // namespace tarvix
