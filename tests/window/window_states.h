// Every state that the main window's layout knows, as scripts of user actions.
#pragma once

#include "tests/window_script/script_player.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tarvix::testing {

// The actions of a state set everything that it depends on, so the states can be played in any
// order on the same window.
struct WindowState {
    QString name;
    QStringList actions;
};

// Each fluid with each of its property options, in each mode, with pipes of every kind and both
// warnings.
std::vector<WindowState> OptionStates();

// All of these, and one state for each kind of text in the message line, the longest among them.
std::vector<WindowState> AllWindowStates();

// A window that states are played on.
class StatePlayer {
  public:
    StatePlayer();

    // Returns the first action that the window refuses, or an empty text.
    QString Play(const WindowState& state);

    // Makes the window as large as the form, however small the screen.
    void ShowWhole();

    frmTarvix& window() { return player_.Window(); }
    MainForm& form() { return player_.Window().form(); }
    ScriptDesk& desk() { return player_.Desk(); }

    // One action; returns why it could not be played, or an empty text.
    QString Act(const QString& action);

  private:
    QString refusal_;
    ScriptPlayer player_;
};

}  // namespace tarvix::testing
