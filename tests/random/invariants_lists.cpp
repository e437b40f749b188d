// The lists and their selections.
#include "tests/random/invariants.h"

#include <QRegularExpression>

namespace tarvix {

namespace {

QString SameItems(const Step& step, std::string_view list, const QStringList& expected) {
    const ControlView& control = step.now[list];
    if (control.items == expected) {
        return {};
    }
    for (qsizetype i = 0; i < std::max(expected.size(), control.items.size()); ++i) {
        if (control.items.value(i) != expected.value(i)) {
            return Named(list) + QStringLiteral(" %1: ").arg(i) + Quoted(control.items.value(i)) +
                   QStringLiteral(" instead of ") + Quoted(expected.value(i));
        }
    }
    return Named(list);
}

QString UnitLists(const Step& step) {
    const ProductTables& tables = step.world.tables;
    const std::pair<const char*, const char*> lists[] = {
        {"cboPressUnit", "press"},       {"cboDeltaPunit", "deltaP"}, {"cboDensityUnit", "density"},
        {"cboZfDensityUnit", "density"}, {"cboPipeIDUnit", "length"}, {"cboOriBoreUnit", "length"},
        {"cboTimeUnit", "time"},
    };
    for (const auto& [list, table] : lists) {
        QString fault = SameItems(step, list, TextsOf(tables.units.at(QLatin1String(table))));
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return SameItems(step, "cboFlowUnit", TextsOf(tables.FlowUnits(step.is.fluid)));
}

QString SizeList(const Step& step) {
    const Numbers& numbers = step.world.numbers;
    const float factor = step.is.pipeFactor;
    QStringList expected;
    for (const NominalSizeRow& size : step.world.tables.sizes) {
        expected.append(factor == 1.0F ? size.shown
                                       : numbers.Fixed(size.value.toFloat() / factor, 1, false));
    }
    return SameItems(step, "cboNomSize", expected);
}

// " mm" or " cm"; empty for inches.
QString MetricMark(const Step& step) {
    const int unit = step.now["cboPipeIDUnit"].index;
    return unit == 1 ? QStringLiteral(" mm") : unit == 2 ? QStringLiteral(" cm") : QString();
}

QStringList ExpectedSchedules(const Step& step) {
    const Numbers& numbers = step.world.numbers;
    const QString mark = MetricMark(step);
    const int size = step.now["cboNomSize"].index;
    QStringList expected;
    const QString& value = step.world.tables.sizes.at(static_cast<size_t>(size)).value;
    for (const ScheduleRow& row : step.world.tables.schedules.at(value)) {
        const QString metric =
            mark.isEmpty()
                ? QString()
                : QStringLiteral("(%1%2)  ")
                      .arg(numbers.Fixed(row.diameter.toFloat() / step.is.pipeFactor, 2, false),
                           mark);
        expected.append(numbers.Localized(row.diameter) + QStringLiteral("\"  ") + metric +
                        row.text);
    }
    return expected;
}

QString ScheduleList(const Step& step) {
    if (step.now["cboNomSize"].index < 0 || step.now["cboPipeID"].items.isEmpty()) {
        return QStringLiteral("no nominal size or no schedules");
    }
    QStringList expected = ExpectedSchedules(step);
    const QString last = step.now["cboPipeID"].items.last();
    const QString mark = MetricMark(step);
    // 4.500" (User Entered), or with the metric diameter 4.500"  (114.30 mm)   (User Entered)
    const QString number =
        QStringLiteral("[0-9]+%1[0-9]")
            .arg(QRegularExpression::escape(QString(step.world.numbers.decimalSeparator())));
    const QString metric =
        mark.isEmpty() ? QString() : QStringLiteral("  \\(%1{2}%2\\)  ").arg(number, mark);
    const QRegularExpression entered(
        QStringLiteral("^%1{3}\"%2 \\(User Entered\\)$").arg(number, metric));
    if (last != QLatin1String("Other (User Entered)") && !entered.match(last).hasMatch()) {
        return QStringLiteral("the last entry is ") + Quoted(last);
    }
    expected.append(last);
    return SameItems(step, "cboPipeID", expected);
}

QString ListsHaveSelection(const Step& step) {
    const std::vector<ControlView>& controls = step.now.controls();
    for (size_t i = 0; i < controls.size(); ++i) {
        const ControlView& list = controls[i];
        if (list.kind == ControlKind::ComboBox &&
            (list.index < 0 || list.text != list.items.value(list.index))) {
            return step.now.NameOf(i) + QStringLiteral(" shows ") + Quoted(list.text);
        }
    }
    return {};
}

// Lists that are not rebuilt keep what was picked; nobody but the user picks.
QString SelectionsStay(const Step& step) {
    if (step.Opening()) {
        return {};
    }
    const bool fluidClick = step.is.fluid != step.was.fluid ||
                            step.Is("click", {"optLiquid", "optGas", "optSteam"}) ||
                            step.command == QLatin1String("keys");
    for (const std::string_view list :
         {"cboPressUnit", "cboDeltaPunit", "cboDensityUnit", "cboZfDensityUnit", "cboPipeIDUnit",
          "cboNomSize", "cboFlowUnit", "cboTimeUnit", "cboOriBoreUnit"}) {
        const bool user = step.target == Named(list) || (step.command == QLatin1String("keys") &&
                                                         step.before.focus == Named(list));
        const bool follows =
            (list == "cboOriBoreUnit" && (step.target == QLatin1String("cboPipeIDUnit") ||
                                          step.before.focus == QLatin1String("cboPipeIDUnit"))) ||
            ((list == "cboFlowUnit" || list == "cboTimeUnit") && fluidClick);
        if (!user && !follows && step.before[list].index != step.now[list].index) {
            return Named(list) + QStringLiteral(" changed by itself");
        }
    }
    return {};
}

QString FluidDefaults(const Step& step) {
    if (!step.Is("click", {"optLiquid", "optGas", "optSteam"})) {
        return {};
    }
    const QString flow = step.now["cboFlowUnit"].text;
    const QString time = step.now["cboTimeUnit"].text;
    switch (step.is.fluid) {
        case 'L':
            return flow == QLatin1String("Gallons") && time == QLatin1String("Minute") ? QString()
                                                                                       : flow;
        case 'S':
            return flow == QLatin1String("Pounds") && time == QLatin1String("Hour") ? QString()
                                                                                    : flow;
        default:
            return flow == QLatin1String("Standard Cubic Feet") && time == QLatin1String("Day")
                       ? QString()
                       : flow;
    }
}

QString BoreUnitFollows(const Step& step) {
    return step.Is("choose", {"cboPipeIDUnit"}) &&
                   step.now["cboOriBoreUnit"].index != step.now["cboPipeIDUnit"].index
               ? QStringLiteral("the units differ")
               : QString();
}

// A rebuilt schedule list keeps the diameter where it has it, else shows its first entry.
QString SameDiameterStays(const Step& step) {
    if (!step.Is("choose", {"cboNomSize", "cboPipeIDUnit"}) || step.was.userEnteredPipe) {
        return {};
    }
    const auto diameterOf = [](const QString& text) {
        return text.left(text.indexOf(QLatin1Char('"')));
    };
    const QString wanted = diameterOf(step.before["cboPipeID"].text);
    const QStringList& items = step.now["cboPipeID"].items;
    int expected = 0;
    for (int i = 0; i < items.size() - 1; ++i) {
        expected = diameterOf(items.at(i)) == wanted ? i : expected;
    }
    return step.now["cboPipeID"].index == expected ? QString()
                                                   : QStringLiteral("entry %1 instead of %2")
                                                         .arg(step.now["cboPipeID"].index)
                                                         .arg(expected);
}

}  // namespace

void AddListInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"unit-lists",
          "The unit lists hold the units of the tables, in order; the flow units those of the "
          "fluid.",
          UnitLists},
         {"size-list", "The nominal sizes are those of the table, in the unit of the pipe.",
          SizeList},
         {"schedule-list",
          "The schedules are those of the nominal size, each with its diameter, and the user's own "
          "pipe at the end.",
          ScheduleList},
         {"list-selection", "Every list shows one of its entries.", ListsHaveSelection},
         {"selections-stay", "No selection changes but by the user's pick and what follows it.",
          SelectionsStay},
         {"fluid-defaults", "A change of fluid selects its own flow and time units.",
          FluidDefaults},
         {"bore-unit-follows", "A change of the pipe's unit takes the bore's unit with it.",
          BoreUnitFollows},
         {"same-diameter-stays",
          "A rebuilt schedule list selects the last entry with the former diameter, else its "
          "first.",
          SameDiameterStays}});
}

}  // namespace tarvix
