// What screen readers are told, seen from inside; the journeys read it from outside.
#include "tests/window/layout_fixtures.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCoreApplication>
#include <QMap>
#include <QTabBar>

#include <gtest/gtest.h>
#include <initializer_list>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarvix::testing {
namespace {

class AccessibleNamesTest : public PlayerTest {
  protected:
    AccessibleNamesTest() { window(); }

    static QAccessibleInterface& Of(QWidget* widget) {
        return *QAccessible::queryAccessibleInterface(widget);
    }

    static std::string Name(QWidget* widget) {
        return Of(widget).text(QAccessible::Name).toStdString();
    }

    // What a helper does to a control, and what comes of it.
    static void Do(QWidget* widget, const QString& action) {
        Of(widget).actionInterface()->doAction(action);
        QCoreApplication::processEvents();
    }
};

// The frame around a control is said before its name, and a label that is its own instead of it.
TEST_F(AccessibleNamesTest, EveryControlHasANameOfItsOwnAndTheRoleOfItsKind) {
    static const QMap<ControlKind, QAccessible::Role> kRoles = {
        {ControlKind::TextBox, QAccessible::EditableText},
        {ControlKind::ComboBox, QAccessible::ComboBox},
        {ControlKind::Option, QAccessible::RadioButton},
        {ControlKind::Frame, QAccessible::Grouping},
        {ControlKind::Label, QAccessible::StaticText},
        {ControlKind::Button, QAccessible::Button},
        {ControlKind::Picture, QAccessible::Graphic},
    };
    static const QMap<QString, QAccessible::Role> kOthers = {
        {"lblMsg", QAccessible::AlertMessage},
        {"fraZfCompWarning", QAccessible::AlertMessage},
        {"fraPlateThicknessWarning", QAccessible::AlertMessage},
        {"txtMaskNomSize", QAccessible::StaticText},
    };
    for (const WindowState& state : AllWindowStates()) {
        Play(state.actions);
        std::set<std::pair<QWidget*, std::string>> names;
        for (const NamedControl& control : form().Controls()) {
            QWidget* widget = control.widget;
            if (widget == nullptr || !form().IsVisible(*widget) || IsHiddenFromHelpers(*widget)) {
                continue;
            }
            SCOPED_TRACE((control.name + " in " + state.name).toStdString());
            EXPECT_NE(Name(widget), "");
            const auto role = kOthers.value(control.name, kRoles.value(control.kind));
            if (role != QAccessible::NoRole) {
                EXPECT_EQ(Of(widget).role(), role);
            }
            const bool isEntry = control.kind == ControlKind::TextBox ||
                                 control.kind == ControlKind::ComboBox ||
                                 control.kind == ControlKind::Option;
            if (isEntry) {
                EXPECT_TRUE(Of(widget).relations(QAccessible::Label).isEmpty());
            }
            if (isEntry || control.kind == ControlKind::Button) {
                EXPECT_TRUE(names.insert({widget->parentWidget(), Name(widget)}).second);
            }
        }
    }
}

struct NamesAfter {
    QStringList actions;
    std::vector<std::pair<QString, std::string>> names;
};

// From the start on, one after the other. A field says its quantity and unit, and whether it is a
// result; an option does not repeat its frame.
const NamesAfter kNames[] = {
    {{},
     {{"imgBrindleLogo", "Brindle"},
      {"tabOrifice", "Measurement Orifice"},
      {"fraFlowType", "Flow Type"},
      {"fraCompCorrection", "Compressibility Correction"},
      {"fraSteam1", "Steam"},
      {"fraSteam2", "Source of the density"},
      {"txtMaskNomSize", "No Nominal Size, the pipe is user entered"},
      {"cboFlowUnit", "Flow Rate unit: Standard Cubic Feet"},
      {"cboTimeUnit", "Flow Rate per time: Day"},
      {"cboDeltaPunit", "Differential Pressure unit: Inches Water"},
      {"cboPressUnit", "Operating Pressure unit: PSI"},
      {"cboDensityUnit", "Operating Density unit: lb/cubic foot"},
      {"cboZfDensityUnit", "Compressibility Correction, Operating Density unit: lb/cubic foot"},
      {"cboNomSize", "Nominal Size of the pipe, Inches: 2"},
      {"cboPipeID", "Pipe ID and schedule: 2.067\"  Sch 40, STD, Sch 40S"},
      {"cboPipeIDUnit", "Pipe ID unit: Inches"},
      {"cboOriBoreUnit", "Orifice Bore Diameter unit: Inches"},
      {"optCalcBeta", "Calculate Beta Ratio"},
      {"optCalcDP", "Calculate Differential Pressure"},
      {"optCalcFR", "Calculate Flow Rate"},
      {"optLiquid", "Liquid"},
      {"optGas", "Air - Gas"},
      {"optSteam", "Steam"},
      {"optSgCalc", "Calculated (from density)"},
      {"optSgUser", "User Entered"},
      {"optSuperheated", "Superheated"},
      {"optSaturated", "Saturated"},
      {"optSteamTbl", "From ASME Table (Op.Press. based)"},
      {"optSteamUser", "User Entered"},
      {"optDegF", "Deg F"},
      {"optDegC", "Deg C"},
      {"optPgauge", "Gauge"},
      {"optPabsolute", "Absolute"},
      {"optCompCorrNone", "None"},
      {"optCompDensity", "Density"},
      {"optCompZf", "Zf"},
      {"txtFlow", "Flow Rate, Standard Cubic Feet per Day"},
      {"txtPf", "Operating Pressure, PSI gauge"},
      {"txtTf", "Operating Temperature, Deg F"},
      {"txtGasSGb", "Base Specific Gravity, air = 1"},
      {"txtDeltaP", "Differential Pressure, Inches Water"},
      {"txtBeta", "Beta Ratio, result"},
      {"txtOriBoreDia", "Orifice Bore Diameter, Inches, result"}}},
    {{"click optCalcFR"},
     {{"txtFlow", "Flow Rate, Standard Cubic Feet per Day, result"},
      {"txtBeta", "Beta Ratio"},
      {"txtOriBoreDia", "Orifice Bore Diameter, Inches"}}},
    {{"click optCalcDP"},
     {{"txtFlow", "Flow Rate, Standard Cubic Feet per Day"},
      {"txtDeltaP", "Differential Pressure, Inches Water, result"}}},
    {{"choose cboPressUnit kPa", "click optPabsolute", "click optDegC", "choose cboFlowUnit Pounds",
      "choose cboTimeUnit Hour", "choose cboDeltaPunit mbar", "choose cboPipeIDUnit Millimeters",
      "click optCalcBeta"},
     {{"txtFlow", "Flow Rate, Pounds per Hour"},
      {"txtPf", "Operating Pressure, kPa absolute"},
      {"txtTf", "Operating Temperature, Deg C"},
      {"txtDeltaP", "Differential Pressure, mbar"},
      {"cboNomSize", "Nominal Size of the pipe, Millimeters: 50.8"},
      // The bore's unit follows the pipe's.
      {"txtOriBoreDia", "Orifice Bore Diameter, Millimeters, result"}}},
    {{"click optCompZf"}, {{"txtZf", "Compressibility at Flowing Conditions (Zf)"}}},
    {{"click optCompDensity", "choose cboZfDensityUnit kg/cubic meter"},
     {{"txtZf", "Operating Density, kg/cubic meter"}}},
    {{"click optLiquid", "choose cboFlowUnit #5"},
     {{"txtFlow", "Flow Rate, Cubic Meters per Minute"},
      {"txtSGf", "Flowing Specific Gravity, water = 1"}}},
    {{"click optSgCalc"},
     {{"txtSGf", "Flowing Specific Gravity, water = 1, calculated from density"}}},
    {{"click optSteam"}, {{"txtDensity", "Operating Density, lb/cubic foot"}}},
    {{"type txtPf 100", "click optSteamTbl"},
     {{"txtDensity", "Operating Density, lb/cubic foot, from ASME Table"}}},
    {{"click optLiquid"}, {{"txtDensity", "Operating Density, lb/cubic foot"}}},
    // The message and the warnings say their words.
    {{"click optCalcFR", "type txtSGf 1", "type txtDeltaP 100", "type txtBeta 0.5"},
     {{"lblMsg", "Incomplete fluid data (Base Specific Gravity)."}}},
    {{"type txtSGb 1"}, {{"lblMsg", "No message"}}},
    {{"click optGas", "choose cboPressUnit PSI", "click optPgauge", "click optCompCorrNone",
      "type txtPf 300"},
     {{"fraZfCompWarning",
       "At this pressure, no compressibility correction may result in erroneous computations."}}},
    {{"type txtPf 500", "choose cboNomSize 254.0", "choose cboDeltaPunit Inches Water",
      "type txtDeltaP 200"},
     {{"fraZfCompWarning",
       "At this pressure, no compressibility correction will result in erroneous computations."},
      {"fraPlateThicknessWarning", "Orifice plate deflection should be checked."}}},
};

TEST_F(AccessibleNamesTest, NamesSayWhatTheEyeFindsAround) {
    for (const NamesAfter& step : kNames) {
        Play(step.actions);
        for (const auto& [control, name] : step.names) {
            const NamedControl* found = form().Find(control);
            ASSERT_NE(found, nullptr) << control.toStdString();
            EXPECT_EQ(Name(found->widget), name)
                << control.toStdString() << " after " << step.actions.join(", ").toStdString();
        }
    }
    EXPECT_EQ(form().tabOrifice->tabBar()->accessibleName(), "Measurement Orifice");
    EXPECT_EQ(form().cmdPrint->accessibleDescription(), "Prints the calculation report");
    EXPECT_EQ(form().cmdExit->accessibleDescription(), "Ends the program");
}

// The bore of earlier entries stands when beta can no longer be solved.
TEST_F(AccessibleNamesTest, ABoreThatIsNotCurrentIsNoResult) {
    const std::pair<QStringList, std::string> said[] = {
        {{"click optLiquid", "type txtSGf 1", "type txtSGb 1", "type txtDeltaP 100",
          "type txtFlow 30"},
         "Orifice Bore Diameter, Inches, result: "},
        {{"type txtFlow 0"},
         "Orifice Bore Diameter, Inches: Not current: it belongs to earlier entries"},
        {{"type txtFlow 30"}, "Orifice Bore Diameter, Inches, result: "}};
    QWidget* bore = form().txtOriBoreDia;
    for (const auto& [actions, nameAndDescription] : said) {
        Play(actions);
        ASSERT_NE(form().txtOriBoreDia->Text(), "");
        const QString description = Of(bore).text(QAccessible::Description);
        EXPECT_EQ(Name(bore) + ": " + description.toStdString(), nameAndDescription);
    }
}

TEST_F(AccessibleNamesTest, WhatIsOnlyForTheEyesIsNotInTheTree) {
    for (QWidget* frame : {form().fraCalcOptions, form().fraFlowType}) {
        QAccessibleInterface& group = Of(frame);
        ASSERT_EQ(group.childCount(), 3);
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(group.child(i)->role(), QAccessible::RadioButton);
            EXPECT_EQ(group.indexOfChild(group.child(i)), i);
        }
        EXPECT_EQ(group.child(3), nullptr);
    }
    EXPECT_EQ(Of(form().fraFlowType).indexOfChild(&Of(form().txtFlowTypeFrame)), -1);
}

TEST_F(AccessibleNamesTest, TheTabDoesNotClaimTheFocus) {
    std::vector<QAccessibleInterface*> waiting = {&Of(form().tabOrifice)};
    while (!waiting.empty()) {
        QAccessibleInterface* accessible = waiting.back();
        waiting.pop_back();
        EXPECT_FALSE(accessible->state().focused)
            << accessible->text(QAccessible::Name).toStdString();
        for (int i = 0; i < accessible->childCount(); ++i) {
            waiting.push_back(accessible->child(i));
        }
    }
}

// ---- What helpers may change ----

TEST_F(AccessibleNamesTest, AFieldThatCanBeTypedIntoCanBeChanged) {
    Play({"click optCalcFR"});
    QAccessibleInterface& field = Of(form().txtDeltaP);
    EXPECT_TRUE(field.state().editable);
    EXPECT_FALSE(field.state().readOnly);
    QAccessibleEditableTextInterface* text = field.editableTextInterface();
    ASSERT_NE(text, nullptr);
    text->insertText(0, "150");
    EXPECT_EQ(form().txtDeltaP->Text(), "150");
    text->replaceText(0, 1, "2");
    EXPECT_EQ(form().txtDeltaP->Text(), "250");
    text->deleteText(1, 2);
    EXPECT_EQ(form().txtDeltaP->Text(), "20");
    field.setText(QAccessible::Value, "100");
    EXPECT_EQ(form().txtDeltaP->Text(), "100");
}

// By what a helper has asked for before, too.
TEST_F(AccessibleNamesTest, ALockedOrDisabledFieldRefusesEveryChange) {
    const std::pair<NumericField*, QStringList> refusing[] = {
        {form().txtFlow,
         {"click optCalcFR", "type txtSGf 1", "type txtSGb 1", "type txtDeltaP 100",
          "type txtBeta 0.5"}},
        {form().txtSGf, {"click optSgCalc", "type txtDensity 62.4"}}};
    for (const auto& [field, actions] : refusing) {
        SCOPED_TRACE(field->objectName().toStdString());
        Play({"click optLiquid", "click optCalcBeta"});
        QAccessibleInterface& told = Of(field);
        QAccessibleEditableTextInterface* text = told.editableTextInterface();
        ASSERT_NE(text, nullptr);
        Play(actions);
        const QString before = told.text(QAccessible::Value);
        ASSERT_NE(before, "");
        EXPECT_EQ(told.state().readOnly, field->Locked());
        EXPECT_FALSE(told.state().editable);
        EXPECT_EQ(told.editableTextInterface(), nullptr);
        EXPECT_NE(told.textInterface(), nullptr) << "it can be read";
        told.setText(QAccessible::Value, "999");
        text->insertText(0, "9");
        text->deleteText(0, 1);
        text->replaceText(0, 1, "9");
        EXPECT_EQ(told.text(QAccessible::Value), before);
    }
}

TEST_F(AccessibleNamesTest, TheTextOfAFieldIsReadByCharacters) {
    Play({"click optGas", "type txtPf 142.3"});
    QAccessibleTextInterface& text = *Of(form().txtPf).textInterface();
    EXPECT_EQ(text.characterCount(), 5);
    EXPECT_EQ(text.text(1, 4), "42.");
    int start = -1;
    int end = -1;
    EXPECT_EQ(text.attributes(2, &start, &end), "");
    EXPECT_EQ(std::pair(start, end), std::pair(0, 5));
    const NumericField& field = *form().txtPf;
    const QRect place = Of(form().txtPf).rect();
    for (int i = 0; i < 5; ++i) {
        const QRect character = text.characterRect(i);
        EXPECT_TRUE(place.contains(character)) << i;
        EXPECT_EQ(character.height(), place.height()) << i;
        EXPECT_NEAR(character.width(), field.fontMetrics().horizontalAdvance(field.text().at(i)),
                    1);
        EXPECT_EQ(text.offsetAtPoint(character.center() - QPoint(1, 0)), i);
        EXPECT_TRUE(i == 0 || character.left() == text.characterRect(i - 1).right() + 1) << i;
    }
    EXPECT_EQ(text.characterRect(5), QRect());
    EXPECT_EQ(text.characterRect(-1), QRect());
    // The last one ends where the text of a field ends.
    EXPECT_EQ(text.characterRect(4).right(), field.mapToGlobal(field.TextArea().bottomRight()).x());
}

TEST_F(AccessibleNamesTest, TheSelectionOfAFieldIsReadAndSet) {
    Play({"click optGas", "type txtPf 142.3"});
    QAccessibleTextInterface& text = *Of(form().txtPf).textInterface();
    const auto selection = [&text](int index) {
        int start = -1;
        int end = -1;
        text.selection(index, &start, &end);
        return std::pair(start, end);
    };
    text.setCursorPosition(2);
    EXPECT_EQ(text.cursorPosition(), 2);
    EXPECT_EQ(text.selectionCount(), 0);
    EXPECT_EQ(selection(0), std::pair(0, 0));
    text.setSelection(0, 1, 3);
    EXPECT_EQ(text.selectionCount(), 1);
    EXPECT_EQ(selection(0), std::pair(1, 3));
    EXPECT_EQ(selection(1), std::pair(0, 0)) << "there is one at the most";
    EXPECT_EQ(text.cursorPosition(), 3);
    text.setSelection(1, 0, 5);
    text.removeSelection(1);
    EXPECT_EQ(selection(0), std::pair(1, 3));
    text.addSelection(2, 5);
    EXPECT_EQ(selection(0), std::pair(2, 5));
    text.removeSelection(0);
    EXPECT_EQ(text.selectionCount(), 0);
    text.scrollToSubstring(1, 4);
    EXPECT_EQ(text.cursorPosition(), 1);
}

TEST_F(AccessibleNamesTest, ACoveredListIsOutOfReach) {
    QAccessibleInterface& list = Of(form().cboNomSize);
    QAccessibleInterface& frame = Of(form().fraPipe);
    const int children = frame.childCount();
    ASSERT_GE(frame.indexOfChild(&list), 0);
    Play({"answer text 4", "choose cboPipeID Other (User Entered)"});
    EXPECT_EQ(frame.indexOfChild(&list), -1);
    EXPECT_EQ(frame.childCount(), children - 1);
    EXPECT_TRUE(list.state().invisible);
    EXPECT_TRUE(list.actionInterface()->actionNames().isEmpty());
    const int index = form().cboNomSize->ListIndex();
    for (const QString& action : {QAccessibleActionInterface::increaseAction(),
                                  QAccessibleActionInterface::showMenuAction(),
                                  QAccessibleActionInterface::setFocusAction()}) {
        Do(form().cboNomSize, action);
    }
    EXPECT_EQ(form().cboNomSize->ListIndex(), index);
    EXPECT_FALSE(form().cboNomSize->view()->isVisible());
    EXPECT_FALSE(form().cboNomSize->hasFocus());
    Play({"choose cboPipeID #0"});
    EXPECT_GE(frame.indexOfChild(&list), 0);
}

// ---- Actions ----

TEST_F(AccessibleNamesTest, HelpersClickOptions) {
    QAccessibleInterface& option = Of(form().optCalcFR);
    EXPECT_TRUE(option.state().checkable);
    EXPECT_FALSE(option.state().checked);
    const int before = Calculations();
    Do(form().optCalcFR, QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(option.state().checked);
    EXPECT_TRUE(form().txtFlow->Locked()) << "the click's handler has run";
    EXPECT_EQ(Calculations(), before + 1);
}

TEST_F(AccessibleNamesTest, HelpersMoveTheFocus) {
    for (QWidget* control : std::initializer_list<QWidget*>{form().optSteam, form().cboTimeUnit,
                                                            form().optGas, form().cboPressUnit}) {
        EXPECT_TRUE(Of(control).actionInterface()->actionNames().contains(
            QAccessibleActionInterface::setFocusAction()));
        Do(control, QAccessibleActionInterface::setFocusAction());
        EXPECT_TRUE(control->hasFocus()) << control->objectName().toStdString();
    }
    EXPECT_TRUE(form().optGas->Value()) << "the focus selects nothing";
}

TEST_F(AccessibleNamesTest, HelpersGoThroughAList) {
    QAccessibleInterface& list = Of(form().cboTimeUnit);
    const QString next = QAccessibleActionInterface::increaseAction();
    ASSERT_TRUE(list.actionInterface()->actionNames().contains(next));
    const int before = Calculations();
    Do(form().cboTimeUnit, next);
    EXPECT_EQ(list.text(QAccessible::Name), "Flow Rate per time: Second");
    EXPECT_EQ(Calculations(), before + 1);
    Do(form().cboTimeUnit, next);
    EXPECT_EQ(list.text(QAccessible::Value), "Second") << "it is the last one";
    for (int i = 0; i < 4; ++i) {
        Do(form().cboTimeUnit, QAccessibleActionInterface::decreaseAction());
    }
    EXPECT_EQ(list.text(QAccessible::Value), "Minute");
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Standard Cubic Feet per Minute");
    ASSERT_EQ(list.childCount(), 1);
    EXPECT_EQ(list.child(0)->role(), QAccessible::List);
    EXPECT_EQ(list.child(0)->childCount(), 4);
    EXPECT_EQ(list.indexOfChild(list.child(0)), 0);
    // Not through one that is disabled.
    Play({"click optLiquid", "click optSgUser"});
    ASSERT_FALSE(form().IsEnabled(*form().cboDensityUnit));
    Do(form().cboDensityUnit, next);
    EXPECT_EQ(form().cboDensityUnit->ListIndex(), 0);
}

TEST_F(AccessibleNamesTest, HelpersOpenAListAndCloseItAgain) {
    QAccessibleInterface& list = Of(form().cboTimeUnit);
    EXPECT_TRUE(list.state().expandable);
    EXPECT_FALSE(list.state().expanded);
    Do(form().cboTimeUnit, QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(list.state().expanded);
    EXPECT_EQ(list.child(0)->text(QAccessible::Name), "Flow Rate per time");
    Do(form().cboTimeUnit, QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(list.state().expanded);
}

}  // namespace
}  // namespace tarvix::testing
