#pragma once

#include "ui/handlers/bore_and_beta_fields.h"
#include "ui/handlers/warnings.h"

namespace tarvix {

// The three linked boxes of the pipe: unit, nominal size, and schedule with its inside diameter.
class PipeBoxes {
  public:
    PipeBoxes(const FormContext& context, Warnings& warnings, BoreAndBeta& boreAndBeta);

    // Fills the boxes of the pipe ID unit and the bore unit.
    void LoadcboPipeIDUnit();
    // Fills the nominal sizes in the selected unit, keeping the size.
    void LoadcboNomSize();
    // Fills the schedules of the selected size, keeping the one with the same diameter text.
    void LoadcboPipeID();

    void cboPipeIDUnit_Click();
    void cboNomSize_Click();
    void cboPipeID_Click();

  private:
    const Unit& PipeUnit() const;
    void AskUserEnteredPipe();
    [[noreturn]] void UnknownPipeUnit();

    FormContext context_;
    Warnings& warnings_;
    BoreAndBeta& boreAndBeta_;
};

}  // namespace tarvix
