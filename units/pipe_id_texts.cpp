#include "units/pipe_id_texts.h"

#include "units/nominal_sizes.h"

#include <utility>

namespace tarvix {

namespace {

constexpr int kInchDecimals = 3;
constexpr int kMetricDecimals = 2;
constexpr int kNominalDecimals = 1;

// " mm" or " cm": what follows a metric diameter in the list. Nothing for any other unit.
std::optional<std::string_view> MetricMark(std::string_view unitName) {
    if (unitName == kMillimeters) {
        return " mm";
    }
    if (unitName == kCentimeters) {
        return " cm";
    }
    return std::nullopt;
}

// 2.067"  (52.50 mm)<two blanks>
std::string MetricText(std::string_view diameterText, std::string_view metric,
                       std::string_view mark) {
    std::string text(diameterText);
    text += "\"  (";
    text += metric;
    text += mark;
    text += ")  ";
    return text;
}

void KeepLonger(std::string& longest, std::string text) {
    if (text.size() > longest.size()) {
        longest = std::move(text);
    }
}

}  // namespace

std::string NominalSizeText(std::string_view sizeText, float sizeIn, const Unit& unit,
                            const NumberLocale& locale) {
    if (unit.factor == 1.0F) {
        return std::string(sizeText);
    }
    return FormatNumber(sizeIn / unit.factor, kNominalDecimals, locale, Grouping::Off);
}

std::optional<std::string> ScheduleText(std::string_view diameterText, std::string_view schedule,
                                        const Unit& unit, const NumberLocale& locale) {
    if (unit.text == kInches) {
        return std::string(diameterText) + "\"  " + std::string(schedule);
    }
    const auto mark = MetricMark(unit.text);
    if (!mark) {
        return std::nullopt;
    }
    const float diameterIn = TextToSingle(diameterText, locale).value_or(0.0F);
    const std::string metric =
        FormatNumber(diameterIn / unit.factor, kMetricDecimals, locale, Grouping::Off);
    return MetricText(diameterText, metric, *mark) + std::string(schedule);
}

std::string LongestNominalSizeText() {
    const NumberLocale point;
    std::string longest;
    for (const NominalSize& size : kNominalSizes) {
        const float sizeIn = TextToSingle(size.value, point).value_or(0.0F);
        for (const Unit& unit : kLengthUnits) {
            KeepLonger(longest, NominalSizeText(size.text, sizeIn, unit, point));
        }
    }
    return longest;
}

std::string LongestScheduleText() {
    const NumberLocale point;
    std::string longest;
    for (const NominalSize& size : kNominalSizes) {
        for (const PipeSchedule& schedule : SchedulesOf(size.value)) {
            for (const Unit& unit : kLengthUnits) {
                KeepLonger(
                    longest,
                    ScheduleText(schedule.insideDiameter, schedule.text, unit, point).value_or(""));
            }
        }
    }
    return longest;
}

std::optional<UserEnteredPipe> UserEnteredPipeOf(double answer, const Unit& unit,
                                                 const NumberLocale& locale) {
    if (unit.text == kInches) {
        UserEnteredPipe pipe;
        pipe.diameterText = FormatNumber(answer, kInchDecimals, locale, Grouping::Off);
        pipe.shownText = pipe.diameterText + "\" " + std::string(kUserEntered);
        return pipe;
    }
    const auto mark = MetricMark(unit.text);
    if (!mark) {
        return std::nullopt;
    }
    UserEnteredPipe pipe;
    const std::string metric = FormatNumber(answer, kMetricDecimals, locale, Grouping::Off);
    const float diameterIn = TextToSingle(metric, locale).value_or(0.0F) * unit.factor;
    pipe.diameterText = FormatNumber(diameterIn, kInchDecimals, locale, Grouping::Off);
    pipe.shownText = MetricText(pipe.diameterText, metric, *mark) + " " + std::string(kUserEntered);
    return pipe;
}

std::optional<std::string> PipeDiameterInUnit(std::string_view unitName,
                                              std::string_view diameterText,
                                              std::string_view pipeIdText) {
    if (unitName == kInches) {
        return std::string(diameterText);
    }
    const auto mark = MetricMark(unitName);
    if (!mark) {
        return std::nullopt;
    }
    const auto open = pipeIdText.find('(');
    const auto end = pipeIdText.find(*mark);
    if (open == std::string_view::npos || end == std::string_view::npos || end <= open) {
        return std::string();
    }
    return std::string(pipeIdText.substr(open + 1, end - open - 1));
}

int PipeDiameterDecimals(std::string_view unitName) {
    return unitName == kInches ? kInchDecimals : kMetricDecimals;
}

}  // namespace tarvix
