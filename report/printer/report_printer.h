// Prints a composed report on the system's default printer.
#pragma once

#include "app/shared/platform.h"
#include "report/page/report_page.h"

#include <QImage>
#include <QPrinter>
#include <QString>
#include <QWidget>

#include <string>

namespace tarvix {

// How a page fared.
struct PrintOutcome {
    enum class Status {
        Printed,  // the print system has it, or the file is written
        Waiting,  // the print system has it, but the printer isn't ready
        Failed,   // nothing was printed
    };
    Status status = Status::Printed;
    QString reason;  // of a failure, where it is known
};

// The file in `folder` that a document with this name is proposed to be written to: one that is not
// there yet.
QString FreeFileName(const QString& folder, const std::string& documentName);

// Prints the page on the printer, or into the PDF file, that `printer` stands for.
PrintOutcome PrintReportOn(QPrinter& printer, const ReportPage& page, const QImage& logo);

// What the user is told about a page that waits or failed.
MessageBoxRequest PrintOutcomeBox(const QPrinter& printer, const PrintOutcome& outcome);

// Prints the page on the default printer. Where the system has none, the print dialog lets the user
// choose, a PDF file among others; cancelling it prints nothing. A page that waits or fails is
// reported in a message box; the caller goes on either way.
void PrintReport(QWidget& owner, Platform& platform, const ReportPage& page, const QImage& logo);

}  // namespace tarvix
