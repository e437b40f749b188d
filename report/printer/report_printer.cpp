#include "report/printer/report_printer.h"

#include "report/page/document_name.h"
#include "report/printer/page_painter.h"
#include "report/printer/print_system.h"

#include <QBuffer>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMarginsF>
#include <QPageSize>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QSaveFile>
#include <QStorageInfo>

namespace tarvix {

namespace {

const char* const kProgramName = "Brindle Tarvix";
const char* const kCreator = "Brindle Tarvix 3.0";

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
        writer.setTitle(QString::fromStdString(page.name));
        writer.setCreator(kCreator);
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
QPageSize UsualPaper(const QPrinterInfo& printer) {
    const QPageSize paper = printer.isNull() ? QPageSize() : printer.defaultPageSize();
    if (paper.isValid()) {
        return paper;
    }
    const QLocale locale = QLocale::system();
    const bool american =
        locale.language() == QLocale::C || locale.measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(american ? QPageSize::Letter : QPageSize::A4);
}

// On its way to the printer a name is taken for a path, of which only what follows the last slash
// arrives.
QString JobName(const ReportPage& page) {
    return QString::fromStdString(FileNameOf(page.name));
}

// The toolkit's own choice: the folder that the program was started in, where that is the user's.
QString FolderOfFiles() {
    const QString current = QDir::currentPath();
    const QString home = QDir::homePath();
    return current == home || current.startsWith(home + '/') ? current : home;
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
    const QString file = QFileDialog::getSaveFileName(&owner, "Print to File",
                                                      printer.outputFileName(), "PDF (*.pdf)");
    printer.setOutputFileName(file);
    return !file.isEmpty();
#endif
}

QString FailureText(const QPrinter& printer, const QString& reason) {
    const bool file = printer.outputFormat() == QPrinter::PdfFormat;
    QString text = file ? QString("The report could not be written.\n\nFile: %1\n")
                              .arg(QDir::toNativeSeparators(printer.outputFileName()))
                        : QString("The report could not be printed.\n\nPrinter: %1\n")
                              .arg(printer.printerName());
    if (!reason.isEmpty()) {
        text += QString("Reason: %1\n").arg(reason);
    }
    return text +
           QString("\nThe calculation and the customer lines are kept. %1, then print again.")
               .arg(file ? "Choose another file" : "Check the printer");
}

}  // namespace

QString FreeFileName(const QString& folder, const std::string& documentName) {
    const QDir in(folder);
    const QString name = QString::fromStdString(FileNameOf(documentName));
    QString file = name + ".pdf";
    for (int number = 2; in.exists(file); ++number) {
        file = QString("%1 (%2).pdf").arg(name, QString::number(number));
    }
    return in.filePath(file);
}

PrintOutcome PrintReportOn(QPrinter& printer, const ReportPage& page, const QImage& logo) {
    printer.setFullPage(true);
    // Windows' print engine counts from the printer's own margins in this mode, too.
    printer.setPageMargins(QMarginsF());
    printer.setDocName(JobName(page));
    printer.setCreator(kCreator);
    return printer.outputFormat() == QPrinter::PdfFormat ? PrintToFile(printer, page, logo)
                                                         : PrintToPrinter(printer, page, logo);
}

MessageBoxRequest PrintOutcomeBox(const QPrinter& printer, const PrintOutcome& outcome) {
    MessageBoxRequest box;
    box.title = kProgramName;
    if (outcome.status == PrintOutcome::Status::Failed) {
        box.style = BoxStyle::Exclamation;
        box.text = FailureText(printer, outcome.reason).toStdString();
        return box;
    }
    box.style = BoxStyle::Information;
    box.text = QString(
                   "The printer \"%1\" is not ready.\n\nThe report waits in its queue and is "
                   "printed as soon as the printer is ready again.")
                   .arg(printer.printerName())
                   .toStdString();
    return box;
}

void PrintReport(QWidget& owner, Platform& platform, const ReportPage& page, const QImage& logo) {
    const QPrinterInfo defaultPrinter = QPrinterInfo::defaultPrinter();
    QPrinter printer(defaultPrinter, QPrinter::HighResolution);
    // The toolkit starts with A4, whatever paper the printer holds.
    printer.setPageSize(UsualPaper(defaultPrinter));
    if (defaultPrinter.isNull()) {
        printer.setOutputFileName(FreeFileName(FolderOfFiles(), page.name));
        if (!ChoosePrinter(printer, owner)) {
            return;
        }
    }
    const PrintOutcome outcome = PrintReportOn(printer, page, logo);
    if (outcome.status != PrintOutcome::Status::Printed) {
        platform.ShowMessageBox(PrintOutcomeBox(printer, outcome));
    }
}

}  // namespace tarvix
