#include "ui/handlers/fluid_options.h"

namespace tarvix {

namespace {

// Places in twips that change with the fluid and the option.
constexpr int kDensityTopLiquid = 1320;
constexpr int kDensityTopSteam = 360;
constexpr int kPressWidthGas = 6555;
constexpr int kPressWidthSteam = 9015;
constexpr int kCompCorrWidthDensity = 735;
constexpr int kCompCorrWidthZf = 1700;

void SetVisible(QWidget* widget, bool visible) {
    widget->setVisible(visible);
}

}  // namespace

FluidOptions::FluidOptions(const FormContext& context, OrificeCalculations& calculations,
                           Densities& densities, Warnings& warnings, NumericFields& fields,
                           FlowUnitBoxes& flowUnitBoxes)
    : context_(context),
      calculations_(calculations),
      densities_(densities),
      warnings_(warnings),
      fields_(fields),
      flowUnitBoxes_(flowUnitBoxes) {
    ConnectOptions();
}

void FluidOptions::ConnectOptions() {
    const MainForm& form = context_.form;
    const auto connect = [this](OptionButton* option, void (FluidOptions::*handler)()) {
        QObject::connect(option, &QAbstractButton::clicked, option,
                         [this, handler] { (this->*handler)(); });
    };
    connect(form.optLiquid, &FluidOptions::optLiquid_Click);
    connect(form.optGas, &FluidOptions::optGas_Click);
    connect(form.optSteam, &FluidOptions::optSteam_Click);
    connect(form.optSgCalc, &FluidOptions::optSgCalc_Click);
    connect(form.optSgUser, &FluidOptions::optSgUser_Click);
    connect(form.optSteamTbl, &FluidOptions::optSteamTbl_Click);
    connect(form.optSteamUser, &FluidOptions::optSteamUser_Click);
    connect(form.optSaturated, &FluidOptions::optSaturated_Click);
    connect(form.optSuperheated, &FluidOptions::optSuperheated_Click);
    connect(form.optCompCorrNone, &FluidOptions::optCompCorrNone_Click);
    connect(form.optCompDensity, &FluidOptions::optCompDensity_Click);
    connect(form.optCompZf, &FluidOptions::optCompZf_Click);
    connect(form.optDegC, &FluidOptions::optDegC_Click);
    connect(form.optDegF, &FluidOptions::optDegF_Click);
    connect(form.optPgauge, &FluidOptions::optPgauge_Click);
    connect(form.optPabsolute, &FluidOptions::optPabsolute_Click);
}

void FluidOptions::SelectFluidColors(const OptionButton* selected) {
    const MainForm& form = context_.form;
    for (OptionButton* option : {form.optLiquid, form.optGas, form.optSteam}) {
        SetBackColor(*option, option == selected ? BackColor::Green : BackColor::LightGrey);
    }
}

void FluidOptions::optLiquid_Click() {
    MainForm& form = context_.form;
    context_.state.SuspendCalc = true;
    context_.module.FluidType = "L";
    SelectFluidColors(form.optLiquid);
    SetVisible(form.fraSG, true);
    SetVisible(form.fraTemp, false);
    SetVisible(form.fraGasSG, false);
    SetVisible(form.fraPress, false);
    SetVisible(form.fraDensity, true);
    SetVisible(form.fraCompCorrection, false);
    form.SetTop(*form.fraDensity, kDensityTopLiquid);
    form.fraDensity->setEnabled(false);
    SetVisible(form.lblSteamTbl, false);
    DenOptEnableOff();
    DenEnableOff();
    flowUnitBoxes_.LoadcboFlowUnit();
    flowUnitBoxes_.LoadcboTimeUnit();
    form.optSgUser->Select();
    context_.state.SuspendCalc = false;
    calculations_.DoOrificeCalculations();
    form.txtSGf->setFocus();
}

void FluidOptions::optGas_Click() {
    MainForm& form = context_.form;
    context_.state.SuspendCalc = true;
    context_.module.FluidType = "G";
    SelectFluidColors(form.optGas);
    SetVisible(form.fraSG, false);
    SetVisible(form.fraTemp, true);
    SetVisible(form.fraGasSG, true);
    SetVisible(form.fraPress, true);
    SetVisible(form.fraDensity, false);
    SetVisible(form.fraCompCorrection, true);
    form.SetWidth(*form.fraPress, kPressWidthGas);
    form.fraTemp->setEnabled(true);
    TfEnableOn();
    ToptEnableOn();
    form.fraPress->setEnabled(true);
    SetVisible(form.fraPress, true);
    form.cboPressUnit->setEnabled(true);
    warnings_.CheckZfCompWarning();
    flowUnitBoxes_.LoadcboFlowUnit();
    flowUnitBoxes_.LoadcboTimeUnit();
    context_.state.SuspendCalc = false;
    form.canvas().update();
    calculations_.DoOrificeCalculations();
}

void FluidOptions::optSteam_Click() {
    MainForm& form = context_.form;
    context_.state.SuspendCalc = true;
    context_.module.FluidType = "S";
    SelectFluidColors(form.optSteam);
    calculations_.ShowMessage("", BackColor::PaleGrey);
    SetVisible(form.fraSG, false);
    SetVisible(form.fraTemp, false);
    SetVisible(form.fraGasSG, false);
    SetVisible(form.fraPress, true);
    SetVisible(form.fraDensity, true);
    SetVisible(form.fraCompCorrection, false);
    form.SetTop(*form.fraDensity, kDensityTopSteam);
    form.SetWidth(*form.fraPress, kPressWidthSteam);
    form.fraDensity->setEnabled(true);
    SetVisible(form.lblSteamTbl, true);
    DenEnableOn();
    DenOptEnableOn();
    form.optSaturated->Select();
    form.optSteamUser->Select();
    flowUnitBoxes_.LoadcboFlowUnit();
    flowUnitBoxes_.LoadcboTimeUnit();
    form.fraPress->setEnabled(true);
    SetVisible(form.fraPress, true);
    form.cboPressUnit->setEnabled(true);
    context_.state.SuspendCalc = false;
    calculations_.DoOrificeCalculations();
    form.txtDensity->setFocus();
}

void FluidOptions::optSgCalc_Click() {
    const MainForm& form = context_.form;
    form.txtSGf->setEnabled(false);
    SetBackColor(*form.txtSGf, BackColor::PaleGrey);
    form.fraDensity->setEnabled(true);
    form.txtDensity->setEnabled(true);
    DenEnableOn();
    form.txtSGf->SetText("");
    // A density that stands already gives its gravity at once.
    densities_.CalcSGf();
    form.txtDensity->setFocus();
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optSgUser_Click() {
    const MainForm& form = context_.form;
    form.txtSGf->setEnabled(true);
    SetBackColor(*form.txtSGf, BackColor::WindowBackground);
    form.fraDensity->setEnabled(false);
    DenEnableOff();
    form.txtSGf->SetText("");
    form.txtSGf->setFocus();
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optSteamTbl_Click() {
    const MainForm& form = context_.form;
    form.txtDensity->setEnabled(false);
    SetBackColor(*form.txtDensity, BackColor::PaleGrey);
    if (densities_.CalcSteamDensity()) {
        calculations_.CalculateUnlessSuspended();
    }
    form.txtPf->setFocus();
}

void FluidOptions::optSteamUser_Click() {
    const MainForm& form = context_.form;
    form.txtDensity->setEnabled(true);
    SetBackColor(*form.txtDensity, BackColor::WindowBackground);
    form.txtDensity->SetText("");
    form.txtDensity->setFocus();
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optSaturated_Click() {
    const MainForm& form = context_.form;
    form.optSteamUser->Select();
    form.optSteamTbl->setEnabled(true);
    form.lblSteamTbl->setEnabled(true);
}

void FluidOptions::optSuperheated_Click() {
    const MainForm& form = context_.form;
    form.optSteamUser->Select();
    form.optSteamTbl->setEnabled(false);
    form.lblSteamTbl->setEnabled(false);
    form.txtDensity->setFocus();
}

void FluidOptions::optCompCorrNone_Click() {
    const MainForm& form = context_.form;
    SetVisible(form.cboZfDensityUnit, false);
    SetVisible(form.lblCompCorr, false);
    SetVisible(form.txtZf, false);
    warnings_.CheckZfCompWarning();
    SetVisible(form.fraGasSG, true);
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optCompDensity_Click() {
    MainForm& form = context_.form;
    SetVisible(form.cboZfDensityUnit, true);
    form.SetWidth(*form.lblCompCorr, kCompCorrWidthDensity);
    form.lblCompCorr->setText(QStringLiteral("Operating Density"));
    SetVisible(form.lblCompCorr, true);
    SetVisible(form.txtZf, true);
    form.txtZf->SetText("");
    warnings_.CheckZfCompWarning();
    // A mass rate of a known density needs no gravity.
    SetVisible(form.fraGasSG, flowUnitBoxes_.SelectedKind() != kMassKind);
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optCompZf_Click() {
    MainForm& form = context_.form;
    SetVisible(form.cboZfDensityUnit, false);
    form.SetWidth(*form.lblCompCorr, kCompCorrWidthZf);
    form.lblCompCorr->setText(QStringLiteral("Compressibility at Flowing Conditions (Zf)"));
    SetVisible(form.lblCompCorr, true);
    SetVisible(form.txtZf, true);
    form.txtZf->SetText("");
    warnings_.CheckZfCompWarning();
    SetVisible(form.fraGasSG, true);
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optDegC_Click() {
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optDegF_Click() {
    calculations_.CalculateUnlessSuspended();
}

void FluidOptions::optPgauge_Click() {
    fields_.txtPf_Change();
}

void FluidOptions::optPabsolute_Click() {
    fields_.txtPf_Change();
}

void FluidOptions::SGfOptEnableOn() {
    context_.form.optSgUser->setEnabled(true);
    context_.form.optSgCalc->setEnabled(true);
}

void FluidOptions::SGfOptEnableOff() {
    context_.form.optSgUser->setEnabled(false);
    context_.form.optSgCalc->setEnabled(false);
}

void FluidOptions::DenEnableOn() {
    const MainForm& form = context_.form;
    form.lblDensity->setEnabled(true);
    SetBackColor(*form.txtDensity, BackColor::WindowBackground);
    form.cboDensityUnit->setEnabled(true);
}

void FluidOptions::DenEnableOff() {
    const MainForm& form = context_.form;
    form.txtDensity->SetText("");
    form.lblDensity->setEnabled(false);
    SetBackColor(*form.txtDensity, BackColor::PaleGrey);
    form.cboDensityUnit->setEnabled(false);
}

void FluidOptions::DenOptEnableOn() {
    const MainForm& form = context_.form;
    for (QWidget* control :
         std::initializer_list<QWidget*>{form.optSaturated, form.optSuperheated, form.optSteamUser,
                                         form.optSteamTbl, form.lblSteamTbl}) {
        control->setEnabled(true);
    }
}

void FluidOptions::DenOptEnableOff() {
    const MainForm& form = context_.form;
    for (QWidget* control :
         std::initializer_list<QWidget*>{form.optSaturated, form.optSuperheated, form.optSteamUser,
                                         form.optSteamTbl, form.lblSteamTbl}) {
        control->setEnabled(false);
    }
}

void FluidOptions::TfEnableOn() {
    const MainForm& form = context_.form;
    form.txtTf->setEnabled(true);
    SetBackColor(*form.txtTf, BackColor::WindowBackground);
    form.lblTf->setEnabled(true);
}

void FluidOptions::TfEnableOff() {
    const MainForm& form = context_.form;
    form.txtTf->SetText("");
    form.txtTf->setEnabled(false);
    SetBackColor(*form.txtTf, BackColor::PaleGrey);
    form.lblTf->setEnabled(false);
}

void FluidOptions::ToptEnableOn() {
    context_.form.optDegF->setEnabled(true);
    context_.form.optDegC->setEnabled(true);
}

void FluidOptions::ToptEnableOff() {
    context_.form.optDegF->setEnabled(false);
    context_.form.optDegC->setEnabled(false);
}

}  // namespace tarvix
