// The three linked boxes of the pipe: unit, nominal size, and schedule with its inside diameter.
#pragma once

#include "ui/form/form_state.h"

namespace tarvix {

void ConnectPipeBoxes(const FormContext& context);

// Fills the boxes of the pipe ID unit and the bore unit.
void LoadcboPipeIDUnit(const FormContext& context);
// Fills the nominal sizes in the selected unit, keeping the size.
void LoadcboNomSize(const FormContext& context);
// Fills the schedules of the selected size, keeping the one with the same diameter text.
void LoadcboPipeID(const FormContext& context);

void cboPipeIDUnit_Click(const FormContext& context);
void cboNomSize_Click(const FormContext& context);
void cboPipeID_Click(const FormContext& context);

}  // namespace tarvix
