// Prints one report as the program does, for the journey through a real print system.
//
//   print_page LOGO           prints on the default printer
//   print_page LOGO --hold    takes the default printer, writes "holding", waits for a line on
//                             standard input, and prints then
//
// Writes the message boxes that the user would see, one a line, and "going on" at the end.
#include "report/printer/report_printer.h"
#include "tests/core/recording_platform.h"
#include "tests/report/sample_sheets.h"
#include "ui/windows/window_host_qt.h"

#include <QApplication>
#include <QPrinterInfo>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string>

namespace tarvix::testing {
namespace {

class PrintingPlatform : public RecordingPlatform {
  public:
    int ShowMessageBox(const MessageBoxRequest& request) override {
        std::string text = request.text;
        std::replace(text.begin(), text.end(), '\n', '|');
        std::cout << "box: " << request.title << ": " << text << std::endl;
        return kAnswerOk;
    }
    [[noreturn]] void EndProgram(int exitStatus) override { std::exit(exitStatus); }
};

void PrintLater(Platform& platform, const ReportPage& page, const QImage& logo) {
    QPrinter printer(QPrinterInfo::defaultPrinter(), QPrinter::HighResolution);
    std::cout << "holding" << std::endl;
    std::string line;
    std::getline(std::cin, line);
    const PrintOutcome outcome = PrintReportOn(printer, page, logo);
    if (outcome.status != PrintOutcome::Status::Printed) {
        platform.ShowMessageBox(PrintOutcomeBox(printer, outcome));
    }
}

int Run(const QStringList& arguments) {
    PrintingPlatform platform;
    Module1 module(platform, NumberLocale{});
    FillCustomer(module);
    const ReportPage page = ComposeReport(FullestSheet(), module);
    const QImage logo(arguments.value(1));
    QWidget owner;
    if (arguments.contains("--hold")) {
        PrintLater(platform, page, logo);
    } else {
        WindowHostQt(platform).PrintPage(owner, page, logo);
    }
    std::cout << "going on" << std::endl;
    return EXIT_SUCCESS;
}

}  // namespace
}  // namespace tarvix::testing

int main(int argc, char* argv[]) {
    const QApplication application(argc, argv);
    return tarvix::testing::Run(QApplication::arguments());
}
