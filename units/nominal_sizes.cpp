#include "units/nominal_sizes.h"

#include <algorithm>

namespace tarvix {

namespace {

// Inside diameters in inches, the common schedule of a size first.

constexpr PipeSchedule kSize0_5[] = {
    {"Sch 40, STD, Sch 40S", "0.622"},
    {"XS, Sch 80, Sch 80S", "0.546"},
    {"Sch 10, Sch 10S", "0.674"},
    {"Sch 5, Sch 5S", "0.710"},
    {"Sch 160", "0.464"},
    {"XXS", "0.252"},
};

constexpr PipeSchedule kSize0_75[] = {
    {"Sch 40, STD, Sch 40S", "0.824"},
    {"XS, Sch 80, Sch 80S", "0.742"},
    {"Sch 10, Sch 10S", "0.884"},
    {"Sch 5, Sch 5S", "0.920"},
    {"Sch 160", "0.612"},
    {"XXS", "0.434"},
};

constexpr PipeSchedule kSize1[] = {
    {"Sch 40, STD, Sch 40S", "1.049"},
    {"XS, Sch 80, Sch 80S", "0.957"},
    {"Sch 10, Sch 10S", "1.097"},
    {"Sch 5, Sch 5S", "1.185"},
    {"Sch 160", "0.815"},
    {"XXS", "0.599"},
};

constexpr PipeSchedule kSize1_5[] = {
    {"Sch 40, STD, Sch 40S", "1.610"},
    {"XS, Sch 80, Sch 80S", "1.500"},
    {"Sch 10, Sch 10S", "1.682"},
    {"Sch 5, Sch 5S", "1.770"},
    {"Sch 160", "1.338"},
    {"XXS", "1.100"},
};

constexpr PipeSchedule kSize2[] = {
    {"Sch 40, STD, Sch 40S", "2.067"},
    {"XS, Sch 80, Sch 80S", "1.939"},
    {"Sch 10, Sch 10S", "2.157"},
    {"Sch 5, Sch 5S", "2.245"},
    {"Sch 160", "1.687"},
    {"XXS", "1.503"},
};

constexpr PipeSchedule kSize2_5[] = {
    {"Sch 40, STD, Sch 40S", "2.469"},
    {"XS, Sch 80, Sch 80S", "2.323"},
    {"Sch 10, Sch 10S", "2.635"},
    {"Sch 5, Sch 5S", "2.709"},
    {"Sch 160", "2.125"},
    {"XXS", "1.771"},
};

constexpr PipeSchedule kSize3[] = {
    {"Sch 40, STD, Sch 40S", "3.068"},
    {"XS, Sch 80, Sch 80S", "2.900"},
    {"Sch 10, Sch 10S", "3.260"},
    {"Sch 5, Sch 5S", "3.334"},
    {"Sch 160", "2.624"},
    {"XXS", "2.300"},
};

constexpr PipeSchedule kSize4[] = {
    {"Sch 40, STD, Sch 40S", "4.026"},
    {"XS, Sch 80, Sch 80S", "3.826"},
    {"Sch 10, Sch 10S", "4.260"},
    {"Sch 5, Sch 5S", "4.334"},
    {"Sch 120", "3.624"},
    {"Sch 160", "3.438"},
    {"XXS", "3.152"},
};

constexpr PipeSchedule kSize5[] = {
    {"Sch 40, STD, Sch 40S", "5.047"},
    {"XS, Sch 80, Sch 80S", "4.813"},
    {"Sch 10, Sch 10S", "5.295"},
    {"Sch 5, Sch 5S", "5.345"},
    {"Sch 120", "4.563"},
    {"Sch 160", "4.313"},
    {"XXS", "4.063"},
};

constexpr PipeSchedule kSize6[] = {
    {"Sch 40, STD, Sch 40S", "6.065"},
    {"XS, Sch 80, Sch 80S", "5.761"},
    {"Sch 10, Sch 10S", "6.357"},
    {"Sch 5, Sch 5S", "6.407"},
    {"Sch 120", "5.501"},
    {"Sch 160 5.187", "5.189"},  // text and diameter differ; both kept
    {"XXS", "4.897"},
};

constexpr PipeSchedule kSize8[] = {
    {"Sch 40, STD, Sch 40S", "7.981"},
    {"XS, Sch 80, Sch 80S", "7.625"},
    {"Sch 10, Sch 10S", "8.329"},
    {"Sch 5, Sch 5S", "8.407"},
    {"Sch 20", "8.125"},
    {"Sch 30", "8.071"},
    {"Sch 60", "7.813"},
    {"Sch 100", "7.437"},
    {"Sch 120", "7.187"},
    {"Sch 140", "7.001"},
    {"Sch 160", "6.813"},
    {"XXS", "6.875"},
};

constexpr PipeSchedule kSize10[] = {
    {"Sch 40, STD, Sch 40S", "10.020"},
    {"Sch 80", "9.562"},
    {"XS, Sch 80S", "9.750"},
    {"Sch 10, Sch 10S", "10.420"},
    {"Sch 5, Sch 5S", "10.482"},
    {"Sch 20", "10.250"},
    {"Sch 30", "10.136"},
    {"Sch 60", "9.750"},
    {"Sch 100", "9.312"},
    {"Sch 120", "9.062"},
    {"Sch 140", "8.750"},
    {"Sch 160", "8.500"},
    {"XXS", "8.750"},
};

constexpr PipeSchedule kSize12[] = {
    {"Sch 40", "11.938"},          {"STD, Sch 40S", "12.000"},
    {"Sch 80", "11.374"},          {"XS, Sch 80S", "11.750"},
    {"Sch 10, Sch 10S", "12.390"}, {"Sch 5, Sch 5S", "12.438"},
    {"Sch 20", "12.250"},          {"Sch 30", "12.090"},
    {"Sch 60", "11.626"},          {"Sch 100", "11.062"},
    {"Sch 120", "10.750"},         {"Sch 140", "10.500"},
    {"Sch 160", "10.126"},         {"XXS", "10.750"},
};

constexpr PipeSchedule kSize14[] = {
    {"Sch 40", "13.124"},  {"STD", "13.250"},     {"Sch 80", "12.500"},  {"XS", "13.000"},
    {"Sch 10", "13.500"},  {"Sch 10S", "13.624"}, {"Sch 5S", "13.688"},  {"Sch 20", "13.376"},
    {"Sch 30", "13.250"},  {"Sch 60", "12.812"},  {"Sch 100", "12.124"}, {"Sch 120", "11.814"},
    {"Sch 140", "11.500"}, {"Sch 160", "11.188"},
};

constexpr PipeSchedule kSize16[] = {
    {"Sch 40", "15.000"},  {"STD", "15.250"},     {"Sch 80", "14.312"},  {"XS", "15.000"},
    {"Sch 10", "15.500"},  {"Sch 10S", "15.624"}, {"Sch 5S", "15.670"},  {"Sch 20", "15.376"},
    {"Sch 30", "15.250"},  {"Sch 60", "14.688"},  {"Sch 100", "13.938"}, {"Sch 120", "13.564"},
    {"Sch 140", "13.124"}, {"Sch 160", "12.812"},
};

constexpr PipeSchedule kSize18[] = {
    {"Sch 40", "16.876"},  {"STD", "17.250"},     {"Sch 80", "16.124"},  {"XS", "17.000"},
    {"Sch 10", "17.500"},  {"Sch 10S", "17.624"}, {"Sch 5S", "17.670"},  {"Sch 20", "17.376"},
    {"Sch 30", "17.124"},  {"Sch 60", "16.500"},  {"Sch 100", "15.688"}, {"Sch 120", "15.250"},
    {"Sch 140", "14.876"}, {"Sch 160", "14.438"},
};

constexpr PipeSchedule kSize20[] = {
    {"Sch 40", "18.812"},  {"STD", "19.250"},     {"Sch 80", "17.938"},  {"XS", "19.000"},
    {"Sch 10", "19.500"},  {"Sch 10S", "19.564"}, {"Sch 5S", "19.624"},  {"Sch 20", "19.250"},
    {"Sch 30", "19.000"},  {"Sch 60", "18.376"},  {"Sch 100", "17.438"}, {"Sch 120", "17.000"},
    {"Sch 140", "16.500"}, {"Sch 160", "16.062"},
};

constexpr PipeSchedule kSize22[] = {
    {"STD, Sch 20", "21.250"}, {"Sch 80", "19.750"},  {"XS, Sch 30", "21.000"},
    {"Sch 10", "21.500"},      {"Sch 60", "20.250"},  {"Sch 100", "19.250"},
    {"Sch 120", "18.750"},     {"Sch 140", "18.250"}, {"Sch 160", "17.750"},
};

constexpr PipeSchedule kSize24[] = {
    {"Sch 40", "22.624"},          {"STD", "23.250"},
    {"Sch 80", "21.562"},          {"XS", "23.000"},
    {"Sch 10, Sch 10S", "23.500"}, {"Sch 5S", "23.564"},
    {"Sch 20", "23.250"},          {"Sch 30", "22.876"},
    {"Sch 60", "22.062"},          {"Sch 100", "20.938"},
    {"Sch 120", "20.376"},         {"Sch 140", "19.876"},
    {"Sch 160", "19.312"},
};

constexpr PipeSchedule kSize26[] = {
    {"XS, Sch 20", "25.000"},
    {"STD", "25.250"},
    {"Sch 10", "25.376"},
};

constexpr PipeSchedule kSize28[] = {
    {"XS, Sch 20", "27.000"},
    {"STD", "27.250"},
    {"Sch 10", "27.376"},
    {"Sch 30", "26.750"},
};

constexpr PipeSchedule kSize30[] = {
    {"XS, Sch 20", "29.000"},
    {"STD", "29.250"},
    {"Sch 10", "29.376"},
    {"Sch 30", "28.750"},
};

constexpr PipeSchedule kSize34[] = {
    {"XS, Sch 20", "33.000"},
    {"STD", "33.250"},
    {"Sch 10", "33.376"},
    {"Sch 30", "32.750"},
};

constexpr PipeSchedule kSize36[] = {
    {"XS, Sch 20", "35.000"}, {"STD", "35.250"},    {"Sch 10", "35.376"},
    {"Sch 30", "34.750"},     {"Sch 40", "34.500"},
};

constexpr PipeSchedule kSize42[] = {
    {"XS", "41.000"},
    {"STD", "41.250"},
};

struct SizeRow {
    std::string_view value;
    std::span<const PipeSchedule> schedules;
};

// The nominal size list does not offer 28.
constexpr SizeRow kScheduleTable[] = {
    {"0.5", kSize0_5}, {"0.75", kSize0_75}, {"1", kSize1},   {"1.5", kSize1_5}, {"2", kSize2},
    {"2.5", kSize2_5}, {"3", kSize3},       {"4", kSize4},   {"5", kSize5},     {"6", kSize6},
    {"8", kSize8},     {"10", kSize10},     {"12", kSize12}, {"14", kSize14},   {"16", kSize16},
    {"18", kSize18},   {"20", kSize20},     {"22", kSize22}, {"24", kSize24},   {"26", kSize26},
    {"28", kSize28},   {"30", kSize30},     {"34", kSize34}, {"36", kSize36},   {"42", kSize42},
};

}  // namespace

std::span<const PipeSchedule> SchedulesOf(std::string_view sizeValue) {
    const auto* const row =
        std::ranges::find(kScheduleTable, sizeValue, [](const SizeRow& r) { return r.value; });
    return row == std::end(kScheduleTable) ? std::span<const PipeSchedule>{} : row->schedules;
}

}  // namespace tarvix
