#include "ui/handlers/unit_boxes.h"

namespace tarvix {

UnitBoxes::UnitBoxes(const FormContext& context, OrificeCalculations& calculations,
                     Densities& densities, Warnings& warnings, NumericFields& fields)
    : context_(context),
      calculations_(calculations),
      densities_(densities),
      warnings_(warnings),
      fields_(fields) {
    const MainForm& form = context_.form;
    const auto connect = [this](DropDownList* list, void (UnitBoxes::*handler)()) {
        QObject::connect(list, &QComboBox::activated, list,
                         [this, handler] { (this->*handler)(); });
    };
    connect(form.cboPressUnit, &UnitBoxes::cboPressUnit_Click);
    connect(form.cboDeltaPunit, &UnitBoxes::cboDeltaPunit_Click);
    connect(form.cboDensityUnit, &UnitBoxes::cboDensityUnit_Click);
    connect(form.cboZfDensityUnit, &UnitBoxes::cboZfDensityUnit_Click);
}

void UnitBoxes::LoadcboPressUnit() {
    DropDownList& list = *context_.form.cboPressUnit;
    const std::string previous = list.Text();
    list.Clear();
    context_.state.PressUnitTable = kPressUnits;
    AddUnits(list, kPressUnits);
    list.SetListIndex(PositionOf(kPressUnits, previous));
}

void UnitBoxes::LoadcboDeltaPUnit() {
    DropDownList& list = *context_.form.cboDeltaPunit;
    const std::string previous = list.Text();
    list.Clear();
    context_.state.DeltaPUnitTable = kDeltaPUnits;
    AddUnits(list, kDeltaPUnits);
    list.SetListIndex(PositionOf(kDeltaPUnits, previous));
}

void UnitBoxes::LoadcboDensityUnit() {
    DropDownList& list = *context_.form.cboDensityUnit;
    DropDownList& zfList = *context_.form.cboZfDensityUnit;
    const std::string previous = list.Text();
    list.Clear();
    context_.state.DensityUnitTable = kDensityUnits;
    context_.state.ZfDensityUnitTable = kDensityUnits;
    AddUnits(list, kDensityUnits);
    AddUnits(zfList, kDensityUnits);
    const int position = PositionOf(kDensityUnits, previous);
    list.SetListIndex(position);
    zfList.SetListIndex(position);
}

void UnitBoxes::cboPressUnit_Click() {
    fields_.txtPf_Change();
}

void UnitBoxes::cboDeltaPunit_Click() {
    calculations_.CalculateUnlessSuspended();
    warnings_.CheckPlateThicknessWarning();
}

void UnitBoxes::cboDensityUnit_Click() {
    Module1& module = context_.module;
    if (module.FluidType == "L") {
        if (context_.form.optSgCalc->Value()) {
            densities_.CalcSGf();
        }
    } else if (module.FluidType == "S") {
        if (context_.form.optSteamTbl->Value() && !densities_.CalcSteamDensity()) {
            return;
        }
    } else if (module.FluidType != "G") {
        module.MsgText = "Orifice type not specified";
        module.FatalError();
    }
    calculations_.CalculateUnlessSuspended();
}

void UnitBoxes::cboZfDensityUnit_Click() {
    calculations_.CalculateUnlessSuspended();
}

}  // namespace tarvix
