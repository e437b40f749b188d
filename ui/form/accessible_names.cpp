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
                AnnounceName(*list);
            });
        }
    }
}

void AccessibleNames::NameFixedControls() const {
    SetName(form_.imgBrindleLogo, "Brindle");
    SetName(form_.tabOrifice, "Measurement Orifice");
    SetName(form_.tabOrifice->tabBar(), "Measurement Orifice");
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
    form_.cmdPrint->setAccessibleDescription(QStringLiteral("Prints the calculation report"));
    form_.cmdExit->setAccessibleDescription(QStringLiteral("Ends the program"));
}

void AccessibleNames::NameOptions() const {
    SetName(form_.optCalcBeta, "Calculate Beta Ratio");
    SetName(form_.optCalcDP, "Calculate Differential Pressure");
    SetName(form_.optCalcFR, "Calculate Flow Rate");
    SetName(form_.optLiquid, "Liquid");
    SetName(form_.optGas, "Air - Gas");
    SetName(form_.optSteam, "Steam");
    SetName(form_.optSgCalc, "Calculated (from density)");
    SetName(form_.optSgUser, "User Entered");
    SetName(form_.optSuperheated, "Superheated");
    SetName(form_.optSaturated, "Saturated");
    SetName(form_.optSteamTbl, "From ASME Table (Op.Press. based)");
    SetName(form_.optSteamUser, "User Entered");
    SetName(form_.optDegF, "Deg F");
    SetName(form_.optDegC, "Deg C");
    SetName(form_.optPgauge, "Gauge");
    SetName(form_.optPabsolute, "Absolute");
    SetName(form_.optCompCorrNone, "None");
    SetName(form_.optCompDensity, "Density");
    SetName(form_.optCompZf, "Zf");
}

void AccessibleNames::Update() {
    SetName(*form_.cboNomSize,
            QStringLiteral("Nominal Size of the pipe, ") + UnitIn(*form_.cboPipeIDUnit));
    for (NumericField* field : form_.NumericFields()) {
        const FieldWords words = WordsOf(form_, *field);
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
