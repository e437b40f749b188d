#include "ui/form/accessible_names.h"

#include "ui/controls/accessible_roles.h"

#include <QTabBar>

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

QString UnitIn(const QComboBox& list) {
    return list.currentText().trimmed();
}

// A field of the fluid's properties.
FieldWords PropertyWords(const MainForm& form, const NumericField& field) {
    if (&field == form.txtPf) {
        return {"Operating Pressure",
                UnitIn(*form.cboPressUnit) + (form.optPabsolute->Value() ? " absolute" : " gauge"),
                {}};
    }
    if (&field == form.txtTf) {
        return {"Operating Temperature",
                (form.optDegC->Value() ? form.optDegC : form.optDegF)->text(),
                {}};
    }
    if (&field == form.txtDensity) {
        const bool fromTable = form.optSteam->Value() && form.optSteamTbl->Value();
        return {"Operating Density", UnitIn(*form.cboDensityUnit),
                fromTable ? "from ASME Table" : ""};
    }
    if (&field == form.txtSGb) {
        return {"Base Specific Gravity", "water = 1", {}};
    }
    if (&field == form.txtSGf) {
        return {"Flowing Specific Gravity", "water = 1",
                form.optSgCalc->Value() ? "calculated from density" : ""};
    }
    if (&field == form.txtGasSGb) {
        return {"Base Specific Gravity", "air = 1", {}};
    }
    return form.optCompDensity->Value()
               ? FieldWords{"Operating Density", UnitIn(*form.cboZfDensityUnit), {}}
               : FieldWords{"Compressibility at Flowing Conditions (Zf)", {}, {}};
}

void NameFixedControls(const MainForm& form) {
    SetName(form.imgBrindleLogo, "Brindle");
    SetName(form.tabOrifice, "Measurement Orifice");
    SetName(form.tabOrifice->tabBar(), "Measurement Orifice");
    SetName(form.cboFlowUnit, "Flow Rate unit");
    SetName(form.cboTimeUnit, "Flow Rate per time");
    SetName(form.cboDeltaPunit, "Differential Pressure unit");
    SetName(form.cboPressUnit, "Operating Pressure unit");
    SetName(form.cboDensityUnit, "Operating Density unit");
    SetName(form.cboZfDensityUnit, "Compressibility Correction, Operating Density unit");
    SetName(form.cboPipeID, "Pipe ID and schedule");
    SetName(form.cboPipeIDUnit, "Pipe ID unit");
    SetName(form.cboOriBoreUnit, "Orifice Bore Diameter unit");
    SetName(form.fraSteam1, "Steam");
    SetName(form.fraSteam2, "Source of the density");
    SetName(form.txtMaskNomSize, "No Nominal Size, the pipe is user entered");
    form.cmdPrint->setAccessibleDescription(QStringLiteral("Prints the calculation report"));
    form.cmdExit->setAccessibleDescription(QStringLiteral("Ends the program"));
}

void NameOptions(const MainForm& form) {
    SetName(form.optCalcBeta, "Calculate Beta Ratio");
    SetName(form.optCalcDP, "Calculate Differential Pressure");
    SetName(form.optCalcFR, "Calculate Flow Rate");
    SetName(form.optLiquid, "Liquid");
    SetName(form.optGas, "Air - Gas");
    SetName(form.optSteam, "Steam");
    SetName(form.optSgCalc, "Calculated (from density)");
    SetName(form.optSgUser, "User Entered");
    SetName(form.optSuperheated, "Superheated");
    SetName(form.optSaturated, "Saturated");
    SetName(form.optSteamTbl, "From ASME Table (Op.Press. based)");
    SetName(form.optSteamUser, "User Entered");
    SetName(form.optDegF, "Deg F");
    SetName(form.optDegC, "Deg C");
    SetName(form.optPgauge, "Gauge");
    SetName(form.optPabsolute, "Absolute");
    SetName(form.optCompCorrNone, "None");
    SetName(form.optCompDensity, "Density");
    SetName(form.optCompZf, "Zf");
}

}  // namespace

void NameControls(const MainForm& form) {
    NameFixedControls(form);
    NameOptions(form);
    UpdateNames(form);
    // Connected after the handlers of these controls, so that what they have done is named.
    for (const NamedControl& control : form.Controls()) {
        if (control.kind == ControlKind::Option) {
            auto* option = qobject_cast<QRadioButton*>(control.widget);
            QObject::connect(option, &QAbstractButton::clicked, option,
                             [&form] { UpdateNames(form); });
        } else if (control.kind == ControlKind::ComboBox) {
            auto* list = qobject_cast<QComboBox*>(control.widget);
            QObject::connect(list, &QComboBox::activated, list, [&form, list] {
                UpdateNames(form);
                AnnounceName(*list);
            });
        }
    }
}

void UpdateNames(const MainForm& form) {
    SetName(*form.cboNomSize,
            QStringLiteral("Nominal Size of the pipe, ") + UnitIn(*form.cboPipeIDUnit));
    for (NumericField* field : form.NumericFields()) {
        const FieldWords words = WordsOf(form, *field);
        QString name = words.quantity;
        for (const QString& further : {words.unit, words.source}) {
            name += further.isEmpty() ? QString() : QStringLiteral(", ") + further;
        }
        SetName(*field, name);
    }
}

FieldWords WordsOf(const MainForm& form, const NumericField& field) {
    if (&field == form.txtFlow) {
        return {"Flow Rate", UnitIn(*form.cboFlowUnit) + " per " + UnitIn(*form.cboTimeUnit), {}};
    }
    if (&field == form.txtDeltaP) {
        return {"Differential Pressure", UnitIn(*form.cboDeltaPunit), {}};
    }
    if (&field == form.txtBeta) {
        return {"Beta Ratio", {}, {}};
    }
    if (&field == form.txtOriBoreDia) {
        return {"Orifice Bore Diameter", UnitIn(*form.cboOriBoreUnit), {}};
    }
    return PropertyWords(form, field);
}

}  // namespace tarvix
