#include "report/printer/report_printer.h"

#include "report/printer/page_painter.h"
#include "report/printer/print_system.h"

#include <QBuffer>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStorageInfo>

namespace tarvix {

namespace {

const char* const kDocumentName = "Orifice calculation";
const char* const kProgramName = "Brindle Tarvix";

// A page takes a few hundred kilobytes on its way to the printer. The toolkit doesn't notice when
// there is no room for it, and sends what came of it.
constexpr qint64 kRoomForPage = 2'000'000;

PrintOutcome Failed(const QString& reason) {
    return {PrintOutcome::Status::Failed, reason};
}

// Leaves a file that was there as it was when the new one can't be written whole.
PrintOutcome ReplaceFile(const QString& name, const QByteArray& content) {
    QSaveFile file(name);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.commit()) {
        return Failed(file.errorString());
    }
    return {};
}

// A device or a pipe is written to; replaced, it would be a device no more.
PrintOutcome WriteTo(const QString& name, const QByteArray& content) {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.flush()) {
        return Failed(file.errorString());
    }
    return {};
}

// Writes the page as a PDF file. The page is complete before the file is touched, so that a full
// disk leaves a file that was there before as it was.
PrintOutcome PrintToFile(const QPrinter& printer, const ReportPage& page, const QImage& logo) {
    QByteArray pdf;
    {
        QBuffer buffer(&pdf);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setTitle(kDocumentName);
        writer.setCreator(kProgramName);
        writer.setResolution(printer.resolution());
        writer.setPageLayout(printer.pageLayout());
        if (!PaintReport(writer, page, logo)) {
            return Failed({});
        }
    }
    const QFileInfo there(printer.outputFileName());
    return there.exists() && !there.isFile() ? WriteTo(there.filePath(), pdf)
                                             : ReplaceFile(there.filePath(), pdf);
}

PrintOutcome PrintToPrinter(QPrinter& printer, const ReportPage& page, const QImage& logo) {
    const QStorageInfo disk(QDir::tempPath());
    if (disk.isValid() && disk.bytesAvailable() < kRoomForPage) {
        return Failed(QString("There is no room left on the disk (%1).")
                          .arg(QDir::toNativeSeparators(disk.rootPath())));
    }
    printer.setDocName(kDocumentName);
    printer.setCreator(kProgramName);
    if (!PaintReport(printer, page, logo) || printer.printerState() == QPrinter::Error ||
        printer.printerState() == QPrinter::Aborted) {
        return Failed({});
    }
    if (const auto refusal = PrintSystemRefusal()) {
        return Failed(*refusal);
    }
    if (QPrinterInfo::printerInfo(printer.printerName()).state() == QPrinter::Error) {
        return {PrintOutcome::Status::Waiting, {}};
    }
    return {};
}

// The printer's own paper; without a printer, what is usual where the user lives. A system that
// names no locale counts as American.
QPageSize PaperOf(const QPrinterInfo& printer) {
    QPageSize paper = printer.isNull() ? QPageSize() : printer.defaultPageSize();
    if (paper.isValid()) {
        return paper;
    }
    const QLocale locale = QLocale::system();
    const bool american =
        locale.language() == QLocale::C || locale.measurementSystem() == QLocale::ImperialUSSystem;
    paper = QPageSize(american ? QPageSize::Letter : QPageSize::A4);
    return paper;
}

// Lets the user choose where the page goes on a system without a printer; false when they don't
// want it printed.
bool ChoosePrinter(QPrinter& printer, QWidget& owner) {
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    QPrintDialog dialog(&printer, &owner);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, false);
    return dialog.exec() == QDialog::Accepted;
#else
    // The system's own dialog knows printers alone, and the toolkit doesn't show it without one.
    const QString file = QFileDialog::getSaveFileName(
        &owner, "Print to File", QString("%1.pdf").arg(kDocumentName), "PDF (*.pdf)");
    printer.setOutputFileName(file);
    return !file.isEmpty();
#endif
}

QString NameOf(const QPrinter& printer) {
    return printer.outputFormat() == QPrinter::PdfFormat
               ? QDir::toNativeSeparators(printer.outputFileName())
               : printer.printerName();
}

}  // namespace

PrintOutcome PrintReportOn(QPrinter& printer, const ReportPage& page, const QImage& logo) {
    printer.setFullPage(true);
    return printer.outputFormat() == QPrinter::PdfFormat ? PrintToFile(printer, page, logo)
                                                         : PrintToPrinter(printer, page, logo);
}

MessageBoxRequest PrintOutcomeBox(const QPrinter& printer, const PrintOutcome& outcome) {
    MessageBoxRequest box;
    box.title = kProgramName;
    QString text;
    if (outcome.status == PrintOutcome::Status::Failed) {
        box.style = BoxStyle::Exclamation;
        text = QString("The report could not be printed.\n\nPrinter: %1\n").arg(NameOf(printer));
        if (!outcome.reason.isEmpty()) {
            text += QString("Reason: %1\n").arg(outcome.reason);
        }
        text +=
            "\nThe calculation and the customer lines are kept. Check the printer, then print "
            "again.";
    } else {
        box.style = BoxStyle::Information;
        text = QString(
                   "The printer \"%1\" is not ready.\n\nThe report waits in its queue and is "
                   "printed as soon as the printer is ready again.")
                   .arg(NameOf(printer));
    }
    box.text = text.toStdString();
    return box;
}

void PrintReport(QWidget& owner, Platform& platform, const ReportPage& page, const QImage& logo) {
    const QPrinterInfo defaultPrinter = QPrinterInfo::defaultPrinter();
    QPrinter printer(defaultPrinter, QPrinter::HighResolution);
    // The toolkit starts with A4, whatever paper the printer holds.
    printer.setPageSize(PaperOf(defaultPrinter));
    if (defaultPrinter.isNull() && !ChoosePrinter(printer, owner)) {
        return;
    }
    const PrintOutcome outcome = PrintReportOn(printer, page, logo);
    if (outcome.status != PrintOutcome::Status::Printed) {
        platform.ShowMessageBox(PrintOutcomeBox(printer, outcome));
    }
}

}  // namespace tarvix
