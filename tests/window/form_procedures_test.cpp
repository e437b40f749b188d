// The form's procedures called directly: those that nothing in the program calls yet, and states
// that no user can bring about.
#include "app/dispatch/do_orifice_calculations.h"
#include "app/window/frm_tarvix.h"
#include "tests/window_script/script_desk.h"
#include "ui/handlers/densities.h"
#include "ui/handlers/flow_unit_boxes.h"
#include "ui/handlers/fluid_options.h"
#include "ui/handlers/numeric_fields.h"
#include "ui/handlers/pipe_boxes.h"
#include "ui/handlers/unit_boxes.h"
#include "ui/windows/frm_splash.h"

#include <QCoreApplication>
#include <QMenuBar>

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <utility>
#include <vector>

namespace tarvix {
namespace {

struct Ended {
    int exitStatus = -1;
};

class FormProceduresTest : public ::testing::Test {
  protected:
    // The exit status with which a call ends the program; nothing when it doesn't.
    template <typename Call>
    static std::optional<int> ExitStatusOf(Call call) {
        try {
            call();
        } catch (const Ended& end) {
            return end.exitStatus;
        }
        return std::nullopt;
    }

    ScriptDesk desk_{[](int exitStatus) { throw Ended{exitStatus}; }};
    Module1 module_{desk_, NumberLocale{}};
    QWidget canvas_;
    QMenuBar menus_;
    FormState state_;
    QWidget footer_;
    MainForm form_{canvas_, footer_, menus_};
    FormContext context_{form_, state_, module_};
};

TEST_F(FormProceduresTest, TemperatureIsClosedAndOpened) {
    state_.SuspendCalc = true;
    form_.txtTf->SetText("60");
    TfEnableOff(context_);
    EXPECT_EQ(form_.txtTf->text(), "");
    EXPECT_FALSE(form_.txtTf->isEnabled());
    EXPECT_FALSE(form_.lblTf->isEnabled());
    EXPECT_EQ(BackColorOf(*form_.txtTf), BackColor::PaleGrey);
    TfEnableOn(context_);
    EXPECT_TRUE(form_.txtTf->isEnabled());
    EXPECT_TRUE(form_.lblTf->isEnabled());
    EXPECT_EQ(BackColorOf(*form_.txtTf), BackColor::WindowBackground);
}

TEST_F(FormProceduresTest, TemperatureOptionsAreClosedAndOpened) {
    ToptEnableOff(context_);
    EXPECT_FALSE(form_.optDegF->isEnabled());
    EXPECT_FALSE(form_.optDegC->isEnabled());
    ToptEnableOn(context_);
    EXPECT_TRUE(form_.optDegF->isEnabled());
    EXPECT_TRUE(form_.optDegC->isEnabled());
}

TEST_F(FormProceduresTest, GravityOptionsAreClosedAndOpened) {
    SGfOptEnableOff(context_);
    EXPECT_FALSE(form_.optSgUser->isEnabled());
    EXPECT_FALSE(form_.optSgCalc->isEnabled());
    SGfOptEnableOn(context_);
    EXPECT_TRUE(form_.optSgUser->isEnabled());
    EXPECT_TRUE(form_.optSgCalc->isEnabled());
}

TEST_F(FormProceduresTest, PressureOfAnUnknownFluidEndsTheProgram) {
    state_.SuspendCalc = true;
    module_.FluidType = "X";
    EXPECT_EQ(ExitStatusOf([this] { txtPf_Change(context_); }), 1);
    const auto boxes = desk_.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, "Fatal Error");
    EXPECT_EQ(
        boxes[0].text,
        "Fatal Error Encountered: \n\r\n\rOrifice type not specified\n\r\n\rThis Program will "
        "now terminate.");
}

// A length that no table has: for the diameters of the lists, and for the user's own.
TEST_F(FormProceduresTest, AnUnknownUnitOfThePipeEndsTheProgram) {
    static constexpr Unit kFurlongs[] = {{"Furlongs", 7920.0F}};
    state_.SuspendCalc = true;
    LoadcboPipeIDUnit(context_);
    LoadcboNomSize(context_);
    LoadcboPipeID(context_);
    const std::string fatal =
        "Fatal Error Encountered: \n\r\n\rUnrecognized pipe ID unit for 'User Entered' pipe "
        "ID\n\r\n\rThis Program will now terminate.";
    // The question for the diameter comes before the last box.
    const auto expectEnd = [&](auto call) {
        desk_.TakeBoxes();
        EXPECT_EQ(ExitStatusOf(call), 1);
        const auto boxes = desk_.TakeBoxes();
        ASSERT_FALSE(boxes.empty());
        EXPECT_EQ(boxes.back().text, fatal);
        EXPECT_EQ(boxes.back().title, "Fatal Error");
    };
    form_.cboPipeIDUnit->setCurrentIndex(0);
    state_.PipeIDUnitTable = kFurlongs;
    expectEnd([this] { LoadcboPipeID(context_); });
    state_.PipeIDUnitTable = kLengthUnits;
    LoadcboPipeID(context_);
    state_.PipeIDUnitTable = kFurlongs;
    desk_.QueueAnswer({.ok = true, .text = "4"});
    form_.cboPipeID->setCurrentIndex(form_.cboPipeID->count() - 1);
    expectEnd([this] { cboPipeID_Click(context_); });
}

// Keeps the buttons of the boxes, too, which a script does not state.
class ButtonsDesk : public ScriptDesk {
  public:
    using ScriptDesk::ScriptDesk;

    int ShowMessageBox(const MessageBoxRequest& request) override {
        buttons.push_back(request.buttons);
        return ScriptDesk::ShowMessageBox(request);
    }

    std::vector<BoxButtons> buttons;
};

TEST(Boxes, WhatIsOnlySaidHasOneButton) {
    ButtonsDesk desk([](int exitStatus) { throw Ended{exitStatus}; });
    Module1 module(desk, NumberLocale{});
    QWidget canvas;
    QWidget footer;
    QMenuBar menus;
    FormState state;
    MainForm form(canvas, footer, menus);
    const FormContext context{form, state, module};
    state.SuspendCalc = true;
    LoadcboPipeIDUnit(context);
    LoadcboNomSize(context);
    LoadcboPipeID(context);
    desk.QueueAnswer({.ok = true, .text = "0"});
    form.cboPipeID->setCurrentIndex(form.cboPipeID->count() - 1);
    cboPipeID_Click(context);
    EXPECT_EQ(desk.buttons, std::vector{BoxButtons::Ok});
    module.FluidType = "X";
    EXPECT_THROW(txtPf_Change(context), Ended);
    EXPECT_EQ(desk.buttons, (std::vector{BoxButtons::Ok, BoxButtons::Ok}));
}

// What is solved is emptied; while no mode is chosen, whatever could be.
TEST_F(FormProceduresTest, AResultIsCleared) {
    state_.SuspendCalc = true;
    const std::pair<OptionButton*, std::vector<NumericField*>> modes[] = {
        {nullptr, {form_.txtFlow, form_.txtDeltaP, form_.txtBeta}},
        {form_.optCalcFR, {form_.txtFlow}},
        {form_.optCalcDP, {form_.txtDeltaP}},
        {form_.optCalcBeta, {form_.txtBeta}}};
    for (const auto& [mode, cleared] : modes) {
        if (mode != nullptr) {
            mode->setChecked(true);
        }
        for (NumericField* field : {form_.txtFlow, form_.txtDeltaP, form_.txtBeta}) {
            field->setText("0.5");
        }
        ClearResult(context_);
        for (NumericField* field : {form_.txtFlow, form_.txtDeltaP, form_.txtBeta}) {
            EXPECT_EQ(field->text().isEmpty(), std::ranges::count(cleared, field) > 0)
                << field->objectName().toStdString();
        }
    }
}

// The message of a calculation is kept beside the line that shows it.
TEST_F(FormProceduresTest, AMessageIsKept) {
    const auto messageAfter = [this](const char* flow) {
        form_.txtFlow->setText(flow);
        module_.MsgText = "an older one";
        DoOrificeCalculations(context_);
        EXPECT_EQ(module_.MsgText, form_.lblMsg->text().toStdString());
        return module_.MsgText;
    };
    module_.FluidType = "L";
    form_.optCalcBeta->setChecked(true);
    state_.SuspendCalc = true;
    LoadcboPipeIDUnit(context_);
    LoadcboNomSize(context_);
    LoadcboPipeID(context_);
    LoadcboDeltaPUnit(context_);
    LoadcboFlowUnit(context_);
    LoadcboTimeUnit(context_);
    for (NumericField* field : {form_.txtSGf, form_.txtSGb, form_.txtDeltaP}) {
        field->setText("1");
    }
    EXPECT_EQ(messageAfter("0"), "Fluid data (Flow Rate) must be greater than 0.");
    EXPECT_NE(messageAfter("99999999"), "");
    EXPECT_EQ(form_.lblMsg->palette().color(QPalette::Window), QColor(Qt::red));
    EXPECT_EQ(messageAfter("2"), "");
}

// So is that of a density from the table.
TEST_F(FormProceduresTest, AMessageOfTheSteamTableIsKept) {
    module_.FluidType = "S";
    state_.SuspendCalc = true;
    LoadcboPressUnit(context_);
    LoadcboDensityUnit(context_);
    form_.optCalcFR->setChecked(true);
    form_.optPabsolute->setChecked(true);
    form_.optSteamTbl->setChecked(true);
    form_.txtFlow->setText("12");
    form_.txtPf->setText("99999999");
    EXPECT_FALSE(CalcSteamDensity(context_));
    EXPECT_NE(module_.MsgText, "");
    EXPECT_EQ(module_.MsgText, form_.lblMsg->text().toStdString());
    EXPECT_EQ(form_.txtFlow->text(), "") << "what was solved is gone";
    form_.txtPf->setText("150");
    EXPECT_TRUE(CalcSteamDensity(context_));
    EXPECT_EQ(module_.MsgText, "");
    EXPECT_NE(form_.txtDensity->text(), "");
}

// Looks at the main window's mouse pointer while its other windows are open.
class PointerDesk : public ScriptDesk {
  public:
    PointerDesk() : ScriptDesk([](int exitStatus) { throw Ended{exitStatus}; }) {}

    void ShowCustomerWindow(QWidget& owner, Module1& module) override {
        inCustomerWindow = owner.cursor().shape();
        module.MsgResult = prints ? 1 : 2;
    }
    void PrintPage(QWidget& owner, const ReportPage& /*page*/, const QImage& /*logo*/) override {
        inPrinting = owner.cursor().shape();
    }

    bool prints = true;
    std::optional<Qt::CursorShape> inCustomerWindow;
    std::optional<Qt::CursorShape> inPrinting;
};

TEST(Printing, ThePointerIsBusyWhileThePageIsPrinted) {
    PointerDesk desk;
    Module1 module(desk, NumberLocale{});
    module.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
    frmTarvix window(module, desk);
    window.Form_Load();
    window.show();
    window.form().cmdPrint->setEnabled(true);

    window.form().cmdPrint->click();
    EXPECT_EQ(desk.inCustomerWindow, Qt::ArrowCursor);
    EXPECT_EQ(desk.inPrinting, Qt::BusyCursor);
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);

    desk.inPrinting.reset();
    desk.prints = false;
    window.form().cmdPrint->click();
    EXPECT_EQ(desk.inPrinting, std::nullopt) << "cancelled";
    EXPECT_EQ(window.cursor().shape(), Qt::ArrowCursor);
}

TEST(FormActivation, LaterActivationsChangeNothing) {
    ScriptDesk desk([](int exitStatus) { throw Ended{exitStatus}; });
    Module1 module(desk, NumberLocale{});
    module.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
    frmTarvix window(module, desk);
    window.Form_Load();
    window.show();
    EXPECT_TRUE(window.form().optGas->Value());
    window.form().optLiquid->Select();
    window.form().txtSGf->SetText("1");
    const int before = window.calculationRuns();
    window.hide();
    window.show();
    EXPECT_TRUE(window.form().optLiquid->Value());
    EXPECT_EQ(window.form().txtSGf->text(), "1");
    EXPECT_EQ(window.calculationRuns(), before);
}

}  // namespace
}  // namespace tarvix
