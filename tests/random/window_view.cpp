#include "tests/random/window_view.h"

#include <QGroupBox>
#include <QTabWidget>

#include <deque>
#include <string>

namespace tarvix {

namespace {

// The controls are the same in every window: their names and places in the list are kept.
struct Names {
    explicit Names(const MainForm& form) {
        for (const NamedControl& control : form.Controls()) {
            const std::string& key = keys.emplace_back(control.name.toStdString());
            index.emplace(key, names.size());
            names.push_back(control.name);
        }
    }
    std::deque<std::string> keys;
    ControlIndex index;
    std::vector<QString> names;
};

ControlView ViewOf(const MainForm& form, const NamedControl& control) {
    ControlView view;
    view.kind = control.kind;
    if (control.action != nullptr) {
        view.visible = control.action->isVisible();
        view.enabled = control.action->isEnabled();
        view.caption = control.action->text();
        return view;
    }
    const QWidget* widget = control.widget;
    view.visible = form.IsVisible(*widget);
    view.enabled = form.IsEnabled(*widget);
    view.backColor = BackColorOf(*widget);
    view.left = control.place.left;
    view.top = control.place.top;
    view.width = control.place.width;
    view.height = control.place.height;
    switch (control.kind) {
        case ControlKind::TextBox: {
            const auto* box = qobject_cast<const QLineEdit*>(widget);
            view.text = box->text();
            view.locked = box->isReadOnly();
            view.tabStop = (box->focusPolicy() & Qt::TabFocus) != 0;
            break;
        }
        case ControlKind::ComboBox: {
            const auto* list = qobject_cast<const QComboBox*>(widget);
            view.text = list->currentText();
            view.index = list->currentIndex();
            for (int i = 0; i < list->count(); ++i) {
                view.items.append(list->itemText(i));
            }
            break;
        }
        case ControlKind::Option:
            view.checked = qobject_cast<const QRadioButton*>(widget)->isChecked();
            view.caption = qobject_cast<const QRadioButton*>(widget)->text();
            break;
        case ControlKind::Frame:
            if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
                view.caption = group->title();
            }
            break;
        case ControlKind::Label:
            view.caption = qobject_cast<const QLabel*>(widget)->text();
            break;
        case ControlKind::Button:
            view.caption = qobject_cast<const QPushButton*>(widget)->text();
            break;
        case ControlKind::Tab:
            view.caption = qobject_cast<const QTabWidget*>(widget)->tabText(0);
            break;
        case ControlKind::Picture:
        case ControlKind::MenuItem:
            break;
    }
    return view;
}

float FactorOf(const std::vector<UnitRow>& units, const ControlView& list) {
    return list.index >= 0 && list.index < static_cast<int>(units.size())
               ? units[static_cast<size_t>(list.index)].factor
               : 1.0F;
}

}  // namespace

WindowView::WindowView(frmTarvix& window, ScriptDesk& desk) {
    static const Names kNames(window.form());
    const MainForm& form = window.form();
    index_ = &kNames.index;
    names_ = &kNames.names;
    controls_.reserve(form.Controls().size());
    for (const NamedControl& control : form.Controls()) {
        controls_.push_back(ViewOf(form, control));
    }
    const QWidget* active = form.ActiveControl();
    if (active != nullptr && index_->contains(active->objectName().toStdString())) {
        focus = active->objectName();
    }
    calculations = window.calculationRuns();
    pages = static_cast<int>(desk.TakePages().size());
    boxes = desk.TakeBoxes();
    title = window.windowTitle();
}

Reading::Reading(const WindowView& view, const World& world)
    : fluid(view["optLiquid"].checked  ? 'L'
            : view["optSteam"].checked ? 'S'
                                       : 'G'),
      mode(view["optCalcFR"].checked   ? SolveFor::FlowRate
           : view["optCalcDP"].checked ? SolveFor::DiffPressure
                                       : SolveFor::Beta),
      sgCalculated(view["optSgCalc"].checked),
      steamTable(view["optSteamTbl"].checked),
      absolute(view["optPabsolute"].checked),
      degC(view["optDegC"].checked),
      correction(view["optCompDensity"].checked ? CompCorrection::Density
                 : view["optCompZf"].checked    ? CompCorrection::Zf
                                                : CompCorrection::None) {
    const Numbers& numbers = world.numbers;
    flow = numbers.ReadSingle(view["txtFlow"].text);
    deltaP = numbers.ReadSingle(view["txtDeltaP"].text);
    beta = numbers.ReadSingle(view["txtBeta"].text);
    bore = numbers.ReadSingle(view["txtOriBoreDia"].text);
    pf = numbers.ReadSingle(view["txtPf"].text);
    tf = numbers.ReadSingle(view["txtTf"].text);
    density = numbers.ReadSingle(view["txtDensity"].text);
    sgb = numbers.ReadSingle(view["txtSGb"].text);
    sgf = numbers.ReadSingle(view["txtSGf"].text);
    gasSGb = numbers.ReadSingle(view["txtGasSGb"].text);
    zf = numbers.ReadSingle(view["txtZf"].text);

    const ProductTables& tables = world.tables;
    const std::vector<UnitRow>& flowUnits = tables.FlowUnits(fluid);
    const int flowUnit = view["cboFlowUnit"].index;
    flowFactor = FactorOf(flowUnits, view["cboFlowUnit"]);
    mass = flowUnit >= 0 && flowUnit < static_cast<int>(flowUnits.size()) &&
           flowUnits[static_cast<size_t>(flowUnit)].kind == QLatin1String("M");
    timeFactor = FactorOf(tables.units.at(QStringLiteral("time")), view["cboTimeUnit"]);
    deltaPFactor = FactorOf(tables.units.at(QStringLiteral("deltaP")), view["cboDeltaPunit"]);
    pressFactor = FactorOf(tables.units.at(QStringLiteral("press")), view["cboPressUnit"]);
    const std::vector<UnitRow>& densities = tables.units.at(QStringLiteral("density"));
    densityFactor = FactorOf(densities, view["cboDensityUnit"]);
    zfDensityFactor = FactorOf(densities, view["cboZfDensityUnit"]);
    const std::vector<UnitRow>& lengths = tables.units.at(QStringLiteral("length"));
    boreFactor = FactorOf(lengths, view["cboOriBoreUnit"]);
    pipeFactor = FactorOf(lengths, view["cboPipeIDUnit"]);

    const int size = view["cboNomSize"].index;
    if (size >= 0 && size < static_cast<int>(tables.sizes.size())) {
        nominalSize = tables.sizes[static_cast<size_t>(size)].value.toFloat();
    }
    // The inside diameter stands in front of the inch mark; "Other (User Entered)" has none yet.
    const QString pipe = view["cboPipeID"].text;
    userEnteredPipe = pipe.contains(QLatin1String("(User Entered)"));
    const auto inchMark = pipe.indexOf(QLatin1Char('"'));
    if (inchMark > 0) {
        pipeDiameterIn = numbers.ReadSingle(pipe.left(inchMark)).value_or(0.0F);
    }
}

std::optional<float> Reading::PressurePsi() const {
    return pf ? std::optional(*pf * pressFactor) : std::nullopt;
}

std::string_view ResultField(SolveFor mode) {
    switch (mode) {
        case SolveFor::FlowRate:
            return "txtFlow";
        case SolveFor::DiffPressure:
            return "txtDeltaP";
        case SolveFor::Beta:
            break;
    }
    return "txtBeta";
}

}  // namespace tarvix
