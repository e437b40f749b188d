// Everything can be done without a mouse.
#include "tests/window/event_watcher.h"
#include "tests/window/layout_fixtures.h"

#include <QClipboard>
#include <QMenuBar>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
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

class KeyboardTest : public PlayerTest {
  protected:
    static std::string Focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }

    static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    // The controls that the key reaches from `first` until it comes back to it.
    static Names Walk(QWidget* first, Qt::Key key = Qt::Key_Tab,
                      Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        constexpr size_t kMoreThanAll = 100;
        first->setFocus(Qt::TabFocusReason);
        Names walked;
        do {
            walked.push_back(Focus());
            Press(key, modifiers);
        } while (QApplication::focusWidget() != first && walked.size() < kMoreThanAll);
        return walked;
    }
};

// ---- The Tab key ----

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
    const auto add = [&](const Names& names, bool areThere = true) {
        order.insert(order.end(), names.begin(), areThere ? names.end() : names.begin());
    };
    add(kProperties.at(fluid));
    add({"cboNomSize", "cboPipeID", "cboPipeIDUnit"});
    add({"txtFlow"}, mode != "optCalcFR");
    add({"cboFlowUnit", "cboTimeUnit"});
    add({"txtDeltaP"}, mode != "optCalcDP");
    add({"cboDeltaPunit"});
    add({"txtOriBoreDia"}, mode != "optCalcBeta");
    add({"cboOriBoreUnit"});
    add({"txtBeta"}, mode != "optCalcBeta");
    add({"cmdPrint"}, canPrint);
    add({"cmdExit"});
    return order;
}

TEST_F(KeyboardTest, TheTabKeyVisitsEveryUsableControlFrameByFrame) {
    for (const char* fluid : {"optLiquid", "optGas", "optSteam"}) {
        for (const char* mode : {"optCalcBeta", "optCalcDP", "optCalcFR"}) {
            SCOPED_TRACE(std::string(fluid) + " " + mode);
            Play({QString("click ") + fluid, QString("click ") + mode});
            QWidget* first = form().Find(QLatin1String(mode))->widget;
            Names order = ExpectedOrder(fluid, mode, false);
            EXPECT_EQ(Walk(first), order);
            std::reverse(order.begin() + 1, order.end());
            EXPECT_EQ(Walk(first, Qt::Key_Backtab, Qt::ShiftModifier), order);
        }
    }
}

TEST_F(KeyboardTest, TheFirstTabStopIsTheSelectedMode) {
    window();
    EXPECT_EQ(Focus(), "optCalcBeta");
    Press(Qt::Key_Tab);
    EXPECT_EQ(Focus(), "optGas");
}

TEST_F(KeyboardTest, PrintIsATabStopWhenThereIsSomethingToPrint) {
    Play(kFlowOfWater);
    EXPECT_EQ(Walk(form().optCalcFR), ExpectedOrder("optLiquid", "optCalcFR", true));
}

TEST_F(KeyboardTest, OptionsAndFieldsThatAreOpenedAreTabStops) {
    Play({"click optGas", "click optCompDensity", "click optDegC", "click optPabsolute"});
    const Names walked = Walk(form().optCalcBeta);
    const Names expected = {
        "optCalcBeta",      "optGas",       "txtTf",     "optDegC",        "txtPf",
        "cboPressUnit",     "optPabsolute", "txtGasSGb", "optCompDensity", "txtZf",
        "cboZfDensityUnit", "cboNomSize"};
    ASSERT_GE(walked.size(), expected.size());
    EXPECT_EQ(Names(walked.begin(), walked.begin() + static_cast<long>(expected.size())), expected);
}

// ---- Arrow keys in the groups of options ----

TEST_F(KeyboardTest, ArrowKeysAndSpaceSelectAndRunTheHandler) {
    Play({"click optCalcBeta"});
    const int before = Calculations();
    // After the last comes the first, before the first stands the last.
    const std::pair<Qt::Key, OptionButton*> arrows[] = {{Qt::Key_Down, form().optCalcDP},
                                                        {Qt::Key_Right, form().optCalcFR},
                                                        {Qt::Key_Down, form().optCalcBeta},
                                                        {Qt::Key_Up, form().optCalcFR},
                                                        {Qt::Key_Left, form().optCalcDP}};
    for (const auto& [arrow, selected] : arrows) {
        Press(arrow);
        EXPECT_TRUE(selected->Value() && selected->hasFocus()) << arrow;
        EXPECT_EQ(BackColorOf(*selected), BackColor::Green);
    }
    EXPECT_EQ(Calculations() - before, 5) << "each arrow calculated once";
    form().optCalcFR->setFocus();
    Press(Qt::Key_Space);
    EXPECT_TRUE(form().optCalcFR->Value()) << "Space selects what has the focus";
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

// ---- Mnemonics and shortcuts ----

TEST_F(KeyboardTest, MnemonicsDoNotClash) {
    const auto addMnemonic = [](QStringList& keys, const QString& caption) {
        if (const auto at = caption.indexOf('&'); at >= 0) {
            keys += caption.mid(at + 1, 1).toUpper();
        }
    };
    QStringList inWindow;
    for (const QAction* action : window().menuBar()->actions()) {
        addMnemonic(inWindow, action->text());
    }
    addMnemonic(inWindow, form().tabOrifice->tabText(0));
    for (const QAbstractButton* button : form().canvas().findChildren<QAbstractButton*>()) {
        addMnemonic(inWindow, button->text());
    }
    EXPECT_EQ(inWindow, QStringList({"F", "A", "M"}));
    QStringList inFileMenu;
    for (const QAction* action : form().mnuFile->actions()) {
        addMnemonic(inFileMenu, action->text());
    }
    EXPECT_EQ(inFileMenu, QStringList({"P", "X"}));
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
        QStringList shown;
        const EventWatcher windows(*qApp, QEvent::Show,
                                   [&](QObject& window) { shown += window.objectName(); });
        Press(key, modifier);
        EXPECT_EQ(shown.count("AboutBox"), 1);
    }
}

TEST_F(KeyboardTest, CtrlPPrintsOnlyWhatIsSolved) {
    const QTemporaryDir folder;
    Player().desk().SetPrinter(folder.filePath("page.pdf"));
    Play(kFlowOfWater.mid(0, 5));
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(Player().desk().TakePages().empty());
    Play({"type txtBeta 0.5"});
    Press(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(Player().desk().TakePages().size(), 1U);
    EXPECT_EQ(Focus(), "txtBeta") << "the focus is where it was";
}

TEST_F(KeyboardTest, CtrlQAndTheButtonsOwnKeysAskToExit) {
    const std::tuple<const char*, Qt::Key, Qt::KeyboardModifiers> ways[] = {
        {"focus txtPf", Qt::Key_Q, Qt::ControlModifier},
        {"focus cmdExit", Qt::Key_Return, Qt::NoModifier},
        {"focus cmdExit", Qt::Key_Space, Qt::NoModifier}};
    for (const auto& [focus, key, modifiers] : ways) {
        Play({"answer cancel", focus});
        Press(key, modifiers);
        const auto boxes = Player().desk().TakeBoxes();
        ASSERT_EQ(boxes.size(), 1U) << key;
        EXPECT_EQ(boxes[0].text, "Program Complete. EXIT PROGRAM");
    }
}

TEST_F(KeyboardTest, F10OpensTheMenu) {
    Play({"focus txtPf"});
    Press(Qt::Key_F10);
    ASSERT_TRUE(QTest::qWaitFor([&] { return form().mnuFile->isVisible(); }));
    QTest::keyClick(form().mnuFile, Qt::Key_Escape);
    window().menuBar()->setActiveAction(nullptr);
}

TEST_F(KeyboardTest, CtrlCCopiesTheSolvedValueFromAnywhere) {
    Play(QStringList{"choose cboNomSize 4"} + kFlowOfWater);
    const auto copied = [&](const char* from, bool selected = false) {
        QApplication::clipboard()->setText("something else");
        Play({QString("focus ") + from});
        auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        if (field != nullptr && !selected) {
            field->deselect();
        }
        Press(Qt::Key_C, Qt::ControlModifier);
        return QApplication::clipboard()->text().toStdString();
    };
    for (const char* control : {"txtDeltaP", "txtBeta", "cboTimeUnit", "optCalcFR", "cmdExit"}) {
        EXPECT_EQ(copied(control), form().txtFlow->Text()) << control;
    }
    EXPECT_EQ(form().txtFlow->Text(), "142.3");
    EXPECT_EQ(copied("txtDeltaP", true), "100") << "a selection comes first";
    Play({"choose cboFlowUnit Cubic Centimeters"});
    EXPECT_EQ(copied("txtBeta"), form().txtFlow->Text()) << "as it stands, with its groups";
    Play({"choose cboFlowUnit Gallons", "click optCalcDP"});
    EXPECT_EQ(copied("txtFlow"), form().txtDeltaP->Text());
    Play({"click optCalcBeta"});
    EXPECT_EQ(copied("txtFlow"), form().txtBeta->Text());
    Play({"click optGas"});
    EXPECT_EQ(copied("cboTimeUnit"), "something else") << "nothing is solved";
}

}  // namespace
}  // namespace tarvix::testing
