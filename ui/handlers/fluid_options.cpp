#include "ui/handlers/fluid_options.h"

#include "app/dispatch/do_orifice_calculations.h"
#include "ui/form/handler_links.h"
#include "ui/form/places.h"
#include "ui/handlers/densities.h"
#include "ui/handlers/flow_unit_boxes.h"
#include "ui/handlers/numeric_fields.h"
#include "ui/handlers/warnings.h"

namespace tarvix {

namespace {

void SelectFluidColors(const FormContext& context, const OptionButton* selected) {
    const MainForm& form = context.form;
    for (OptionButton* option : {form.optLiquid, form.optGas, form.optSteam}) {
        SetBackColor(*option, option == selected ? BackColor::Green : BackColor::LightGrey);
    }
}

}  // namespace

void ConnectFluidOptions(const FormContext& context) {
    const MainForm& form = context.form;
    OnClick(context, *form.optLiquid, optLiquid_Click);
    OnClick(context, *form.optGas, optGas_Click);
    OnClick(context, *form.optSteam, optSteam_Click);
    OnClick(context, *form.optSgCalc, optSgCalc_Click);
    OnClick(context, *form.optSgUser, optSgUser_Click);
    OnClick(context, *form.optSteamTbl, optSteamTbl_Click);
    OnClick(context, *form.optSteamUser, optSteamUser_Click);
    OnClick(context, *form.optSaturated, optSaturated_Click);
    OnClick(context, *form.optSuperheated, optSuperheated_Click);
    OnClick(context, *form.optCompCorrNone, optCompCorrNone_Click);
    OnClick(context, *form.optCompDensity, optCompDensity_Click);
    OnClick(context, *form.optCompZf, optCompZf_Click);
    OnClick(context, *form.optDegC, optDegC_Click);
    OnClick(context, *form.optDegF, optDegF_Click);
    OnClick(context, *form.optPgauge, optPgauge_Click);
    OnClick(context, *form.optPabsolute, optPabsolute_Click);
}

void optLiquid_Click(const FormContext& context) {
    MainForm& form = context.form;
    context.state.SuspendCalc = true;
    context.module.FluidType = "L";
    SelectFluidColors(context, form.optLiquid);
    form.fraSG->setVisible(true);
    form.fraTemp->setVisible(false);
    form.fraGasSG->setVisible(false);
    form.fraPress->setVisible(false);
    form.fraDensity->setVisible(true);
    form.fraCompCorrection->setVisible(false);
    form.SetTop(*form.fraDensity, kSlot2);
    form.fraDensity->setEnabled(false);
    form.lblSteamTbl->setVisible(false);
    DenOptEnableOff(context);
    DenEnableOff(context);
    LoadcboFlowUnit(context);
    LoadcboTimeUnit(context);
    form.optSgUser->Select();
    context.state.SuspendCalc = false;
    DoOrificeCalculations(context);
    form.txtSGf->setFocus();
}

void optGas_Click(const FormContext& context) {
    MainForm& form = context.form;
    context.state.SuspendCalc = true;
    context.module.FluidType = "G";
    SelectFluidColors(context, form.optGas);
    form.fraSG->setVisible(false);
    form.fraTemp->setVisible(true);
    form.fraGasSG->setVisible(true);
    form.fraPress->setVisible(true);
    form.fraDensity->setVisible(false);
    form.fraCompCorrection->setVisible(true);
    form.SetWidth(*form.fraPress, kPressWidthGas);
    form.fraTemp->setEnabled(true);
    TfEnableOn(context);
    ToptEnableOn(context);
    form.fraPress->setEnabled(true);
    form.fraPress->setVisible(true);
    form.cboPressUnit->setEnabled(true);
    CheckZfCompWarning(context);
    LoadcboFlowUnit(context);
    LoadcboTimeUnit(context);
    context.state.SuspendCalc = false;
    form.canvas().window()->repaint();
    DoOrificeCalculations(context);
}

void optSteam_Click(const FormContext& context) {
    MainForm& form = context.form;
    context.state.SuspendCalc = true;
    context.module.FluidType = "S";
    SelectFluidColors(context, form.optSteam);
    ShowMessage(context, "", BackColor::PaleGrey);
    form.fraSG->setVisible(false);
    form.fraTemp->setVisible(false);
    form.fraGasSG->setVisible(false);
    form.fraPress->setVisible(true);
    form.fraDensity->setVisible(true);
    form.fraCompCorrection->setVisible(false);
    form.SetTop(*form.fraDensity, kSlot1);
    form.SetWidth(*form.fraPress, kTabWidth);
    form.fraDensity->setEnabled(true);
    form.lblSteamTbl->setVisible(true);
    DenEnableOn(context);
    DenOptEnableOn(context);
    form.optSaturated->Select();
    form.optSteamUser->Select();
    LoadcboFlowUnit(context);
    LoadcboTimeUnit(context);
    form.fraPress->setEnabled(true);
    form.fraPress->setVisible(true);
    form.cboPressUnit->setEnabled(true);
    context.state.SuspendCalc = false;
    DoOrificeCalculations(context);
    form.txtDensity->setFocus();
}

void optSgCalc_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.txtSGf->setEnabled(false);
    SetBackColor(*form.txtSGf, BackColor::PaleGrey);
    form.fraDensity->setEnabled(true);
    form.txtDensity->setEnabled(true);
    DenEnableOn(context);
    form.txtSGf->SetText("");
    // A density that stands already gives its gravity at once.
    CalcSGf(context);
    form.txtDensity->setFocus();
    CalculateUnlessSuspended(context);
}

void optSgUser_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.txtSGf->setEnabled(true);
    SetBackColor(*form.txtSGf, BackColor::WindowBackground);
    form.fraDensity->setEnabled(false);
    DenEnableOff(context);
    form.txtSGf->SetText("");
    form.txtSGf->setFocus();
    CalculateUnlessSuspended(context);
}

void optSteamTbl_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.txtDensity->setEnabled(false);
    SetBackColor(*form.txtDensity, BackColor::PaleGrey);
    if (CalcSteamDensity(context)) {
        CalculateUnlessSuspended(context);
    }
    form.txtPf->setFocus();
}

void optSteamUser_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.txtDensity->setEnabled(true);
    SetBackColor(*form.txtDensity, BackColor::WindowBackground);
    form.txtDensity->SetText("");
    form.txtDensity->setFocus();
    CalculateUnlessSuspended(context);
}

void optSaturated_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.optSteamUser->Select();
    form.optSteamTbl->setEnabled(true);
    form.lblSteamTbl->setEnabled(true);
}

void optSuperheated_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.optSteamUser->Select();
    form.optSteamTbl->setEnabled(false);
    form.lblSteamTbl->setEnabled(false);
    form.txtDensity->setFocus();
}

void optCompCorrNone_Click(const FormContext& context) {
    const MainForm& form = context.form;
    form.cboZfDensityUnit->setVisible(false);
    form.lblCompCorr->setVisible(false);
    form.txtZf->setVisible(false);
    CheckZfCompWarning(context);
    form.fraGasSG->setVisible(true);
    CalculateUnlessSuspended(context);
}

void optCompDensity_Click(const FormContext& context) {
    MainForm& form = context.form;
    form.cboZfDensityUnit->setVisible(true);
    form.SetWidth(*form.lblCompCorr, kCompCorrWidthDensity);
    form.lblCompCorr->setText(QStringLiteral("Operating Density"));
    form.lblCompCorr->setVisible(true);
    form.txtZf->setVisible(true);
    form.txtZf->SetText("");
    CheckZfCompWarning(context);
    // A mass rate of a known density needs no gravity.
    form.fraGasSG->setVisible(SelectedFlowKind(context) != FlowKind::Mass);
    CalculateUnlessSuspended(context);
}

void optCompZf_Click(const FormContext& context) {
    MainForm& form = context.form;
    form.cboZfDensityUnit->setVisible(false);
    form.SetWidth(*form.lblCompCorr, kCompCorrWidthZf);
    form.lblCompCorr->setText(QStringLiteral("Compressibility at Flowing Conditions (Zf)"));
    form.lblCompCorr->setVisible(true);
    form.txtZf->setVisible(true);
    form.txtZf->SetText("");
    CheckZfCompWarning(context);
    form.fraGasSG->setVisible(true);
    CalculateUnlessSuspended(context);
}

void optDegC_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

void optDegF_Click(const FormContext& context) {
    CalculateUnlessSuspended(context);
}

void optPgauge_Click(const FormContext& context) {
    txtPf_Change(context);
}

void optPabsolute_Click(const FormContext& context) {
    txtPf_Change(context);
}

void SGfOptEnableOn(const FormContext& context) {
    context.form.optSgUser->setEnabled(true);
    context.form.optSgCalc->setEnabled(true);
}

void SGfOptEnableOff(const FormContext& context) {
    context.form.optSgUser->setEnabled(false);
    context.form.optSgCalc->setEnabled(false);
}

void DenEnableOn(const FormContext& context) {
    const MainForm& form = context.form;
    form.lblDensity->setEnabled(true);
    SetBackColor(*form.txtDensity, BackColor::WindowBackground);
    form.cboDensityUnit->setEnabled(true);
}

void DenEnableOff(const FormContext& context) {
    const MainForm& form = context.form;
    form.txtDensity->SetText("");
    form.lblDensity->setEnabled(false);
    SetBackColor(*form.txtDensity, BackColor::PaleGrey);
    form.cboDensityUnit->setEnabled(false);
}

void DenOptEnableOn(const FormContext& context) {
    const MainForm& form = context.form;
    for (QWidget* control :
         std::initializer_list<QWidget*>{form.optSaturated, form.optSuperheated, form.optSteamUser,
                                         form.optSteamTbl, form.lblSteamTbl}) {
        control->setEnabled(true);
    }
}

void DenOptEnableOff(const FormContext& context) {
    const MainForm& form = context.form;
    for (QWidget* control :
         std::initializer_list<QWidget*>{form.optSaturated, form.optSuperheated, form.optSteamUser,
                                         form.optSteamTbl, form.lblSteamTbl}) {
        control->setEnabled(false);
    }
}

void TfEnableOn(const FormContext& context) {
    const MainForm& form = context.form;
    form.txtTf->setEnabled(true);
    SetBackColor(*form.txtTf, BackColor::WindowBackground);
    form.lblTf->setEnabled(true);
}

void TfEnableOff(const FormContext& context) {
    const MainForm& form = context.form;
    form.txtTf->SetText("");
    form.txtTf->setEnabled(false);
    SetBackColor(*form.txtTf, BackColor::PaleGrey);
    form.lblTf->setEnabled(false);
}

void ToptEnableOn(const FormContext& context) {
    context.form.optDegF->setEnabled(true);
    context.form.optDegC->setEnabled(true);
}

void ToptEnableOff(const FormContext& context) {
    context.form.optDegF->setEnabled(false);
    context.form.optDegC->setEnabled(false);
}

}  // namespace tarvix
