// Everything can be done without a mouse.
#include "tests/window/shown_windows.h"
#include "tests/window/window_states.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace tarvix::testing {
namespace {

using Names = std::vector<std::string>;

const QStringList kFlowOfWater = {"click optLiquid", "click optCalcFR",    "type txtSGf 1",
                                  "type txtSGb 1",   "type txtDeltaP 100", "type txtBeta 0.5"};

class KeyboardTest : public ::testing::Test {
  protected:
    void Play(const QStringList& actions) {
        const QString refused = player_.Play({"", actions});
        ASSERT_TRUE(refused.isEmpty()) << refused.toStdString();
    }

    static std::string Focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }

    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    // The controls that the key reaches from `first` until it comes back to it.
    static Names Walk(QWidget* first, Qt::Key key, Qt::KeyboardModifiers modifiers) {
        constexpr size_t kMoreThanAll = 100;
        first->setFocus(Qt::TabFocusReason);
        Names walked;
        do {
            walked.push_back(Focus());
            Press(key, modifiers);
        } while (QApplication::focusWidget() != first && walked.size() < kMoreThanAll);
        return walked;
    }

    MainForm& form() { return player_.form(); }
    frmTarvix& window() { return player_.window(); }

    StatePlayer player_;
};

// ---- The Tab key ----

using FluidAndMode = std::tuple<const char*, const char*>;

class TabOrderTest : public KeyboardTest, public ::testing::WithParamInterface<FluidAndMode> {};

INSTANTIATE_TEST_SUITE_P(AllFluidsAndModes, TabOrderTest,
                         ::testing::Combine(::testing::Values("optLiquid", "optGas", "optSteam"),
                                            ::testing::Values("optCalcBeta", "optCalcDP",
                                                              "optCalcFR")),
                         [](const ::testing::TestParamInfo<FluidAndMode>& way) {
                             return std::string(std::get<0>(way.param)) + std::get<1>(way.param);
                         });

// Frame by frame as they stand in the window, without the result fields.
Names ExpectedOrder(const std::string& fluid, const std::string& mode, bool canPrint) {
    static const std::map<std::string, Names> kProperties = {
        {"optLiquid", {"optSgUser", "txtSGf", "txtSGb"}},
        {"optGas",
         {"txtTf", "optDegF", "txtPf", "cboPressUnit", "optPgauge", "txtGasSGb",
          "optCompCorrNone"}},
        {"optSteam",
         {"optSaturated", "optSteamUser", "txtDensity", "cboDensityUnit", "txtPf", "cboPressUnit",
          "optPgauge"}},
    };
    Names order = {mode, fluid};
    const Names& properties = kProperties.at(fluid);
    order.insert(order.end(), properties.begin(), properties.end());
    const auto add = [&](bool isThere, const char* name) {
        if (isThere) {
            order.emplace_back(name);
        }
    };
    for (const char* name : {"cboNomSize", "cboPipeID", "cboPipeIDUnit"}) {
        add(true, name);
    }
    add(mode != "optCalcFR", "txtFlow");
    add(true, "cboFlowUnit");
    add(true, "cboTimeUnit");
    add(mode != "optCalcDP", "txtDeltaP");
    add(true, "cboDeltaPunit");
    add(mode != "optCalcBeta", "txtOriBoreDia");
    add(true, "cboOriBoreUnit");
    add(mode != "optCalcBeta", "txtBeta");
    add(canPrint, "cmdPrint");
    add(true, "cmdExit");
    return order;
}

TEST_P(TabOrderTest, TheTabKeyVisitsEveryUsableControlFrameByFrame) {
    const auto [fluid, mode] = GetParam();
    Play({QString("click ") + fluid, QString("click ") + mode});
    QWidget* first = form().Find(QLatin1String(mode))->widget;
    const Names order = ExpectedOrder(fluid, mode, false);
    EXPECT_EQ(Walk(first, Qt::Key_Tab, Qt::NoModifier), order);

    Names backwards(order.rbegin(), order.rend());
    backwards.insert(backwards.begin(), backwards.back());
    backwards.pop_back();
    EXPECT_EQ(Walk(first, Qt::Key_Backtab, Qt::ShiftModifier), backwards);
}

TEST_F(KeyboardTest, TheFirstTabStopIsTheSelectedMode) {
    window();
    EXPECT_EQ(Focus(), "optCalcBeta");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "optGas");
}

TEST_F(KeyboardTest, PrintIsATabStopWhenThereIsSomethingToPrint) {
    Play(kFlowOfWater);
    EXPECT_EQ(Walk(form().optCalcFR, Qt::Key_Tab, Qt::NoModifier),
              ExpectedOrder("optLiquid", "optCalcFR", true));
}

TEST_F(KeyboardTest, OptionsAndFieldsThatAreOpenedAreTabStops) {
    Play({"click optGas", "click optCompDensity", "click optDegC", "click optPabsolute"});
    const Names walked = Walk(form().optCalcBeta, Qt::Key_Tab, Qt::NoModifier);
    const Names expected = {
        "optCalcBeta",      "optGas",       "txtTf",     "optDegC",        "txtPf",
        "cboPressUnit",     "optPabsolute", "txtGasSGb", "optCompDensity", "txtZf",
        "cboZfDensityUnit", "cboNomSize"};
    ASSERT_GE(walked.size(), expected.size());
    EXPECT_EQ(Names(walked.begin(), walked.begin() + static_cast<long>(expected.size())), expected);
}

TEST_F(KeyboardTest, TheCoveredNominalSizeIsNoTabStop) {
    Play({"answer text 4", "choose cboPipeID Other (User Entered)"});
    ASSERT_TRUE(form().IsVisible(*form().txtMaskNomSize));
    Names walked = Walk(form().optCalcBeta, Qt::Key_Tab, Qt::NoModifier);
    EXPECT_EQ(std::count(walked.begin(), walked.end(), "cboNomSize"), 0);
    Play({"choose cboPipeID #0"});
    walked = Walk(form().optCalcBeta, Qt::Key_Tab, Qt::NoModifier);
    EXPECT_EQ(std::count(walked.begin(), walked.end(), "cboNomSize"), 1);
}

// ---- Arrow keys in the groups of options ----

TEST_F(KeyboardTest, ArrowKeysSelectAndRunTheHandler) {
    Play({"click optCalcBeta"});
    const int before = window().calculationRuns();
    Press(Qt::Key_Down);
    EXPECT_TRUE(form().optCalcDP->Value());
    EXPECT_EQ(BackColorOf(*form().optCalcDP), BackColor::Green);
    EXPECT_EQ(Focus(), "optCalcDP");
    Press(Qt::Key_Right);
    EXPECT_TRUE(form().optCalcFR->Value());
    EXPECT_TRUE(form().txtFlow->Locked());
    Press(Qt::Key_Down);
    EXPECT_TRUE(form().optCalcBeta->Value()) << "after the last comes the first";
    Press(Qt::Key_Up);
    EXPECT_TRUE(form().optCalcFR->Value()) << "before the first stands the last";
    Press(Qt::Key_Left);
    EXPECT_TRUE(form().optCalcDP->Value());
    EXPECT_EQ(window().calculationRuns() - before, 5) << "each arrow calculated once";
}

TEST_F(KeyboardTest, AnArrowLeadsToTheFieldThatTheOptionOpens) {
    Play({"click optGas"});
    Press(Qt::Key_Up);
    EXPECT_TRUE(form().optLiquid->Value());
    EXPECT_EQ(Focus(), "txtSGf");
    form().optLiquid->setFocus(Qt::BacktabFocusReason);
    Press(Qt::Key_Up);
    EXPECT_TRUE(form().optSteam->Value());
    EXPECT_EQ(Focus(), "txtDensity");
}

TEST_F(KeyboardTest, ArrowsPassByDisabledOptions) {
    Play({"click optSteam", "click optSuperheated", "focus optSteamUser"});
    ASSERT_FALSE(form().IsEnabled(*form().optSteamTbl));
    Press(Qt::Key_Up);
    EXPECT_TRUE(form().optSteamUser->Value());
    EXPECT_FALSE(form().optSteamTbl->Value());
}

TEST_F(KeyboardTest, SpaceSelectsTheOptionThatHasTheFocus) {
    Play({"click optCalcBeta"});
    form().optCalcFR->setFocus();
    Press(Qt::Key_Space);
    EXPECT_TRUE(form().optCalcFR->Value());
}

// ---- Mnemonics and shortcuts ----

TEST_F(KeyboardTest, MnemonicsDoNotClash) {
    const auto mnemonic = [](const QString& caption) {
        const auto at = caption.indexOf('&');
        return at < 0 ? QString() : QString(caption.at(at + 1)).toUpper();
    };
    QStringList window_level;
    for (const QAction* action : window().menuBar()->actions()) {
        window_level += mnemonic(action->text());
    }
    window_level += mnemonic(form().tabOrifice->tabText(0));
    for (const QAbstractButton* button : form().canvas().findChildren<QAbstractButton*>()) {
        window_level += mnemonic(button->text());
    }
    window_level.removeAll(QString());
    EXPECT_EQ(window_level, QStringList({"F", "A", "M"}));
    QStringList file_menu;
    for (const QAction* action : form().mnuFile->actions()) {
        file_menu += mnemonic(action->text());
    }
    EXPECT_EQ(file_menu, QStringList({"P", "X"}));
}

TEST_F(KeyboardTest, AltMLeadsToTheFirstControlOfTheTab) {
    for (const auto& [fluid, first] : std::map<QString, std::string>{
             {"optLiquid", "optSgUser"}, {"optGas", "txtTf"}, {"optSteam", "optSaturated"}}) {
        Play({"click " + fluid, "focus cboTimeUnit"});
        Press(Qt::Key_M, Qt::AltModifier);
        EXPECT_EQ(Focus(), first);
    }
}

TEST_F(KeyboardTest, F1AndAltAShowTheAboutWindow) {
    Play({"focus txtPf"});
    for (const auto& [key, modifier] :
         {std::pair(Qt::Key_F1, Qt::NoModifier), std::pair(Qt::Key_A, Qt::AltModifier)}) {
        const ShownWindows shown;
        Press(key, modifier);
        EXPECT_EQ(shown.names.count("AboutBox"), 1);
    }
}

TEST_F(KeyboardTest, CtrlPPrintsOnlyWhatIsSolved) {
    const QTemporaryDir folder;
    player_.desk().SetPrinter(folder.filePath("page.pdf"));
    Play(kFlowOfWater.mid(0, 5));
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(player_.desk().TakePages().empty());
    Play({"type txtBeta 0.5"});
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(player_.desk().TakePages().size(), 1U);
    EXPECT_EQ(Focus(), "txtBeta") << "the focus is where it was";
}

TEST_F(KeyboardTest, CtrlQAsksToExit) {
    player_.desk().QueueAnswer({false, std::nullopt});
    Play({"focus txtPf"});
    Press(Qt::Key_Q, Qt::ControlModifier);
    const auto boxes = player_.desk().TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Program Complete. EXIT PROGRAM");
}

TEST_F(KeyboardTest, F10OpensTheMenu) {
    Play({"focus txtPf"});
    Press(Qt::Key_F10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form().mnuFile->isVisible(); }));
    QTest::keyClick(form().mnuFile, Qt::Key_Escape);
    window().menuBar()->setActiveAction(nullptr);
}

TEST_F(KeyboardTest, CtrlCCopiesTheSolvedValueFromAnywhere) {
    QClipboard& clipboard = *QApplication::clipboard();
    Play(QStringList{"choose cboNomSize 4"} + kFlowOfWater);
    const auto copied = [&](const char* from) {
        clipboard.setText("something else");
        Play({QString("focus ") + from});
        if (auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget())) {
            field->deselect();
        }
        Press(Qt::Key_C, Qt::ControlModifier);
        return clipboard.text().toStdString();
    };
    for (const char* control : {"txtDeltaP", "txtBeta", "cboTimeUnit", "optCalcFR", "cmdExit"}) {
        EXPECT_EQ(copied(control), form().txtFlow->Text()) << control;
    }
    EXPECT_EQ(form().txtFlow->Text(), "142.3");
    Play({"choose cboFlowUnit Cubic Centimeters"});
    EXPECT_EQ(copied("txtBeta"), form().txtFlow->Text()) << "as it stands, with its groups";
    Play({"choose cboFlowUnit Gallons", "click optCalcDP"});
    EXPECT_EQ(copied("txtFlow"), form().txtDeltaP->Text());
    Play({"click optCalcBeta"});
    EXPECT_EQ(copied("txtFlow"), form().txtBeta->Text());
}

TEST_F(KeyboardTest, CtrlCCopiesASelectionBeforeTheSolvedValue) {
    Play(kFlowOfWater + QStringList{"focus txtDeltaP"});
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "100");
}

TEST_F(KeyboardTest, WhereNothingIsSolvedCtrlCCopiesNothing) {
    QApplication::clipboard()->setText("something else");
    Play({"click optGas", "focus cboTimeUnit"});
    Press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "something else");
}

TEST_F(KeyboardTest, EnterAndSpacePressTheButtonThatHasTheFocus) {
    player_.desk().QueueAnswer({false, std::nullopt});
    player_.desk().QueueAnswer({false, std::nullopt});
    Play({"focus cmdExit"});
    Press(Qt::Key_Return);
    EXPECT_EQ(player_.desk().TakeBoxes().size(), 1U);
    Press(Qt::Key_Space);
    EXPECT_EQ(player_.desk().TakeBoxes().size(), 1U);
}

}  // namespace
}  // namespace tarvix::testing
