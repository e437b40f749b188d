#include "ui/form/accessible_names.h"

#include "ui/controls/accessible_roles.h"

#include <utility>

namespace tarvix {

namespace {

// A name that has not changed is not announced again.
void SetName(QWidget& widget, const QString& name) {
    if (widget.accessibleName() != name) {
        widget.setAccessibleName(name);
    }
}

void SetName(QWidget* widget, const char* name) {
    SetName(*widget, QString::fromUtf8(name));
}

// What the fields and lists are for, and the unit that is chosen in their list.
QString InUnit(const char* quantity, const QComboBox& unit) {
    return QString::fromUtf8(quantity) + QStringLiteral(", ") + unit.currentText().trimmed();
}

void NameField(NumericField& field, const QString& quantity) {
    SetName(field, field.Locked() ? quantity + QStringLiteral(", result") : quantity);
}

}  // namespace

AccessibleNames::AccessibleNames(MainForm& form) : form_(form) {
    NameFixedControls();
    NameOptions();
    Update();
    // Connected after the handlers of these controls, so that what they have done is named.
    for (const NamedControl& control : form_.Controls()) {
        if (control.kind == ControlKind::Option) {
            auto* option = qobject_cast<QRadioButton*>(control.widget);
            QObject::connect(option, &QAbstractButton::clicked, option, [this] { Update(); });
        } else if (control.kind == ControlKind::ComboBox) {
            auto* list = qobject_cast<QComboBox*>(control.widget);
            QObject::connect(list, &QComboBox::activated, list, [this, list] {
                Update();
                AnnounceEntry(*list);
            });
        }
    }
}

void AccessibleNames::NameFixedControls() const {
    SetName(form_.imgBrindleLogo, "Brindle");
    SetName(form_.tabOrifice, "Measurement Orifice");
    SetName(form_.cboFlowUnit, "Flow Rate unit");
    SetName(form_.cboTimeUnit, "Flow Rate per time");
    SetName(form_.cboDeltaPunit, "Differential Pressure unit");
    SetName(form_.cboPressUnit, "Operating Pressure unit");
    SetName(form_.cboDensityUnit, "Operating Density unit");
    SetName(form_.cboZfDensityUnit, "Compressibility Correction, Operating Density unit");
    SetName(form_.cboPipeID, "Pipe ID and schedule");
    SetName(form_.cboPipeIDUnit, "Pipe ID unit");
    SetName(form_.cboOriBoreUnit, "Orifice Bore Diameter unit");
    SetName(form_.fraSteam1, "Steam");
    SetName(form_.fraSteam2, "Source of the density");
    SetName(form_.txtMaskNomSize, "No Nominal Size, the pipe is user entered");
    SetName(form_.txtOptionsFrame, "Background of the options");
    SetName(form_.txtFlowTypeFrame, "Background of the flow types");
    form_.cmdPrint->setAccessibleDescription(QStringLiteral("Prints the calculation report"));
    form_.cmdExit->setAccessibleDescription(QStringLiteral("Ends the program"));

    for (const auto& [label, field] :
         std::initializer_list<std::pair<QLabel*, QWidget*>>{{form_.lblSGb1, form_.txtSGb},
                                                             {form_.lblSGf1, form_.txtSGf},
                                                             {form_.lblDensity, form_.txtDensity},
                                                             {form_.lblTf, form_.txtTf},
                                                             {form_.lblPf, form_.txtPf},
                                                             {form_.lblGasSGb, form_.txtGasSGb},
                                                             {form_.lblCompCorr, form_.txtZf},
                                                             {form_.lblNomSize, form_.cboNomSize},
                                                             {form_.lblPipeID, form_.cboPipeID},
                                                             {form_.lblPer, form_.cboTimeUnit},
                                                             {form_.lblBeta, form_.txtBeta}}) {
        label->setBuddy(field);
    }
}

void AccessibleNames::NameOptions() const {
    SetName(form_.optCalcBeta, "Calculate Beta Ratio");
    SetName(form_.optCalcDP, "Calculate Differential Pressure");
    SetName(form_.optCalcFR, "Calculate Flow Rate");
    SetName(form_.optLiquid, "Flow Type: Liquid");
    SetName(form_.optGas, "Flow Type: Air - Gas");
    SetName(form_.optSteam, "Flow Type: Steam");
    SetName(form_.optSgCalc, "Specific Gravity: Calculated (from density)");
    SetName(form_.optSgUser, "Specific Gravity: User Entered");
    SetName(form_.optSuperheated, "Steam: Superheated");
    SetName(form_.optSaturated, "Steam: Saturated");
    SetName(form_.optSteamTbl, "Density: From ASME Table (Op.Press. based)");
    SetName(form_.optSteamUser, "Density: User Entered");
    SetName(form_.optDegF, "Temperature: Deg F");
    SetName(form_.optDegC, "Temperature: Deg C");
    SetName(form_.optPgauge, "Pressure: Gauge");
    SetName(form_.optPabsolute, "Pressure: Absolute");
    SetName(form_.optCompCorrNone, "Compressibility Correction: None");
    SetName(form_.optCompDensity, "Compressibility Correction: Density");
    SetName(form_.optCompZf, "Compressibility Correction: Zf");
}

void AccessibleNames::Update() {
    SetName(*form_.cboNomSize, InUnit("Nominal Size of the pipe", *form_.cboPipeIDUnit));
    NameField(*form_.txtFlow, InUnit("Flow Rate", *form_.cboFlowUnit) + QStringLiteral(" per ") +
                                  form_.cboTimeUnit->currentText());
    NameField(*form_.txtDeltaP, InUnit("Differential Pressure", *form_.cboDeltaPunit));
    NameField(*form_.txtBeta, QStringLiteral("Beta Ratio"));
    NameField(*form_.txtOriBoreDia, InUnit("Orifice Bore Diameter", *form_.cboOriBoreUnit));
    NameField(*form_.txtPf, InUnit("Operating Pressure", *form_.cboPressUnit) +
                                (form_.optPabsolute->Value() ? QStringLiteral(" absolute")
                                                             : QStringLiteral(" gauge")));
    NameField(*form_.txtTf, QStringLiteral("Operating Temperature, ") +
                                (form_.optDegC->Value() ? form_.optDegC : form_.optDegF)->text());
    const bool fromTable = form_.optSteam->Value() && form_.optSteamTbl->Value();
    NameField(*form_.txtDensity, InUnit("Operating Density", *form_.cboDensityUnit) +
                                     (fromTable ? QStringLiteral(", from ASME Table") : QString()));
    NameField(*form_.txtSGb, QStringLiteral("Base Specific Gravity, water = 1"));
    NameField(
        *form_.txtSGf,
        QStringLiteral("Flowing Specific Gravity, water = 1") +
            (form_.optSgCalc->Value() ? QStringLiteral(", calculated from density") : QString()));
    NameField(*form_.txtGasSGb, QStringLiteral("Base Specific Gravity, air = 1"));
    NameField(*form_.txtZf, form_.optCompDensity->Value()
                                ? InUnit("Operating Density", *form_.cboZfDensityUnit)
                                : QStringLiteral("Compressibility at Flowing Conditions (Zf)"));
}

}  // namespace tarvix
