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
    struct Words {
        QString command;
        QString rest;  // after the single blank that follows the command
    };

    // Each returns why a user could not carry the command out; empty when it is done.
    QString Click(const QString& name);
    QString Focus(const QString& name);
    QString Type(const QString& name, const QString& text);
    QString Paste(const QString& name, const QString& text);
    QString Choose(const QString& name, const QString& entry);

    // Returns false for an answer that there is none of.
    bool Answer(const QString& answer);
    void Keys(const QString& text);
    void State();
    bool SetLocale(const QString& name);

    static Words Split(const QString& line);
    QString Unusable(const NamedControl* control) const;
    NumericField* EditableField(const QString& name, QString& why);
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
