// What screen readers are told, seen from inside; the journeys read it from outside.
#include "tests/window/window_states.h"

#include <QAccessible>
#include <QCoreApplication>

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace tarvix::testing {
namespace {

// The events that the program sends to screen readers, as lines "kind: name".
std::vector<std::string>* recordedEvents = nullptr;

void RecordEvent(QAccessibleEvent* event) {
    const QAccessibleInterface* about = event->accessibleInterface();
    if (recordedEvents == nullptr || about == nullptr) {
        return;
    }
    const auto says = about->text(QAccessible::Name).toStdString();
    if (event->type() == QAccessible::Alert) {
        recordedEvents->push_back("alert: " + says);
    } else if (event->type() == QAccessible::NameChanged) {
        recordedEvents->push_back("name: " + says);
    }
}

class AccessibleNamesTest : public ::testing::Test {
  protected:
    AccessibleNamesTest() {
        QAccessible::setActive(true);
        player_.window();
    }
    ~AccessibleNamesTest() override {
        QAccessible::installUpdateHandler(nullptr);
        recordedEvents = nullptr;
        QAccessible::setActive(false);
    }

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

    // Plays the actions and lets the window finish what they set off.
    std::vector<std::string> EventsOf(const QStringList& actions) {
        events_.clear();
        recordedEvents = &events_;
        QAccessible::installUpdateHandler(RecordEvent);
        Play(actions);
        QCoreApplication::processEvents();
        recordedEvents = nullptr;
        return events_;
    }

    MainForm& form() { return player_.form(); }

    StatePlayer player_;

  private:
    std::vector<std::string> events_;
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
        {"txtOptionsFrame", QAccessible::Border},
        {"txtFlowTypeFrame", QAccessible::Border},
    };
    for (const WindowState& state : AllWindowStates()) {
        Play(state.actions);
        for (const NamedControl& control : form().Controls()) {
            if (control.widget == nullptr || !form().IsVisible(*control.widget)) {
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

TEST_F(AccessibleNamesTest, NoTwoControlsThatCanBeUsedShareAName) {
    for (const WindowState& state : AllWindowStates()) {
        Play(state.actions);
        std::set<std::string> names;
        for (const NamedControl& control : form().Controls()) {
            const bool canBeUsed =
                control.kind == ControlKind::TextBox || control.kind == ControlKind::ComboBox ||
                control.kind == ControlKind::Option || control.kind == ControlKind::Button;
            if (canBeUsed && form().IsVisible(*control.widget)) {
                EXPECT_TRUE(names.insert(Name(control.widget)).second)
                    << Name(control.widget) << " in " << state.name.toStdString();
            }
        }
    }
}

TEST_F(AccessibleNamesTest, AFieldSaysItsQuantityAndUnit) {
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Standard Cubic Feet per Day");
    EXPECT_EQ(Name(form().txtPf), "Operating Pressure, PSI gauge");
    EXPECT_EQ(Name(form().txtTf), "Operating Temperature, Deg F");
    EXPECT_EQ(Name(form().txtGasSGb), "Base Specific Gravity, air = 1");
    EXPECT_EQ(Name(form().txtDeltaP), "Differential Pressure, Inches Water");
    EXPECT_EQ(Name(form().cboNomSize), "Nominal Size of the pipe, Inches");

    Play({"choose cboPressUnit kPa", "click optPabsolute", "click optDegC",
          "choose cboFlowUnit Pounds", "choose cboTimeUnit Hour", "choose cboDeltaPunit mbar",
          "choose cboPipeIDUnit Millimeters"});
    EXPECT_EQ(Name(form().txtFlow), "Flow Rate, Pounds per Hour");
    EXPECT_EQ(Name(form().txtPf), "Operating Pressure, kPa absolute");
    EXPECT_EQ(Name(form().txtTf), "Operating Temperature, Deg C");
    EXPECT_EQ(Name(form().txtDeltaP), "Differential Pressure, mbar");
    EXPECT_EQ(Name(form().cboNomSize), "Nominal Size of the pipe, Millimeters");
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

TEST_F(AccessibleNamesTest, LabelsBelongToTheirFields) {
    const auto labels = Of(form().txtPf).relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.first().first->text(QAccessible::Name), "Operating Pressure");
}

TEST_F(AccessibleNamesTest, TheMessageLineSaysItsMessage) {
    Play({"click optLiquid", "click optCalcFR", "type txtSGf 1", "type txtDeltaP 100",
          "type txtBeta 0.5"});
    EXPECT_EQ(Name(form().lblMsg), "Incomplete fluid data (Base Specific Gravity).");
    Play({"type txtSGb 1"});
    EXPECT_EQ(Name(form().lblMsg), "No message");
}

TEST_F(AccessibleNamesTest, AMessageIsAnnouncedOnceWhenItHasChanged) {
    Play({"click optLiquid", "click optCalcFR", "type txtSGf 1", "type txtSGb 1",
          "type txtDeltaP 100", "type txtBeta 0.5"});
    QCoreApplication::processEvents();
    const std::string warning = "Warning: Beta value exceeds standard range (0.15 to 0.67).";
    EXPECT_EQ(EventsOf({"keys {End}{Backspace}7"}),
              (std::vector<std::string>{"name: " + warning, "alert: " + warning}));
    EXPECT_EQ(EventsOf({"keys 1"}), std::vector<std::string>())
        << "the message was taken away and put back";
    EXPECT_EQ(EventsOf({"type txtBeta 0.6"}),
              (std::vector<std::string>{"name: No message", "alert: No message"}));
}

TEST_F(AccessibleNamesTest, AWarningThatSaysSomethingElseIsAnnounced) {
    Play({"click optGas", "type txtPf 300"});
    EXPECT_EQ(Name(form().fraZfCompWarning),
              "At this pressure, no compressibility correction "
              "may result in erroneous computations.");
    const std::string says =
        "At this pressure, no compressibility correction will result in erroneous computations.";
    const auto events = EventsOf({"type txtPf 500"});
    EXPECT_EQ(std::count(events.begin(), events.end(), "alert: " + says), 1);
    Play({"choose cboNomSize 10", "type txtDeltaP 200"});
    EXPECT_EQ(Name(form().fraPlateThicknessWarning), "Orifice plate deflection should be checked.");
}

}  // namespace
}  // namespace tarvix::testing
