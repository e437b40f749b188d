#include "tests/docs/iapws_if97.h"

#include <cmath>
#include <span>

namespace tarvix::if97 {

namespace {

constexpr double kGasConstant = 0.461526;  // kJ/(kg K)
constexpr double kCriticalTemperature = 647.096;
constexpr double kCriticalDensity = 322;
constexpr double kHighestOfRegion2 = 623.15;

struct Term {
    int i;
    int j;
    double n;
};

// Table 11 of the release.
// clang-format off
constexpr Term kRegion2[] = {
    {1, 0, -0.17731742473213e-2}, {1, 1, -0.17834862292358e-1}, {1, 2, -0.45996013696365e-1},
    {1, 3, -0.57581259083432e-1}, {1, 6, -0.50325278727930e-1}, {2, 1, -0.33032641670203e-4},
    {2, 2, -0.18948987516315e-3}, {2, 4, -0.39392777243355e-2}, {2, 7, -0.43797295650573e-1},
    {2, 36, -0.26674547914087e-4}, {3, 0, 0.20481737692309e-7}, {3, 1, 0.43870667284435e-6},
    {3, 3, -0.32277677238570e-4}, {3, 6, -0.15033924542148e-2}, {3, 35, -0.40668253562649e-1},
    {4, 1, -0.78847309559367e-9}, {4, 2, 0.12790717852285e-7}, {4, 3, 0.48225372718507e-6},
    {5, 7, 0.22922076337661e-5}, {6, 3, -0.16714766451061e-10}, {6, 16, -0.21171472321355e-2},
    {6, 35, -0.23895741934104e2}, {7, 0, -0.59059564324270e-17}, {7, 11, -0.12621808899101e-5},
    {7, 25, -0.38946842435739e-1}, {8, 8, 0.11256211360459e-10}, {8, 36, -0.82311340897998e1},
    {9, 13, 0.19809712802088e-7}, {10, 4, 0.10406965210174e-18}, {10, 10, -0.10234747095929e-12},
    {10, 14, -0.10018179379511e-8}, {16, 29, -0.80882908646985e-10}, {16, 50, 0.10693031879409},
    {18, 57, -0.33662250574171}, {20, 20, 0.89185845355421e-24}, {20, 35, 0.30629316876232e-12},
    {20, 48, -0.42002467698208e-5}, {21, 21, -0.59056029685639e-25},
    {22, 53, 0.37826947613457e-5}, {23, 39, -0.12768608934681e-14},
    {24, 26, 0.73087610595061e-28}, {24, 40, 0.55414715350778e-16},
    {24, 58, -0.94369707241210e-6},
};

// Table 30, the terms after the first.
constexpr double kRegion3First = 1.0658070028513;
constexpr Term kRegion3[] = {
    {0, 0, -0.15732845290239e2}, {0, 1, 0.20944396974307e2}, {0, 2, -0.76867707878716e1},
    {0, 7, 0.26185947787954e1}, {0, 10, -0.28080781148620e1}, {0, 12, 0.12053369696517e1},
    {0, 23, -0.84566812812502e-2}, {1, 2, -0.12654315477714e1}, {1, 6, -0.11524407806681e1},
    {1, 15, 0.88521043984318}, {1, 17, -0.64207765181607}, {2, 0, 0.38493460186671},
    {2, 2, -0.85214708824206}, {2, 6, 0.48972281541877e1}, {2, 7, -0.30502617256965e1},
    {2, 22, 0.39420536879154e-1}, {2, 26, 0.12558408424308}, {3, 0, -0.27999329698710},
    {3, 2, 0.13899799569460e1}, {3, 4, -0.20189915023570e1}, {3, 16, -0.82147637173963e-2},
    {3, 26, -0.47596035734923}, {4, 0, 0.43984074473500e-1}, {4, 2, -0.44476435428739},
    {4, 4, 0.90572070719733}, {4, 26, 0.70522450087967}, {5, 1, 0.10770512626332},
    {5, 3, -0.32913623258954}, {5, 26, -0.50871062041158}, {6, 0, -0.22175400873096e-1},
    {6, 2, 0.94260751665092e-1}, {6, 26, 0.16436278447961}, {7, 2, -0.13503372241348e-1},
    {8, 26, -0.14834345352472e-1}, {9, 2, 0.57922953628084e-3}, {9, 26, 0.32308904703711e-2},
    {10, 0, 0.80964802996215e-4}, {10, 1, -0.16557679795037e-3}, {11, 26, -0.44923899061815e-4},
};

// Table 34, counted from 1 as in the release.
constexpr double kRegion4[] = {0,
    0.11670521452767e4, -0.72421316703206e6, -0.17073846940092e2, 0.12020824702470e5,
    -0.32325550322333e7, 0.14915108613530e2, -0.48232657361591e4, 0.40511340542057e6,
    -0.23855557567849, 0.65017534844798e3};
// clang-format on

// The derivative of the sum of n x^i y^j by x.
double SlopeOfSum(std::span<const Term> terms, double x, double y) {
    double sum = 0;
    for (const Term& term : terms) {
        sum += term.n * term.i * std::pow(x, term.i - 1) * std::pow(y, term.j);
    }
    return sum;
}

}  // namespace

double SaturationTemperature(double pressureMPa) {
    const auto& n = kRegion4;
    const double b = std::pow(pressureMPa, 0.25);
    const double e = b * b + n[3] * b + n[6];
    const double f = n[1] * b * b + n[4] * b + n[7];
    const double g = n[2] * b * b + n[5] * b + n[8];
    const double d = 2 * g / (-f - std::sqrt(f * f - 4 * e * g));
    const double sum = n[10] + d;
    return (sum - std::sqrt(sum * sum - 4 * (n[9] + n[10] * d))) / 2;
}

double SaturationPressure(double temperatureK) {
    const auto& n = kRegion4;
    const double t = temperatureK + n[9] / (temperatureK - n[10]);
    const double a = t * t + n[1] * t + n[2];
    const double b = n[3] * t * t + n[4] * t + n[5];
    const double c = n[6] * t * t + n[7] * t + n[8];
    return std::pow(2 * c / (-b + std::sqrt(b * b - 4 * a * c)), 4);
}

double VaporVolume(double pressureMPa, double temperatureK) {
    // v = R T / p (1 + pi gamma_pi), the ideal part being 1 / pi; pi = p / 1 MPa.
    const double tau = 540 / temperatureK;
    return kGasConstant * 1e-3 * temperatureK / pressureMPa *
           (1 + pressureMPa * SlopeOfSum(kRegion2, pressureMPa, tau - 0.5));
}

double PressureNearCritical(double density, double temperatureK) {
    const double delta = density / kCriticalDensity;
    const double tau = kCriticalTemperature / temperatureK;
    return density * kGasConstant * 1e-3 * temperatureK * delta *
           (kRegion3First / delta + SlopeOfSum(kRegion3, delta, tau));
}

double SaturatedVaporDensity(double pressureMPa) {
    const double temperature = SaturationTemperature(pressureMPa);
    if (temperature <= kHighestOfRegion2) {
        return 1 / VaporVolume(pressureMPa, temperature);
    }
    // Region 3: the branch of the vapour, along which the pressure rises with the density up to a
    // peak. From low densities on, the first density that reaches the pressure.
    double low = 50;
    double high = low;
    while (PressureNearCritical(high, temperature) < pressureMPa) {
        low = high;
        high += 0.5;
    }
    for (int i = 0; i < 60; ++i) {
        const double middle = (low + high) / 2;
        (PressureNearCritical(middle, temperature) < pressureMPa ? low : high) = middle;
    }
    return (low + high) / 2;
}

}  // namespace tarvix::if97
