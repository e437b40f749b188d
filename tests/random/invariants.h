// What must hold after every action, whatever the user does.
#pragma once

#include "tests/random/window_view.h"

#include <QString>

#include <string_view>
#include <vector>

namespace tarvix {

// One action and what it did.
struct Step {
    const World& world;
    QString action;  // the whole line; empty for the opening of the window
    QString command;
    QString target;    // the control's name, where the command has one
    QString argument;  // what follows it
    bool refused = false;
    const WindowView& before;
    const WindowView& now;
    const Reading& was;  // of `before`
    const Reading& is;   // of `now`

    int Calculations() const { return now.calculations - before.calculations; }
    bool Opening() const { return action.isEmpty(); }
    // True when the action is this command on one of these controls.
    bool Is(std::string_view commandName, std::initializer_list<std::string_view> targets) const;
};

struct Invariant {
    std::string_view name;
    std::string_view sentence;
    // What is wrong; empty when it holds.
    QString (*fault)(const Step& step);
};

std::vector<Invariant> AllInvariants();

// The groups of the list above.
void AddFormInvariants(std::vector<Invariant>& list);
void AddOptionInvariants(std::vector<Invariant>& list);
void AddListInvariants(std::vector<Invariant>& list);
void AddNumberInvariants(std::vector<Invariant>& list);
void AddResultInvariants(std::vector<Invariant>& list);
void AddMessageInvariants(std::vector<Invariant>& list);
void AddActionInvariants(std::vector<Invariant>& list);
void AddBoxInvariants(std::vector<Invariant>& list);

// For the texts of faults.
QString Quoted(const QString& text);
QString Named(std::string_view name);

}  // namespace tarvix
