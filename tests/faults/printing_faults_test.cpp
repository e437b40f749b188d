// A report that can't be printed loses nothing: the window, the customer lines and the way to print
// are as they were, and the next report prints.
#include "app/window/frm_tarvix.h"
#include "report/printer/report_printer.h"
#include "tests/window_script/script_desk.h"
#include "tests/window_script/window_state.h"
#include "ui/windows/frm_splash.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonDocument>
#include <QPrinter>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>

namespace tarvix {

namespace {

// A desk whose pages go to one file, wherever that is, and that remembers how they fared.
class FilePrinterDesk : public ScriptDesk {
  public:
    FilePrinterDesk() : ScriptDesk([](int) { FAIL() << "the program ended"; }) {}

    void PrintPage(QWidget& /*owner*/, const ReportPage& page, const QImage& logo) override {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        outcome = PrintReportOn(printer, page, logo);
    }

    QString file;
    PrintOutcome outcome;
};

class PrintingFault : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        module_.AppPath = AppPathOf(QCoreApplication::applicationDirPath());
        window_.Form_Load();
        window_.show();
        MainForm& form = window_.form();
        form.optLiquid->Select();
        form.optCalcFR->Select();
        form.txtSGf->SetText("1");
        form.txtSGb->SetText("1");
        form.txtDeltaP->SetText("100");
        form.txtBeta->SetText("0.5");
        ASSERT_TRUE(form.cmdPrint->isEnabled());
    }

    QByteArray State() { return QJsonDocument(ControlStates(window_.form())).toJson(); }

    // Prints to `file`, which fails; then to a good one.
    void ExpectNothingLost(const QString& file) {
        const QByteArray before = State();
        desk_.file = file;
        desk_.TypeIntoCustomerWindow({"Somebody", "Somewhere", "FT-101"});
        window_.form().cmdPrint->click();
        EXPECT_EQ(desk_.outcome.status, PrintOutcome::Status::Failed);
        EXPECT_EQ(State(), before);
        EXPECT_EQ(module_.CustLine1, "Somebody");
        EXPECT_EQ(module_.CustLine2, "Somewhere");
        EXPECT_EQ(module_.TagText, "FT-101");

        desk_.file = folder_.filePath("good.pdf");
        window_.form().cmdPrint->click();
        EXPECT_EQ(desk_.outcome.status, PrintOutcome::Status::Printed);
        EXPECT_GT(QFileInfo(desk_.file).size(), 1000);
        EXPECT_EQ(State(), before);
    }

    QTemporaryDir folder_;
    FilePrinterDesk desk_;
    Module1 module_{desk_, NumberLocale{}};
    frmTarvix window_{module_, desk_};
};

}  // namespace

TEST_F(PrintingFault, FullDisk) {
    if (!QFileInfo::exists("/dev/full")) {
        GTEST_SKIP() << "this system has no /dev/full";
    }
    ExpectNothingLost("/dev/full");
    EXPECT_FALSE(QFileInfo("/dev/full").isFile()) << "the device was replaced";
}

TEST_F(PrintingFault, FolderThatIsGone) {
    ExpectNothingLost(folder_.filePath("gone/page.pdf"));
}

TEST_F(PrintingFault, FolderInPlaceOfTheFile) {
    ExpectNothingLost(folder_.path());
}

}  // namespace tarvix
