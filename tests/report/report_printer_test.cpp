// Printing without a printer: PDF files, the print dialog, what the user is told.
#include "report/printer/report_printer.h"

#include "tests/core/locales.h"
#include "tests/core/recording_platform.h"
#include "tests/report/pdf_reader.h"
#include "tests/report/sample_sheets.h"
#include "tests/window/modal_driver.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMarginsF>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>

namespace tarvix::testing {
namespace {

class ReportPrinterTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(folder_.isValid());
        printer_.setOutputFormat(QPrinter::PdfFormat);
        printer_.setOutputFileName(File());
        printer_.setPageSize(QPageSize(QPageSize::Letter));
    }

    QString File() const { return folder_.filePath("page.pdf"); }
    ReportPage Page() { return ComposeReport(GasSheet(), module_); }

    bool Print() {
        return PrintReportOn(printer_, Page(), QImage()).status == PrintOutcome::Status::Printed;
    }

    QTemporaryDir folder_;
    RecordingPlatform platform_;
    Module1 module_{platform_, kUnitedStates};
    QPrinter printer_{QPrinter::HighResolution};  // into File()
};

// In place of a file that is there.
TEST_F(ReportPrinterTest, WritesAPdfFileThatSaysWhatItIs) {
    QFile old(File());
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write(QByteArray(1000000, 'x'));
    old.close();
    module_.TagText = " FE-4102/B \xC3\x96st ";
    EXPECT_TRUE(Print());
    EXPECT_LT(QFile(File()).size(), 500000);
    if (!CanReadPdf()) {
        GTEST_SKIP() << "poppler-utils is not installed";
    }
    const std::vector<PdfPage> pages = ReadPdf(File());
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages[0].width, 612);
    EXPECT_NEAR(pages[0].Word("Customer:").left, 36.72, 0.1);
    const QString about = AboutPdf(File());
    for (const char* line : {"Title:           Orifice calculation FE-4102/B Öst\n",
                             "Creator:         Brindle Tarvix 3.0\n"}) {
        EXPECT_TRUE(about.contains(QString::fromUtf8(line))) << about.toStdString();
    }
}

TEST_F(ReportPrinterTest, APrinterIsToldItsMarginsAndTheNameOfTheJob) {
    module_.TagText = "FE-4102/B";
    ASSERT_TRUE(printer_.setPageMargins(QMarginsF(20, 20, 20, 20)));
    EXPECT_TRUE(Print());
    // From where the paper begins, not where the printer can print: some print engines count from
    // the margins that are set, even where the page is the whole paper.
    EXPECT_EQ(printer_.pageLayout().mode(), QPageLayout::FullPageMode);
    EXPECT_EQ(printer_.pageLayout().margins(), QMarginsF());
    // Of a path only what follows the last slash arrives at a printer.
    EXPECT_EQ(printer_.docName(), "Orifice calculation FE-4102-B");
    EXPECT_EQ(printer_.creator(), "Brindle Tarvix 3.0");
}

TEST_F(ReportPrinterTest, ProposesAFileWhoseNameAFileCanHave) {
    EXPECT_EQ(FreeFileName(folder_.path(), "Orifice calculation FE-4102/B"),
              folder_.filePath("Orifice calculation FE-4102-B.pdf"));
    // A per cent sign is a letter like others.
    EXPECT_EQ(FreeFileName(folder_.path(), "50 %1 %2"), folder_.filePath("50 %1 %2.pdf"));
}

TEST_F(ReportPrinterTest, FailureBoxOfAFileSpeaksOfAFile) {
    printer_.setOutputFileName("/reports/page.pdf");
    const MessageBoxRequest box =
        PrintOutcomeBox(printer_, {PrintOutcome::Status::Failed, "Permission denied"});
    EXPECT_EQ(box.title, "Brindle Tarvix");
    EXPECT_EQ(box.style, BoxStyle::Exclamation);
    EXPECT_EQ(box.buttons, BoxButtons::Ok);
    const std::string name = QDir::toNativeSeparators("/reports/page.pdf").toStdString();
    EXPECT_EQ(box.text,
              "The report could not be written.\n\nFile: " + name +
                  "\nReason: Permission denied\n\nThe calculation and the customer lines are kept. "
                  "Choose another file, then print again.");
    const MessageBoxRequest unknown = PrintOutcomeBox(printer_, {PrintOutcome::Status::Failed, {}});
    EXPECT_EQ(unknown.text.find("Reason"), std::string::npos) << unknown.text;
}

// The test's environment names a print server that isn't there, so the system has no printer.
class NoPrinterTest : public ReportPrinterTest {
  protected:
    void SetUp() override {
        ReportPrinterTest::SetUp();
        ASSERT_TRUE(QPrinterInfo::defaultPrinter().isNull())
            << "a printer is there: " << QPrinterInfo::defaultPrinterName().toStdString();
    }

    // Prints; `use` is what the user does in the dialog and in its field for the file.
    void PrintWith(const std::function<void(QPrintDialog&, QLineEdit&)>& use) {
        const ModalDriver<QPrintDialog> user(
            [&](QPrintDialog& dialog) { use(dialog, *dialog.findChild<QLineEdit*>("filename")); });
        QWidget owner;
        PrintReport(owner, platform_, Page(), QImage());
        EXPECT_TRUE(user.done());
        EXPECT_TRUE(platform_.boxes.empty());
    }

    static void PressDefaultButton(const QPrintDialog& dialog) {
        for (auto* button : dialog.findChildren<QPushButton*>()) {
            if (button->isDefault()) {
                button->click();
            }
        }
    }
};

TEST_F(NoPrinterTest, CancelledDialogPrintsNothing) {
    PrintWith([this](QPrintDialog& dialog, QLineEdit& file) {
        // There is one page.
        EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintPageRange));
        EXPECT_FALSE(dialog.testOption(QAbstractPrintDialog::PrintCollateCopies));
        file.setText(File());
        dialog.reject();
    });
    EXPECT_FALSE(QFile::exists(File()));
}

// What the dialog proposes, in the folder that the program was started in where that is the user's.
TEST_F(NoPrinterTest, DialogProposesAFileOfItsOwnForEachReport) {
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder_.path().toLocal8Bit());
    ASSERT_NE(QDir::currentPath(), folder_.path());
    module_.TagText = "FE-4102";
    QStringList proposed;
    for (int report = 0; report < 3; ++report) {
        PrintWith([&](const QPrintDialog& dialog, const QLineEdit& file) {
            proposed << file.text();
            PressDefaultButton(dialog);
        });
    }
    qputenv("HOME", home);
    const QStringList names{"Orifice calculation FE-4102.pdf",
                            "Orifice calculation FE-4102 (2).pdf",
                            "Orifice calculation FE-4102 (3).pdf"};
    ASSERT_EQ(proposed.size(), names.size());
    for (qsizetype i = 0; i < names.size(); ++i) {
        EXPECT_EQ(proposed.at(i), folder_.filePath(names.at(i)));
        EXPECT_TRUE(QFile::exists(proposed.at(i)));
    }
}

TEST_F(NoPrinterTest, DialogPrintsIntoAPdfFile) {
    PrintWith([this](const QPrintDialog& dialog, QLineEdit& file) {
        file.setText(File());
        PressDefaultButton(dialog);
    });
    ASSERT_TRUE(QFile::exists(File()));
    if (CanReadPdf()) {
        const std::vector<PdfPage> pages = ReadPdf(File());
        ASSERT_EQ(pages.size(), 1U);
        EXPECT_EQ(pages[0].LineOf(pages[0].Word("Customer:")), "Customer:");
        // The locale of the tests names no country: American paper.
        EXPECT_NEAR(pages[0].width, qEnvironmentVariable("TARVIX_EXPECT_PAPER", "612").toInt(),
                    0.5);
    }
}

}  // namespace
}  // namespace tarvix::testing
