// Plays a script of user actions on the real main window and writes what a user would see.
#pragma once

#include "app/window/frm_tarvix.h"
#include "tests/window_script/script_desk.h"

#include <QJsonObject>
#include <QString>

#include <functional>
#include <memory>

namespace tarvix {

class ScriptPlayer {
  public:
    // `write` takes each line of JSON; `end` ends the process, after a fatal error or an exit.
    ScriptPlayer(std::function<void(const QJsonObject&)> write, std::function<void()> end);

    // Plays one line. Returns an empty text, or why the line is no command.
    QString Play(const QString& line);

    // The window that is played on, loaded and shown at first use, and the desk that it stands on;
    // for tests that look at them directly.
    frmTarvix& Window();
    ScriptDesk& Desk() { return desk_; }

  private:
    // The commands, each with what stands behind it and a blank. They throw where a user could not
    // carry it out, and where nobody knows what is meant.
    void Click(const QString& rest);
    void Focus(const QString& rest);
    void Type(const QString& rest);
    void Paste(const QString& rest);
    void Choose(const QString& rest);
    void Keys(const QString& text);
    void Answer(const QString& answer);
    void Customer(const QString& lines);
    void Printer(const QString& file);
    void Picture(const QString& file);
    void State(const QString& rest);
    void SetLocale(const QString& rest);

    const NamedControl& Usable(const QString& name);
    NumericField& FocusedField(const QString& name);
    static void GiveFocus(QWidget& widget);
    static void CloseOpenList(const QString& command);
    void PressKey(int key, Qt::KeyboardModifiers modifiers, const QString& text);
    MainForm& Form() { return Window().form(); }

    std::function<void(const QJsonObject&)> write_;
    NumberLocale locale_;
    ScriptDesk desk_;
    std::unique_ptr<Module1> module_;
    std::unique_ptr<frmTarvix> window_;
    bool started_ = false;
    int reportedRuns_ = 0;
};

}  // namespace tarvix
