#include "tests/window_script/script_desk.h"

#include "report/printer/report_printer.h"
#include "ui/windows/about_box.h"
#include "ui/windows/frm_cust_info.h"

#include <QPrinter>
#include <QTime>

#include <cstdlib>
#include <utility>

namespace tarvix {

namespace {

const char* StyleName(BoxStyle style) {
    return style == BoxStyle::Critical      ? "critical"
           : style == BoxStyle::Exclamation ? "exclamation"
                                            : "information";
}

}  // namespace

std::vector<ShownBox> ScriptDesk::TakeBoxes() {
    return std::exchange(boxes_, {});
}

std::vector<ReportPage> ScriptDesk::TakePages() {
    return std::exchange(pages_, {});
}

BoxAnswer ScriptDesk::NextAnswer() {
    if (answers_.empty()) {
        return {};
    }
    BoxAnswer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

int ScriptDesk::ShowMessageBox(const MessageBoxRequest& request) {
    boxes_.push_back({request.title, request.text, StyleName(request.style), ""});
    const BoxAnswer answer = NextAnswer();
    const bool cancelled = !answer.ok && request.buttons == BoxButtons::OkCancel;
    return cancelled ? kAnswerCancel : kAnswerOk;
}

std::optional<std::string> ScriptDesk::ShowInputBox(const InputBoxRequest& request) {
    boxes_.push_back({request.title, request.prompt, "input", request.defaultAnswer});
    const BoxAnswer answer = NextAnswer();
    if (!answer.ok) {
        return std::nullopt;
    }
    return answer.text.value_or(request.defaultAnswer);
}

int ScriptDesk::CurrentSecond() {
    return QTime::currentTime().second();
}

void ScriptDesk::EndProgram(int exitStatus) {
    ended_(exitStatus);
    std::abort();
}

void ScriptDesk::ShowAboutBox(QWidget& owner) {
    AboutBox about(&owner);
    about.show();
    about.cmdExit->click();
}

void ScriptDesk::ShowCustomerWindow(QWidget& owner, Module1& module) {
    frmCustInfo window(module, &owner);
    window.show();
    if (const auto lines = std::exchange(customerLines_, std::nullopt)) {
        window.txtCust1->setText(lines->value(0));
        window.txtCust2->setText(lines->value(1));
        window.txtTag->setText(lines->value(2));
    }
    (NextAnswer().ok ? window.cmdPrint : window.cmdCancel)->click();
}

void ScriptDesk::PrintPage(QWidget& /*owner*/, const ReportPage& page, const QImage& logo) {
    if (printerFile_.isEmpty()) {
        return;  // no printer, and the dialog that offers one is cancelled
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(printerFile_);
    if (PrintReportOn(printer, page, logo).status != PrintOutcome::Status::Failed) {
        pages_.push_back(page);
    }
}

}  // namespace tarvix
