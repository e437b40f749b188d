// The result: when it stands, how it is written, that it solves the equation.
#include "tests/random/expected_flow.h"
#include "tests/random/expected_message.h"
#include "tests/random/invariants.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tarvix {

namespace {

const ControlView& Result(const Step& step) {
    return step.now[ResultField(step.is.mode)];
}

QString PrintTogether(const Step& step) {
    return step.now["cmdPrint"].enabled == step.now["mnuPrint"].enabled
               ? QString()
               : QStringLiteral("one is enabled, the other is not");
}

QString PrintFollowsResult(const Step& step) {
    const bool stands = !Result(step).text.isEmpty();
    if (step.now["cmdPrint"].enabled != stands) {
        return stands ? QStringLiteral("a result that can't be printed: ") + Result(step).text
                      : QStringLiteral("printing without a result");
    }
    return {};
}

// No result while the checks object to what the window shows, whichever field is being edited.
QString ResultNeedsGoodData(const Step& step) {
    if (Result(step).text.isEmpty()) {
        return {};
    }
    const QString message = CheckMessage(step.now, step.is, step.world, "");
    return message.isEmpty() ? QString() : QStringLiteral("in spite of: ") + message;
}

// As many decimals as the size asks for; a value that was rounded up to the next power of ten keeps
// those of its size before.
QString ResultFormat(const Step& step) {
    const QString& text = Result(step).text;
    const auto value = step.world.numbers.ReadSingle(text);
    if (text.isEmpty()) {
        return {};
    }
    if (!value) {
        return Quoted(text) + QStringLiteral(" is no number");
    }
    const Numbers& numbers = step.world.numbers;
    if (step.is.mode == SolveFor::Beta) {
        return text == numbers.Fixed(*value, 5, true) && *value > 0 ? QString() : Quoted(text);
    }
    const float below = std::nextafterf(*value, 0.0F);
    const auto point = numbers.Result(below).lastIndexOf(numbers.decimalSeparator());
    const auto decimals = point < 0 ? 0 : numbers.Result(below).size() - point - 1;
    const bool good =
        text == numbers.Result(*value) ||
        text == numbers.Fixed(*value, *value == 0 ? 6 : static_cast<int>(decimals), true);
    return good && !(*value < 0) ? QString() : Quoted(text);
}

// Half a unit of the last digit that the text shows.
double HalfDigit(const QString& text, QChar separator) {
    const auto point = text.indexOf(separator);
    return 0.5 * std::pow(10.0, point < 0 ? 0 : -static_cast<double>(text.size() - point - 1));
}

// The shown result, put back into the equation, gives the flow again: to the digits shown, the band
// in which an iteration ends, and the last digit of the singles.
QString ResultSolvesEquation(const Step& step) {
    const ControlView& result = Result(step);
    const ShownRun run(step.is);
    if (result.text.isEmpty() || !run.IsTame()) {
        return {};
    }
    const double half = HalfDigit(result.text, step.world.numbers.decimalSeparator());
    double flow = run.flow * run.flowFactor;
    const double h = run.diffPress * run.diffPressFactor;
    double slackFlow = 0;
    double slackH = 0;
    double slackBeta = 0;
    switch (step.is.mode) {
        case SolveFor::FlowRate:
            slackFlow = half * run.flowFactor;
            break;
        case SolveFor::DiffPressure:
            slackH = half * run.diffPressFactor;
            break;
        case SolveFor::Beta:
            slackBeta = half;
            break;
    }
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -std::numeric_limits<double>::infinity();
    for (const double side : {-1.0, 0.0, 1.0}) {
        const double carried =
            run.Flow(std::max(run.beta + side * slackBeta, 0.0), std::max(h + side * slackH, 0.0));
        lowest = std::min(lowest, carried);
        highest = std::max(highest, carried);
    }
    if (!std::isfinite(lowest) || !std::isfinite(highest)) {
        return QStringLiteral("the equation has no flow for this result");
    }
    // Where the expansion factor nears 0, what single precision leaves of it counts.
    const double digits = 8e-6 + 4e-7 / std::fabs(run.Expansion(run.beta, h));
    const double slack = slackFlow + digits * std::max(std::fabs(highest), flow);
    return flow >= lowest - slack && flow <= highest + slack
               ? QString()
               : QStringLiteral("flow %1, the equation carries %2 to %3 (slack %4)")
                     .arg(flow)
                     .arg(lowest)
                     .arg(highest)
                     .arg(slack);
}

// A flow or a liquid's differential pressure is written whenever the data are good and it lies
// within its limits.
QString GoodDataGiveResult(const Step& step) {
    const Reading& is = step.is;
    const ShownRun run(is);
    if (!Result(step).text.isEmpty() || is.pipeDiameterIn == 0 || !run.IsTame() ||
        !CheckMessage(step.now, is, step.world, "").isEmpty() ||
        (is.fluid == 'L' && is.sgCalculated && !is.sgf)) {
        return {};
    }
    const double h = run.diffPress * run.diffPressFactor;
    if (is.mode == SolveFor::FlowRate) {
        const double flow = run.Flow(run.beta, h);
        const double y = run.Expansion(run.beta, h);
        return flow > 0.0000101 && flow < 999999000.0 && y > 1e-5 && flow / run.flowFactor < 1e38
                   ? QStringLiteral("no flow although it is %1").arg(flow)
                   : QString();
    }
    if (is.mode == SolveFor::DiffPressure && is.fluid == 'L') {
        const double ofOneInch = run.Flow(run.beta, 1);
        const double inches = std::pow(run.flow * run.flowFactor / ofOneInch, 2);
        return inches < 999990.0 && inches > 1e-30
                   ? QStringLiteral("no differential pressure although it is %1").arg(inches)
                   : QString();
    }
    return {};
}

// Of a beta mode without a message or a result only the silent cases of the text remain: steam that
// leaves its range, a gravity or a pipe that is not there, a number at the edge of single
// precision.
QString BetaModeSpeaks(const Step& step) {
    const Reading& is = step.is;
    const ShownRun run(is);
    if (is.mode != SolveFor::Beta || is.fluid == 'S' || !Result(step).text.isEmpty() ||
        !step.now["lblMsg"].caption.isEmpty() || is.pipeDiameterIn == 0 || !run.IsTame() ||
        (is.fluid == 'L' && is.sgCalculated && !is.sgf)) {
        return {};
    }
    // A solved beta of exactly 0.95 is refused by its own field, in a box.
    const double flow = run.flow * run.flowFactor;
    const double h = run.diffPress * run.diffPressFactor;
    const bool atLimit =
        flow > 0.9999 * run.Flow(0.94999, h) && flow < 1.0001 * run.Flow(0.95001, h);
    return atLimit ? QString() : QStringLiteral("no beta and no message");
}

}  // namespace

void AddResultInvariants(std::vector<Invariant>& list) {
    list.insert(
        list.end(),
        {{"print-together", "The Print button and the Print menu item go together.", PrintTogether},
         {"print-follows-result",
          "Print is enabled exactly while the field of the mode holds a result.",
          PrintFollowsResult},
         {"result-needs-good-data",
          "No result stands while the visible inputs are incomplete, no numbers or too small; so "
          "none is stale.",
          ResultNeedsGoodData},
         {"result-format",
          "A result is a number with the decimals of its size and grouped, beta with 5 decimals "
          "and above 0.",
          ResultFormat},
         {"result-solves-equation",
          "Solving back: the result put into the equation gives the other quantity, to the digits "
          "shown.",
          ResultSolvesEquation},
         {"good-data-give-result",
          "Hidden fields and texts never block: good data give a flow, and a liquid's differential "
          "pressure, whenever it is within its limits.",
          GoodDataGiveResult},
         {"beta-mode-speaks",
          "For a liquid or gas, good data in the beta mode end in a beta or in a message.",
          BetaModeSpeaks}});
}

}  // namespace tarvix
