// What the calculator asks of the system it runs on. The program answers with real windows and the
// real clock; tests answer from a prepared list and record what was asked.
#pragma once

#include <optional>
#include <string>

namespace tarvix {

enum class BoxStyle { Critical, Exclamation, Information };

// The buttons of a message box and the answers that it can give.
enum class BoxButtons { Ok, OkCancel };
inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerCancel = 2;

struct MessageBoxRequest {
    std::string text;  // UTF-8; line breaks are line feed, or line feed and carriage return
    std::string title;
    BoxStyle style = BoxStyle::Information;
    BoxButtons buttons = BoxButtons::Ok;
};

struct InputBoxRequest {
    std::string prompt;
    std::string title;
    std::string defaultAnswer;
};

class Platform {
  public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    // Shows a modal message box and waits. Returns kAnswerOk or kAnswerCancel; a box closed without
    // a button gives kAnswerCancel where there is a Cancel button, else kAnswerOk.
    virtual int ShowMessageBox(const MessageBoxRequest& request) = 0;

    // Shows a modal box with one line to type into and waits. Returns the text confirmed with OK,
    // or nothing when the box was cancelled.
    virtual std::optional<std::string> ShowInputBox(const InputBoxRequest& request) = 0;

    // The seconds field, 0 to 59, of the current local time.
    virtual int CurrentSecond() = 0;

    // Sleeps until the clock goes on to its next full second, as near as the system can; handles no
    // events.
    virtual void SleepUntilNextSecond() = 0;

    // Ends the program at once with this exit status; no window is left, no handler runs on.
    [[noreturn]] virtual void EndProgram(int exitStatus) = 0;
};

}  // namespace tarvix
