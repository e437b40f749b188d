// The message line.
#include "tests/random/expected_message.h"
#include "tests/random/invariants.h"

#include <algorithm>
#include <string>

namespace tarvix {

namespace {

const ControlView& Message(const Step& step) {
    return step.now["lblMsg"];
}

bool ResultStands(const Step& step) {
    return !step.now[ResultField(step.is.mode)].text.isEmpty();
}

QString GreyWhenEmpty(const Step& step) {
    const bool grey = Message(step).backColor == BackColor::PaleGrey;
    return grey == Message(step).caption.isEmpty() ? QString() : Quoted(Message(step).caption);
}

QString RedForCalculations(const Step& step) {
    const QString& text = Message(step).caption;
    if (text.isEmpty()) {
        return {};
    }
    const bool red = text.startsWith(QLatin1String("Unable to ")) ||
                     text.startsWith(QLatin1String("Flow rate is out of range ")) ||
                     text == QLatin1String("Beta Ratio must be less than 1.");
    return Message(step).backColor == (red ? BackColor::Red : BackColor::Yellow) ? QString()
                                                                                 : Quoted(text);
}

// The fields that may have been the one being edited when the last calculation ran.
std::vector<std::string> ActiveCandidates(const Step& step) {
    if (step.command == QLatin1String("type") || step.command == QLatin1String("paste")) {
        return {step.target.toStdString()};
    }
    if (step.command == QLatin1String("keys")) {
        // Keys may lead through any field.
        std::vector<std::string> all{""};
        all.insert(all.end(), std::begin(kNumericFields), std::end(kNumericFields));
        return all;
    }
    return {"", step.now.focus.toStdString()};
}

// True when the action looks a steam density up, as its last step.
bool LooksUpSteam(const Step& step) {
    const bool inPressure =
        step.target == QLatin1String("txtPf") ||
        (step.command == QLatin1String("keys") && step.before.focus == QLatin1String("txtPf"));
    return inPressure || step.Is("choose", {"cboPressUnit", "cboDensityUnit"}) ||
           step.Is("click", {"optPgauge", "optPabsolute", "optSteamTbl"}) ||
           step.command == QLatin1String("keys");
}

// The one message that the checks, the steam table, the range of beta or the calculation gives.
QString SaysWhatIsWrong(const Step& step) {
    const QString& text = Message(step).caption;
    const auto table = SteamTableMessage(step.now, step.is, step.world);
    if (step.Calculations() == 0 && !step.Opening()) {
        const bool stays = text == step.before["lblMsg"].caption;
        return stays || (LooksUpSteam(step) && table == text)
                   ? QString()
                   : QStringLiteral("changed without a calculation: ") + Quoted(text);
    }
    if (table && LooksUpSteam(step) && *table == text) {
        return {};
    }
    QStringList allowed;
    for (const std::string& active : ActiveCandidates(step)) {
        const QString check = CheckMessage(step.now, step.is, step.world, active);
        if (!check.isEmpty()) {
            allowed.append(check);
        } else if (IsBetaOutsideRange(step.is)) {
            allowed.append(QLatin1String(kBetaRangeText));
        } else {
            allowed.append(QString());
            if (!ResultStands(step)) {
                allowed.append(CalculationMessages(step.is));
            }
        }
    }
    return allowed.contains(text) ? QString()
                                  : Quoted(text) + QStringLiteral(" instead of one of ") +
                                        Quoted(allowed.join(QStringLiteral("\", \"")));
}

}  // namespace

void AddMessageInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"grey-when-empty", "lblMsg is light grey exactly when it is empty.", GreyWhenEmpty},
         {"red-for-calculations",
          "lblMsg is red for what a calculation says, yellow for every other message.",
          RedForCalculations},
         {"says-what-is-wrong",
          "lblMsg holds at most one message, the one that what is shown asks for: of the "
          "field being edited, else of all required and visible fields, else of the "
          "calculation or the range of beta.",
          SaysWhatIsWrong}});
}

}  // namespace tarvix
