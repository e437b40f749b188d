// The boxes beside the window, and what is printed.
#include "tests/random/invariants.h"

#include <QRegularExpression>

#include <algorithm>

namespace tarvix {

namespace {

QString KnownBoxes(const Step& step) {
    struct Known {
        const char* title;
        const char* style;
    };
    constexpr Known kKnown[] = {{"Beta Value", "exclamation"},
                                {"Pipe ID", "input"},
                                {"User Entered Pipe ID", "information"},
                                {"Program Termination", "critical"}};
    for (const ShownBox& box : step.now.boxes) {
        const bool known = std::ranges::any_of(kKnown, [&](const Known& expected) {
            return box.title == expected.title && box.style == expected.style;
        });
        if (!known) {
            return QString::fromStdString(box.title + " (" + box.style + "): " + box.text);
        }
    }
    return {};
}

qsizetype Count(const Step& step, const char* title) {
    return std::ranges::count(step.now.boxes, std::string(title), &ShownBox::title);
}

QString BetaBox(const Step& step) {
    for (const ShownBox& box : step.now.boxes) {
        if (box.title != "Beta Value") {
            continue;
        }
        const QString lineEnd = QStringLiteral("\n\r");
        const QStringList lines = QString::fromStdString(box.text).split(lineEnd);
        if (lines.size() != 9 || !lines.at(0).startsWith(QLatin1String("Orifice Diameter:\t")) ||
            !lines.at(1).startsWith(QLatin1String("Pipe Diameter:\t")) ||
            !lines.at(2).startsWith(QLatin1String("Beta Ratio:\t")) || !lines.at(3).isEmpty() ||
            lines.at(4) != QLatin1String("Beta is a dimensionless ratio of the") ||
            lines.at(5) != QLatin1String("Orifice Diameter divided by the Pipe Diameter.") ||
            !lines.at(6).isEmpty() ||
            lines.at(7) != QLatin1String("This ratio must be less than 0.95") ||
            !lines.at(8).isEmpty()) {
            return QString::fromStdString(box.text);
        }
        const QString beta = lines.at(2).section(QLatin1Char('\t'), 1);
        const auto value = step.world.numbers.ReadSingle(beta);
        if (!value || *value < 0.95F) {
            return QStringLiteral("the box refuses ") + Quoted(beta);
        }
    }
    return {};
}

QString BetaBoxWhenPasted(const Step& step) {
    if (!step.Is("paste", {"txtBeta"}) || step.before["txtBeta"].text == step.argument) {
        return {};
    }
    const auto value = step.world.numbers.ReadSingle(step.argument);
    const bool refused = value && *value >= 0.95F;
    if (Count(step, "Beta Value") != (refused ? 1 : 0)) {
        return QStringLiteral("%1 boxes").arg(Count(step, "Beta Value"));
    }
    return refused && (!step.now["txtBeta"].text.isEmpty() ||
                       !step.now["txtOriBoreDia"].text.isEmpty())
               ? QStringLiteral("the fields are not emptied")
               : QString();
}

QString PipeQuestion(const Step& step) {
    const auto asked = Count(step, "Pipe ID");
    const auto refused = Count(step, "User Entered Pipe ID");
    if (refused > asked) {
        return QStringLiteral("refused without a question");
    }
    if (step.Is("choose", {"cboPipeID"}) && asked != (step.is.userEnteredPipe ? 1 : 0)) {
        return QStringLiteral("asked %1 times").arg(asked);
    }
    if (!step.Is("choose", {"cboPipeID", "cboNomSize", "cboPipeIDUnit"}) && asked > 0 &&
        step.command != QLatin1String("keys")) {
        return QStringLiteral("asked out of place");
    }
    for (const ShownBox& box : step.now.boxes) {
        const QString prompt =
            QStringLiteral("Enter a Pipe ID in %1.").arg(step.now["cboPipeIDUnit"].text);
        if (box.title == "Pipe ID" && QString::fromStdString(box.text) != prompt &&
            step.command != QLatin1String("keys")) {
            return QString::fromStdString(box.text);
        }
        if (box.title == "User Entered Pipe ID" &&
            box.text != "The pipe ID must be greater than 0.") {
            return QString::fromStdString(box.text);
        }
    }
    return {};
}

QString RefusedPipeStays(const Step& step) {
    if (!step.Is("choose", {"cboPipeID"}) || Count(step, "User Entered Pipe ID") == 0) {
        return {};
    }
    return step.now["cboPipeID"].items == step.before["cboPipeID"].items
               ? QString()
               : QStringLiteral("the entry became ") + Quoted(step.now["cboPipeID"].items.last());
}

QString ExitQuestion(const Step& step) {
    const auto asked = Count(step, "Program Termination");
    if (step.Is("click", {"cmdExit", "mnuExit"})) {
        return asked == 1 && step.now.boxes.front().text == "Program Complete. EXIT PROGRAM"
                   ? QString()
                   : QStringLiteral("asked %1 times").arg(asked);
    }
    return asked == 0 || step.command == QLatin1String("keys")
               ? QString()
               : QStringLiteral("asked out of place");
}

QString PagesFromPrint(const Step& step) {
    const bool print =
        step.Is("click", {"cmdPrint", "mnuPrint"}) || step.command == QLatin1String("keys");
    return step.now.pages == 0 || (print && step.now.pages == 1)
               ? QString()
               : QStringLiteral("%1 pages").arg(step.now.pages);
}

}  // namespace

void AddBoxInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"known-boxes", "No box is shown but those that the program has; none is fatal.",
          KnownBoxes},
         {"beta-box", "The Beta Value box has its nine lines and refuses nothing below 0.95.",
          BetaBox},
         {"beta-box-when-pasted",
          "A beta of 0.95 or more shows one box and empties bore and beta; any other shows none.",
          BetaBoxWhenPasted},
         {"pipe-question",
          "The user's own pipe asks once for its diameter, in the pipe's unit; nothing else asks.",
          PipeQuestion},
         {"refused-pipe-stays", "A refused diameter leaves the entry as it was.", RefusedPipeStays},
         {"exit-question", "Exit asks once before it ends the program; nothing else asks that.",
          ExitQuestion},
         {"pages-from-print", "Only Print prints, one page at a time.", PagesFromPrint}});
}

}  // namespace tarvix
