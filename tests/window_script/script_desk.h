// The desk that a script plays on: answers the boxes from a queue and records them, prints into PDF
// files.
#pragma once

#include "app/shared/platform.h"
#include "ui/windows/window_host.h"

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvix {

struct ShownBox {
    std::string title;
    std::string text;
    std::string style;
    std::string defaultAnswer;
};

struct BoxAnswer {
    bool ok = true;
    std::optional<std::string> text;  // an input box's; nothing: its default
};

class ScriptDesk : public Platform, public WindowHost {
  public:
    // `ended` is told the exit status before the program ends; it does not return.
    explicit ScriptDesk(std::function<void(int exitStatus)> ended) : ended_(std::move(ended)) {}

    void QueueAnswer(const BoxAnswer& answer) { answers_.push_back(answer); }
    void TypeIntoCustomerWindow(const QStringList& lines) { customerLines_ = lines; }
    void SetPrinter(const QString& file) { printerFile_ = file; }

    // What has been shown and printed since the last call.
    std::vector<ShownBox> TakeBoxes();
    std::vector<ReportPage> TakePages();

    int ShowMessageBox(const MessageBoxRequest& request) override;
    std::optional<std::string> ShowInputBox(const InputBoxRequest& request) override;
    int CurrentSecond() override;
    void SleepUntilNextSecond() override {}
    [[noreturn]] void EndProgram(int exitStatus) override;

    void ShowAboutBox(QWidget& owner) override;
    void ShowCustomerWindow(QWidget& owner, Module1& module) override;
    void PrintPage(QWidget& owner, const ReportPage& page, const QImage& logo) override;

  private:
    BoxAnswer NextAnswer();

    std::function<void(int)> ended_;
    std::deque<BoxAnswer> answers_;
    std::vector<ShownBox> boxes_;
    std::optional<QStringList> customerLines_;
    QString printerFile_;
    std::vector<ReportPage> pages_;
};

}  // namespace tarvix
