// The form's procedures called directly: those that nothing in the program calls yet, and states
// that no user can bring about.
#include "app/dispatch/do_orifice_calculations.h"
#include "app/window/frm_tarvix.h"
#include "tests/core/recording_platform.h"
#include "tests/window_script/script_desk.h"
#include "ui/form/input_reader.h"
#include "ui/handlers/densities.h"
#include "ui/handlers/flow_unit_boxes.h"
#include "ui/handlers/fluid_options.h"
#include "ui/handlers/numeric_fields.h"
#include "ui/handlers/pipe_boxes.h"
#include "ui/handlers/unit_boxes.h"
#include "ui/windows/frm_splash.h"

#include <QCoreApplication>
#include <QImage>
#include <QMenuBar>

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace tarvix {
namespace {

struct Ended {
    int exitStatus = -1;
};

// Keeps the buttons of the boxes, too, which a script does not state, and how the main window's
// mouse pointer looks while its other windows are open.
class KeepingDesk : public ScriptDesk {
  public:
    KeepingDesk() : ScriptDesk([](int exitStatus) { throw Ended{exitStatus}; }) {}

    int ShowMessageBox(const MessageBoxRequest& request) override {
        buttons.push_back(request.buttons);
        return ScriptDesk::ShowMessageBox(request);
    }
    void ShowCustomerWindow(QWidget& owner, Module1& module) override {
        inCustomerWindow = owner.cursor().shape();
        module.MsgResult = prints ? 1 : 2;
    }
    void PrintPage(QWidget& owner, const ReportPage& /*page*/, const QImage& logo) override {
        inPrinting = owner.cursor().shape();
        printedLogo = logo;
    }

    std::vector<BoxButtons> buttons;
    bool prints = true;
    std::optional<Qt::CursorShape> inCustomerWindow;
    std::optional<Qt::CursorShape> inPrinting;
    QImage printedLogo;
};

class FormProceduresTest : public ::testing::Test {
  protected:
    FormProceduresTest() { state_.SuspendCalc = true; }

    void LoadPipes() {
        LoadcboPipeIDUnit(context_);
        LoadcboNomSize(context_);
        LoadcboPipeID(context_);
    }

    // The last box of a call that ends the program with a fatal error.
    template <typename Call>
    ShownBox FatalBoxOf(Call call) {
        desk_.TakeBoxes();
        try {
            call();
            ADD_FAILURE() << "the program goes on";
        } catch (const Ended& end) {
            EXPECT_EQ(end.exitStatus, 1);
        }
        const auto boxes = desk_.TakeBoxes();
        EXPECT_FALSE(boxes.empty());
        return boxes.empty() ? ShownBox{} : boxes.back();
    }

    KeepingDesk desk_;
    Module1 module_{desk_, NumberLocale{}};
    QWidget canvas_;
    QMenuBar menus_;
    FormState state_;
    QWidget footer_;
    MainForm form_{canvas_, footer_, menus_};
    FormContext context_{form_, state_, module_};
};

TEST_F(FormProceduresTest, TemperatureAndOptionsAreClosedAndOpened) {
    using Procedure = void (*)(const FormContext&);
    const std::tuple<Procedure, Procedure, std::vector<QWidget*>> procedures[] = {
        {TfEnableOff, TfEnableOn, {form_.txtTf, form_.lblTf}},
        {ToptEnableOff, ToptEnableOn, {form_.optDegF, form_.optDegC}},
        {SGfOptEnableOff, SGfOptEnableOn, {form_.optSgUser, form_.optSgCalc}}};
    for (const auto& [close, open, controls] : procedures) {
        for (const bool isOpen : {false, true}) {
            (isOpen ? open : close)(context_);
            for (const QWidget* control : controls) {
                EXPECT_EQ(control->isEnabled(), isOpen) << control->objectName().toStdString();
            }
        }
    }
    form_.txtTf->SetText("60");
    TfEnableOff(context_);
    EXPECT_EQ(form_.txtTf->text(), "");
    EXPECT_EQ(BackColorOf(*form_.txtTf), BackColor::PaleGrey);
    TfEnableOn(context_);
    EXPECT_EQ(BackColorOf(*form_.txtTf), BackColor::WindowBackground);
}

TEST_F(FormProceduresTest, PressureOfAnUnknownFluidEndsTheProgram) {
    module_.FluidType = "X";
    const ShownBox box = FatalBoxOf([this] { txtPf_Change(context_); });
    EXPECT_EQ(box.title, "Fatal Error");
    EXPECT_EQ(box.text, testing::FatalText("Orifice type not specified"));
    EXPECT_EQ(desk_.buttons, std::vector{BoxButtons::Ok});
}

// A length that no table has: for the diameters of the lists, and for the user's own.
TEST_F(FormProceduresTest, AnUnknownUnitOfThePipeEndsTheProgram) {
    static constexpr Unit kFurlongs[] = {{"Furlongs", 7920.0F}};
    const std::string fatal =
        testing::FatalText("Unrecognized pipe ID unit for 'User Entered' pipe ID");
    LoadPipes();
    form_.cboPipeIDUnit->setCurrentIndex(0);
    state_.PipeIDUnitTable = kFurlongs;
    EXPECT_EQ(FatalBoxOf([this] { LoadcboPipeID(context_); }).text, fatal);
    state_.PipeIDUnitTable = kLengthUnits;
    LoadcboPipeID(context_);
    state_.PipeIDUnitTable = kFurlongs;
    desk_.QueueAnswer({.ok = true, .text = "4"});
    form_.cboPipeID->setCurrentIndex(form_.cboPipeID->count() - 1);
    EXPECT_EQ(FatalBoxOf([this] { cboPipeID_Click(context_); }).text, fatal);
}

// Positions that the table of a list does not have, and none.
TEST_F(FormProceduresTest, AListPositionOutsideItsTableEndsTheProgram) {
    LoadPipes();
    LoadcboPressUnit(context_);
    module_.FluidType = "G";
    const auto fatal = testing::FatalText("List position outside its table.");
    state_.PressUnitTable = state_.PressUnitTable.first(1);
    for (const int position : {-1, 1}) {
        form_.cboPressUnit->setCurrentIndex(position);
        EXPECT_EQ(FatalBoxOf([this] { ReadInputSheet(context_); }).text, fatal) << position;
    }
    form_.cboPressUnit->setCurrentIndex(0);
    ReadInputSheet(context_);
    // The user's own pipe stands behind all others.
    state_.PipeIDTable.pop_back();
    form_.cboPipeID->setCurrentIndex(form_.cboPipeID->count() - 1);
    EXPECT_EQ(FatalBoxOf([this] { cboPipeID_Click(context_); }).text, fatal);
}

TEST_F(FormProceduresTest, ABoxThatOnlySaysSomethingHasOneButton) {
    LoadPipes();
    desk_.QueueAnswer({.ok = true, .text = "0"});
    form_.cboPipeID->setCurrentIndex(form_.cboPipeID->count() - 1);
    cboPipeID_Click(context_);
    EXPECT_EQ(desk_.buttons, std::vector{BoxButtons::Ok});
}

// What is solved is emptied; while no mode is chosen, whatever could be.
TEST_F(FormProceduresTest, AResultIsCleared) {
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
    LoadPipes();
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
    EXPECT_EQ(messageAfter("0.1"), "Warning: Beta value exceeds standard range (0.15 to 0.67).");
}

// So is that of a density from the table.
TEST_F(FormProceduresTest, AMessageOfTheSteamTableIsKept) {
    module_.FluidType = "S";
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

class ShownFormTest : public ::testing::Test {
  protected:
    ShownFormTest() {
        module_.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
        window_.Form_Load();
        window_.show();
    }

    KeepingDesk desk_;
    Module1 module_{desk_, NumberLocale{}};
    frmTarvix window_{module_, desk_};
};

TEST_F(ShownFormTest, ThePointerIsBusyWhileThePageIsPrinted) {
    window_.form().cmdPrint->setEnabled(true);
    window_.form().cmdPrint->click();
    EXPECT_EQ(desk_.inCustomerWindow, Qt::ArrowCursor);
    EXPECT_EQ(desk_.inPrinting, Qt::BusyCursor);
    EXPECT_EQ(desk_.printedLogo,
              QImage(QString::fromStdString(module_.AppPath) + "BrindleLogo.jpg"));
    EXPECT_EQ(window_.cursor().shape(), Qt::ArrowCursor);

    desk_.inPrinting.reset();
    desk_.prints = false;
    window_.form().cmdPrint->click();
    EXPECT_EQ(desk_.inPrinting, std::nullopt) << "cancelled";
    EXPECT_EQ(window_.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ShownFormTest, LaterActivationsChangeNothing) {
    EXPECT_TRUE(window_.form().optGas->Value());
    window_.form().optLiquid->Select();
    window_.form().txtSGf->SetText("1");
    const int before = window_.calculationRuns();
    window_.hide();
    window_.show();
    EXPECT_TRUE(window_.form().optLiquid->Value());
    EXPECT_EQ(window_.form().txtSGf->text(), "1");
    EXPECT_EQ(window_.calculationRuns(), before);
}

}  // namespace
}  // namespace tarvix
