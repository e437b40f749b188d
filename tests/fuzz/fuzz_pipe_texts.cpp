// The texts of the pipe lists: any answer to the question for a diameter, any list text read back.
#include "tests/fuzz/fuzz_support.h"
#include "units/nominal_sizes.h"
#include "units/pipe_id_texts.h"

#include <cmath>

using tarvix::fuzz::Require;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    const tarvix::NumberLocale locale = tarvix::fuzz::PickLocale(data);
    const tarvix::Unit unit = tarvix::kLengthUnits[data.ConsumeIntegralInRange<std::size_t>(0, 2)];
    const std::string answer = tarvix::fuzz::AnyText(data, locale);
    const std::string anything = data.ConsumeRandomLengthString(60);
    const std::string other = data.ConsumeRemainingBytesAsString();

    const auto value = tarvix::TextToDouble(answer, locale);
    if (value && *value > 0) {
        const auto pipe = tarvix::UserEnteredPipeOf(*value, unit, locale);
        Require(pipe.has_value(), "every unit of length gives a pipe");
        const auto inches = tarvix::TextToDouble(pipe->diameterText, locale);
        Require(inches && *inches >= 0, "a pipe has a diameter");
        const double expected = *value * static_cast<double>(unit.factor);
        // The answer keeps 2 decimals in a metric unit, the diameter 3.
        const double slack = 0.51e-3 + 0.51e-2 * static_cast<double>(unit.factor);
        Require(std::fabs(*inches - expected) <= slack + 1e-6 * expected,
                "the diameter is the answer in inches");
        Require(pipe->shownText.starts_with(pipe->diameterText + "\"") &&
                    pipe->shownText.ends_with(" (User Entered)"),
                "the entry shows the diameter");
        const auto shown =
            tarvix::PipeDiameterInUnit(unit.text, pipe->diameterText, pipe->shownText);
        Require(shown && tarvix::TextToDouble(*shown, locale).has_value(),
                "the diameter is found in the entry");
    }
    // Any texts are taken apart without harm.
    (void)tarvix::PipeDiameterInUnit(unit.text, anything, other);
    (void)tarvix::PipeDiameterInUnit(anything, answer, other);
    (void)tarvix::ScheduleText(anything, other, unit, locale);
    Require(tarvix::SchedulesOf(anything).empty() || anything.size() <= 4,
            "only the sizes of the table have schedules");
    return 0;
}
