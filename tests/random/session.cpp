#include "tests/random/session.h"

#include <QApplication>

namespace tarvix {

namespace {

// Thrown where the program would end, through the handler that ends it.
struct ProgramEnded {};

}  // namespace

Session::Session(const World& world, const std::vector<Invariant>& invariants,
                 const QString& locale)
    : world_(world),
      invariants_(invariants),
      comma_(world.numbers.decimalSeparator() == QLatin1Char(',')) {
    const auto write = [this](const QJsonObject& line) {
        if (line.contains(QStringLiteral("refused"))) {
            refused_ = true;
        } else {
            exitStatus_ =
                line.value(QStringLiteral("ended")).toString() == QLatin1String("exit") ? 0 : 1;
        }
    };
    player_ = std::make_unique<ScriptPlayer>(write, [] { throw ProgramEnded(); });
    const QString line = QStringLiteral("locale ") + locale;
    player_->Play(line);
    script_.append(line);
    view_ = WindowView(player_->Window(), player_->Desk());
    reading_ = Reading(view_, world_);
    Check({});
}

Session::Outcome Session::Play(const QString& line) {
    script_.append(line);
    refused_ = false;
    try {
        const QString error = player_->Play(line);
        if (!error.isEmpty()) {
            Fail("player", "The generator makes lines that the player knows.", error);
            return Outcome::Failed;
        }
        // A list that a key has opened is left without a pick.
        while (QWidget* popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    } catch (const ProgramEnded&) {
        CheckEnd(line);
        return failure_ ? Outcome::Failed : Outcome::Ended;
    }
    Check(line);
    return failure_ ? Outcome::Failed : Outcome::GoesOn;
}

void Session::Check(const QString& line) {
    WindowView before = std::move(view_);
    const Reading was = reading_;
    view_ = WindowView(player_->Window(), player_->Desk());
    if (line.isEmpty()) {
        before = view_;
    }
    reading_ = Reading(view_, world_);

    const QString command = line.section(QLatin1Char(' '), 0, 0);
    const QString rest = line.mid(command.size() + 1);
    const bool hasTarget = command != QLatin1String("keys") && command != QLatin1String("answer") &&
                           command != QLatin1String("customer") &&
                           command != QLatin1String("printer");
    const QString target = hasTarget ? rest.section(QLatin1Char(' '), 0, 0) : QString();
    const QString argument = hasTarget ? rest.mid(target.size() + 1) : rest;
    const Step step{world_,   line,   command, target, argument,
                    refused_, before, view_,   was,    reading_};
    for (const Invariant& invariant : invariants_) {
        const QString fault = invariant.fault(step);
        if (!fault.isEmpty()) {
            Fail(invariant.name, invariant.sentence, fault);
            return;
        }
    }
}

// A confirmed exit is the only way out, and the size with a fraction where the decimal is a comma.
void Session::CheckEnd(const QString& line) {
    const std::vector<ShownBox> boxes = player_->Desk().TakeBoxes();
    const std::string text = boxes.empty() ? std::string() : boxes.back().text;
    const bool keys = line.startsWith(QLatin1String("keys "));
    const bool exit =
        line == QLatin1String("click cmdExit") || line == QLatin1String("click mnuExit") || keys;
    const bool size = line.startsWith(QLatin1String("choose cboNomSize ")) || keys;
    const std::string fatal =
        "Fatal Error Encountered: \n\r\n\rNo pipe schedule data for nominal pipe size.\n\r\n\rThis "
        "Program will now terminate.";
    const bool good = exitStatus_ == 0 ? exit && text == "Program Complete. EXIT PROGRAM"
                                       : size && comma_ && text == fatal;
    if (!good) {
        Fail("ends-when-told",
             "The program ends by a confirmed exit, and fatally only for a nominal size with a "
             "fraction where the decimal separator is a comma.",
             QString::fromStdString(text));
    }
}

void Session::Fail(std::string_view invariant, std::string_view sentence, const QString& fault) {
    failure_ =
        Failure{Named(invariant),
                QString::fromUtf8(sentence.data(), static_cast<qsizetype>(sentence.size())), fault};
}

}  // namespace tarvix
