// What screen readers are told, seen from inside; the journeys read it from outside.
#include "tests/window/window_states.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCoreApplication>
#include <QTabBar>

#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarvix::testing {
namespace {

class AccessibleNamesTest : public ::testing::Test {
  protected:
    AccessibleNamesTest() { player_.window(); }

    void Play(const QStringList& actions) {
        const QString refused = player_.Play({"", actions});
        ASSERT_TRUE(refused.isEmpty()) << refused.toStdString();
    }

    static QAccessibleInterface& Of(QWidget* widget) {
        return *QAccessible::queryAccessibleInterface(widget);
    }

    static std::string Name(QWidget* widget) {
        return Of(widget).text(QAccessible::Name).toStdString();
    }

    MainForm& form() { return player_.form(); }

    StatePlayer player_;
};

TEST_F(AccessibleNamesTest, EveryControlHasANameAndTheRoleOfItsKind) {
    static const std::map<ControlKind, QAccessible::Role> kRoles = {
        {ControlKind::TextBox, QAccessible::EditableText},
        {ControlKind::ComboBox, QAccessible::ComboBox},
        {ControlKind::Option, QAccessible::RadioButton},
        {ControlKind::Frame, QAccessible::Grouping},
        {ControlKind::Label, QAccessible::StaticText},
        {ControlKind::Button, QAccessible::Button},
        {ControlKind::Picture, QAccessible::Graphic},
    };
    static const std::map<QString, QAccessible::Role> kOthers = {
        {"lblMsg", QAccessible::AlertMessage},
        {"fraZfCompWarning", QAccessible::AlertMessage},
        {"fraPlateThicknessWarning", QAccessible::AlertMessage},
        {"txtMaskNomSize", QAccessible::StaticText},
    };
    for (const WindowState& state : AllWindowStates()) {
        Play(state.actions);
        for (const NamedControl& control : form().Controls()) {
            if (control.widget == nullptr || !form().IsVisible(*control.widget) ||
                IsHiddenFromHelpers(*control.widget)) {
                continue;
            }
            EXPECT_NE(Name(control.widget), "")
                << control.name.toStdString() << " in " << state.name.toStdString();
            const auto other = kOthers.find(control.name);
            if (other != kOthers.end() || kRoles.contains(control.kind)) {
                EXPECT_EQ(Of(control.widget).role(),
                          other != kOthers.end() ? other->second : kRoles.at(control.kind))
                    << control.name.toStdString();
            }
        }
    }
}

// The frame around them is said before.
TEST_F(AccessibleNamesTest, NoTwoControlsOfAFrameThatCanBeUsedShareAName) {
    for (const WindowState& state : AllWindowStates()) {
        Play(state.actions);
        std::set<std::pair<QWidget*, std::string>> names;
        for (const NamedControl& control : form().Controls()) {
            const bool canBeUsed =
                control.kind == ControlKind::TextBox || control.kind == ControlKind::ComboBox ||
                control.kind == ControlKind::Option || control.kind == ControlKind::Button;
            if (canBeUsed && form().IsVisible(*control.widget) &&
                !IsHiddenFromHelpers(*control.widget)) {
                EXPECT_TRUE(
                    names.insert({control.widget->parentWidget(), Name(control.widget)}).second)
                    << Name(control.widget) << " in " << state.name.toStdString();
            }
        }
    }
}

TEST_F(AccessibleNamesTest, WhatKeepsItsNameHasThisOne) {
    const std::map<std::string, std::string> names = {
        {"imgBrindleLogo", "Brindle"},
        {"tabOrifice", "Measurement Orifice"},
        {"cboFlowUnit", "Flow Rate unit"},
        {"cboTimeUnit", "Flow Rate per time"},
        {"cboDeltaPunit", "Differential Pressure unit"},
        {"cboPressUnit", "Operating Pressure unit"},
        {"cboDensityUnit", "Operating Density unit"},
        {"cboZfDensityUnit", "Compressibility Correction, Operating Density unit"},
        {"cboPipeID", "Pipe ID and schedule"},
        {"cboPipeIDUnit", "Pipe ID unit"},
        {"cboOriBoreUnit", "Orifice Bore Diameter unit"},
        {"fraSteam1", "Steam"},
        {"fraSteam2", "Source of the density"},
        {"txtMaskNomSize", "No Nominal Size, the pipe is user entered"},
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
    };
    for (const auto& [control, name] : names) {
        const NamedControl* found = form().Find(QString::fromStdString(control));
        ASSERT_NE(found, nullptr) << control;
        EXPECT_EQ(found->widget->accessibleName().toStdString(), name) << control;
    }
    EXPECT_EQ(form().tabOrifice->tabBar()->accessibleName(), "Measurement Orifice");
    EXPECT_EQ(form().cmdPrint->accessibleDescription(), "Prints the calculation report");
    EXPECT_EQ(form().cmdExit->accessibleDescription(), "Ends the program");
}

TEST_F(AccessibleNamesTest, AnOptionDoesNotRepeatItsFrame) {
    EXPECT_EQ(Name(form().fraFlowType), "Flow Type");
    EXPECT_EQ(Name(form().optGas), "Air - Gas");
    EXPECT_EQ(Name(form().fraCompCorrection), "Compressibility Correction");
    EXPECT_EQ(Name(form().optCompZf), "Zf");
    EXPECT_EQ(Name(form().optSteamTbl), "From ASME Table (Op.Press. based)");
}

TEST_F(AccessibleNamesTest, AFieldSaysItsQuantityAndUnit) {
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Standard Cubic Feet per Day");
    EXPECT_EQ(Name(form().txtPf), "Operating Pressure, PSI gauge");
    EXPECT_EQ(Name(form().txtTf), "Operating Temperature, Deg F");
    EXPECT_EQ(Name(form().txtGasSGb), "Base Specific Gravity, air = 1");
    EXPECT_EQ(Name(form().txtDeltaP), "Differential Pressure, Inches Water");
    EXPECT_EQ(Name(form().cboNomSize), "Nominal Size of the pipe, Inches: 2");
    EXPECT_EQ(Name(form().cboFlowUnit), "Flow Rate unit: Standard Cubic Feet");
    EXPECT_EQ(Name(form().cboPipeID), "Pipe ID and schedule: 2.067\"  Sch 40, STD, Sch 40S");

    Play({"choose cboPressUnit kPa", "click optPabsolute", "click optDegC",
          "choose cboFlowUnit Pounds", "choose cboTimeUnit Hour", "choose cboDeltaPunit mbar",
          "choose cboPipeIDUnit Millimeters"});
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Pounds per Hour");
    EXPECT_EQ(Name(form().txtPf), "Operating Pressure, kPa absolute");
    EXPECT_EQ(Name(form().txtTf), "Operating Temperature, Deg C");
    EXPECT_EQ(Name(form().txtDeltaP), "Differential Pressure, mbar");
    EXPECT_EQ(Name(form().cboNomSize), "Nominal Size of the pipe, Millimeters: 50.8");
    EXPECT_EQ(Name(form().txtOriBoreDia), "Orifice Bore Diameter, Millimeters, result")
        << "the bore's unit follows the pipe's";

    Play({"click optCompZf"});
    EXPECT_EQ(Name(form().txtZf), "Compressibility at Flowing Conditions (Zf)");
    Play({"click optCompDensity", "choose cboZfDensityUnit kg/cubic meter"});
    EXPECT_EQ(Name(form().txtZf), "Operating Density, kg/cubic meter");

    Play({"click optLiquid", "choose cboFlowUnit #5"});
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Cubic Meters per Minute");
    EXPECT_EQ(Name(form().txtSGf), "Flowing Specific Gravity, water = 1");
    Play({"click optSgCalc"});
    EXPECT_EQ(Name(form().txtSGf), "Flowing Specific Gravity, water = 1, calculated from density");

    Play({"click optSteam"});
    EXPECT_EQ(Name(form().txtDensity), "Operating Density, lb/cubic foot");
    Play({"type txtPf 100", "click optSteamTbl"});
    EXPECT_EQ(Name(form().txtDensity), "Operating Density, lb/cubic foot, from ASME Table");
    Play({"click optLiquid"});
    EXPECT_EQ(Name(form().txtDensity), "Operating Density, lb/cubic foot");
}

TEST_F(AccessibleNamesTest, AResultIsAnnouncedAsSuch) {
    EXPECT_EQ(Name(form().txtBeta), "Beta Ratio, result");
    EXPECT_EQ(Name(form().txtOriBoreDia), "Orifice Bore Diameter, Inches, result");
    EXPECT_TRUE(Of(form().txtBeta).state().readOnly);
    Play({"click optCalcFR"});
    EXPECT_EQ(Name(form().txtBeta), "Beta Ratio");
    EXPECT_EQ(Name(form().txtOriBoreDia), "Orifice Bore Diameter, Inches");
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Standard Cubic Feet per Day, result");
    EXPECT_TRUE(Of(form().txtFlow).state().readOnly);
    EXPECT_FALSE(Of(form().txtBeta).state().readOnly);
    Play({"click optCalcDP"});
    EXPECT_EQ(Name(form().txtDeltaP), "Differential Pressure, Inches Water, result");
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Standard Cubic Feet per Day");
}

// Readers say a label instead of the name.
TEST_F(AccessibleNamesTest, NothingLabelsAControlBesideItsName) {
    for (const WindowState& state : AllWindowStates()) {
        Play(state.actions);
        for (const NamedControl& control : form().Controls()) {
            const bool isNamed = control.kind == ControlKind::TextBox ||
                                 control.kind == ControlKind::ComboBox ||
                                 control.kind == ControlKind::Option;
            if (isNamed && form().IsVisible(*control.widget) &&
                !IsHiddenFromHelpers(*control.widget)) {
                EXPECT_TRUE(Of(control.widget).relations(QAccessible::Label).isEmpty())
                    << control.name.toStdString();
            }
        }
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

void ExpectUnchangeable(QAccessibleInterface& field, QAccessibleEditableTextInterface* text) {
    EXPECT_FALSE(field.state().editable);
    EXPECT_EQ(field.editableTextInterface(), nullptr);
    EXPECT_NE(field.textInterface(), nullptr) << "it can be read";
    const QString before = field.text(QAccessible::Value);
    field.setText(QAccessible::Value, "999");
    // By what a helper has asked for before, too.
    text->insertText(0, "9");
    text->deleteText(0, 1);
    text->replaceText(0, 1, "9");
    EXPECT_EQ(field.text(QAccessible::Value), before);
}

TEST_F(AccessibleNamesTest, ALockedFieldRefusesEveryChange) {
    Play({"click optLiquid", "click optCalcBeta"});
    QAccessibleInterface& flow = Of(form().txtFlow);
    QAccessibleEditableTextInterface* text = flow.editableTextInterface();
    ASSERT_NE(text, nullptr);
    Play({"click optCalcFR", "type txtSGf 1", "type txtSGb 1", "type txtDeltaP 100",
          "type txtBeta 0.5"});
    ASSERT_NE(form().txtFlow->Text(), "");
    EXPECT_TRUE(flow.state().readOnly);
    ExpectUnchangeable(flow, text);
}

TEST_F(AccessibleNamesTest, ADisabledFieldRefusesEveryChange) {
    Play({"click optLiquid", "click optSgUser", "type txtSGf 1"});
    QAccessibleInterface& gravity = Of(form().txtSGf);
    QAccessibleEditableTextInterface* text = gravity.editableTextInterface();
    ASSERT_NE(text, nullptr);
    Play({"click optSgCalc", "type txtDensity 62.4"});
    ASSERT_FALSE(form().IsEnabled(*form().txtSGf));
    ASSERT_NE(form().txtSGf->Text(), "");
    ExpectUnchangeable(gravity, text);
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
        list.actionInterface()->doAction(action);
    }
    QCoreApplication::processEvents();
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
    const int before = player_.window().calculationRuns();
    option.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_TRUE(option.state().checked);
    EXPECT_TRUE(form().txtFlow->Locked()) << "the click's handler has run";
    EXPECT_EQ(player_.window().calculationRuns(), before + 1);
}

TEST_F(AccessibleNamesTest, HelpersMoveTheFocus) {
    for (QWidget* control : std::initializer_list<QWidget*>{form().optSteam, form().cboTimeUnit,
                                                            form().optGas, form().cboPressUnit}) {
        QAccessibleActionInterface& actions = *Of(control).actionInterface();
        EXPECT_TRUE(actions.actionNames().contains(QAccessibleActionInterface::setFocusAction()));
        actions.doAction(QAccessibleActionInterface::setFocusAction());
        EXPECT_TRUE(control->hasFocus()) << control->objectName().toStdString();
    }
    EXPECT_TRUE(form().optGas->Value()) << "the focus selects nothing";
}

TEST_F(AccessibleNamesTest, HelpersGoThroughAList) {
    QAccessibleInterface& list = Of(form().cboTimeUnit);
    QAccessibleActionInterface& actions = *list.actionInterface();
    ASSERT_TRUE(actions.actionNames().contains(QAccessibleActionInterface::increaseAction()));
    const int before = player_.window().calculationRuns();
    actions.doAction(QAccessibleActionInterface::increaseAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(list.text(QAccessible::Name), "Flow Rate per time: Second");
    EXPECT_EQ(player_.window().calculationRuns(), before + 1);
    actions.doAction(QAccessibleActionInterface::increaseAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(list.text(QAccessible::Value), "Second") << "it is the last one";
    for (int i = 0; i < 4; ++i) {
        actions.doAction(QAccessibleActionInterface::decreaseAction());
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(list.text(QAccessible::Value), "Minute");
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Standard Cubic Feet per Minute");
    ASSERT_EQ(list.childCount(), 1);
    EXPECT_EQ(list.child(0)->role(), QAccessible::List);
    EXPECT_EQ(list.child(0)->childCount(), 4);
    EXPECT_EQ(list.indexOfChild(list.child(0)), 0);
}

TEST_F(AccessibleNamesTest, HelpersOpenAListAndCloseItAgain) {
    player_.window().show();
    QAccessibleInterface& list = Of(form().cboTimeUnit);
    EXPECT_TRUE(list.state().expandable);
    EXPECT_FALSE(list.state().expanded);
    list.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(list.state().expanded);
    EXPECT_EQ(list.child(0)->text(QAccessible::Name), "Flow Rate per time");
    list.actionInterface()->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_FALSE(list.state().expanded);
    list.actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(form().cboTimeUnit->hasFocus());
}

TEST_F(AccessibleNamesTest, HelpersPickNothingInADisabledList) {
    Play({"click optLiquid", "click optSgUser"});
    ASSERT_FALSE(form().IsEnabled(*form().cboDensityUnit));
    Of(form().cboDensityUnit)
        .actionInterface()
        ->doAction(QAccessibleActionInterface::increaseAction());
    QCoreApplication::processEvents();
    EXPECT_EQ(form().cboDensityUnit->ListIndex(), 0);
}

// The bore of earlier entries stands when beta can no longer be solved.
TEST_F(AccessibleNamesTest, ABoreThatIsNotCurrentIsNoResult) {
    Play({"click optLiquid", "type txtSGf 1", "type txtSGb 1", "type txtDeltaP 100",
          "type txtFlow 30"});
    ASSERT_NE(form().txtBeta->Text(), "");
    EXPECT_EQ(Name(form().txtOriBoreDia), "Orifice Bore Diameter, Inches, result");
    EXPECT_EQ(Of(form().txtOriBoreDia).text(QAccessible::Description), "");
    Play({"type txtFlow 0"});
    ASSERT_EQ(form().txtBeta->Text(), "");
    ASSERT_NE(form().txtOriBoreDia->Text(), "");
    EXPECT_EQ(Name(form().txtOriBoreDia), "Orifice Bore Diameter, Inches");
    EXPECT_EQ(Of(form().txtOriBoreDia).text(QAccessible::Description),
              "Not current: it belongs to earlier entries");
    Play({"type txtFlow 30"});
    EXPECT_EQ(Name(form().txtOriBoreDia), "Orifice Bore Diameter, Inches, result");
}

TEST_F(AccessibleNamesTest, TheMessageLineSaysItsMessage) {
    Play({"click optLiquid", "click optCalcFR", "type txtSGf 1", "type txtDeltaP 100",
          "type txtBeta 0.5"});
    EXPECT_EQ(Name(form().lblMsg), "Incomplete fluid data (Base Specific Gravity).");
    Play({"type txtSGb 1"});
    EXPECT_EQ(Name(form().lblMsg), "No message");
}

TEST_F(AccessibleNamesTest, AWarningSaysItsWords) {
    Play({"click optGas", "type txtPf 300"});
    const std::string begin = "At this pressure, no compressibility correction ";
    EXPECT_EQ(Name(form().fraZfCompWarning), begin + "may result in erroneous computations.");
    Play({"type txtPf 500"});
    EXPECT_EQ(Name(form().fraZfCompWarning), begin + "will result in erroneous computations.");
    Play({"choose cboNomSize 10", "type txtDeltaP 200"});
    EXPECT_EQ(Name(form().fraPlateThicknessWarning), "Orifice plate deflection should be checked.");
}

}  // namespace
}  // namespace tarvix::testing
