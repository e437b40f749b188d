#include "ui/accessible_names.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QVariant>

#include <utility>

namespace tarvix {

namespace {

// On a widget whose role isn't that of its class.
constexpr const char* kRoleProperty = "accessibleRole";

// The texts of the labels in the widget, or of the label that it is, as one sentence.
QString TextsOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return label->text();
    }
    QStringList texts;
    for (const QLabel* label : widget.findChildren<QLabel*>()) {
        texts += label->text();
    }
    return texts.join(QLatin1Char(' '));
}

class AlertInterface : public QAccessibleWidget {
  public:
    explicit AlertInterface(QWidget* alert) : QAccessibleWidget(alert, QAccessible::AlertMessage) {}

    QString text(QAccessible::Text kind) const override {
        const QString says = kind == QAccessible::Name ? TextsOf(*widget()) : QString();
        return says.isEmpty() ? QAccessibleWidget::text(kind) : says;
    }
};

QAccessibleInterface* CreateInterface(const QString& /*className*/, QObject* object) {
    const QVariant role = object != nullptr ? object->property(kRoleProperty) : QVariant();
    auto* widget = qobject_cast<QWidget*>(object);
    if (!role.isValid() || widget == nullptr) {
        return nullptr;
    }
    if (role.toInt() == QAccessible::AlertMessage) {
        return new AlertInterface(widget);
    }
    return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
}

void SetRole(QWidget& widget, QAccessible::Role role) {
    QAccessible::installFactory(CreateInterface);
    widget.setProperty(kRoleProperty, static_cast<int>(role));
}

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

void SetAlertName(QWidget& alert, const QString& silentName) {
    SetRole(alert, QAccessible::AlertMessage);
    alert.setAccessibleName(silentName);
}

void AnnounceAlert(QWidget& alert) {
    if (QAccessible::isActive()) {
        for (const auto kind : {QAccessible::NameChanged, QAccessible::Alert}) {
            QAccessibleEvent event(&alert, kind);
            QAccessible::updateAccessibility(&event);
        }
    }
}

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
            QObject::connect(list, &QComboBox::activated, list, [this] { Update(); });
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
    SetName(form_.txtMaskNomSize, "The pipe is user entered and has no nominal size");
    SetName(form_.txtOptionsFrame, "Background of the options");
    SetName(form_.txtFlowTypeFrame, "Background of the flow types");
    form_.cmdPrint->setAccessibleDescription(QStringLiteral("Prints the calculation report"));
    form_.cmdExit->setAccessibleDescription(QStringLiteral("Ends the program"));

    SetRole(*form_.fraSteam1, QAccessible::Grouping);
    SetRole(*form_.fraSteam2, QAccessible::Grouping);
    SetRole(*form_.txtMaskNomSize, QAccessible::StaticText);
    SetRole(*form_.txtOptionsFrame, QAccessible::Border);
    SetRole(*form_.txtFlowTypeFrame, QAccessible::Border);
    SetAlertName(*form_.fraPlateThicknessWarning, QString());
    SetAlertName(*form_.fraZfCompWarning, QString());

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
