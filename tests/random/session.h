// One run of the program: its window, what has been done on it, and whether all that must hold
// does.
#pragma once

#include "tests/random/invariants.h"
#include "tests/window_script/script_player.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace tarvix {

struct Failure {
    QString invariant;
    QString sentence;
    QString fault;
};

class Session {
  public:
    Session(const World& world, const std::vector<Invariant>& invariants, const QString& locale);

    enum class Outcome { GoesOn, Ended, Failed };

    // Plays one line of the player's language and checks what it did.
    Outcome Play(const QString& line);

    const std::optional<Failure>& failure() const { return failure_; }
    // The lines played so far, the locale first.
    const QStringList& script() const { return script_; }
    const WindowView& view() const { return view_; }
    bool lastWasRefused() const { return refused_; }

  private:
    void Check(const QString& line);
    void CheckEnd(const QString& line);
    void Fail(std::string_view invariant, std::string_view sentence, const QString& fault);

    const World& world_;
    const std::vector<Invariant>& invariants_;
    bool comma_;
    std::unique_ptr<ScriptPlayer> player_;
    WindowView view_;
    Reading reading_;
    bool refused_ = false;
    int exitStatus_ = 0;
    QStringList script_;
    std::optional<Failure> failure_;
};

}  // namespace tarvix
