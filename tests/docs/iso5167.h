// The full orifice plate calculation of ISO 5167-2:2003, in SI units and double precision. The
// yardstick that the estimate's accuracy is measured with; no part of the program.
#pragma once

namespace tarvix::iso5167 {

// The distances of the pressure taps from the faces of the plate, in pipe diameters: L1 upstream
// of the upstream face, L'2 downstream of the downstream face.
struct TapSpacing {
    double upstream = 0;
    double downstream = 0;
};

inline constexpr TapSpacing kCornerTaps{0, 0};
inline constexpr TapSpacing kDAndHalfDTaps{1, 0.47};

// Flange taps stand 25.4 mm from the plate.
TapSpacing FlangeTaps(double diameterMm);

// The discharge coefficient C of Reader-Harris and Gallagher (1998), equation 4 of the standard,
// with its term for pipes below 71.12 mm (2.8 inches). `reynolds` is the pipe Reynolds number.
double DischargeCoefficient(double beta, double diameterMm, double reynolds, TapSpacing taps);

// The limits of use of the standard for flange taps: bore at least 12.5 mm, pipe 50 mm to 1000 mm,
// beta 0.1 to 0.75, Reynolds number at least 5000 and at least 170 beta^2 D (D in mm).
bool IsWithinFlangeTapLimits(double beta, double diameterMm, double reynolds);

// The expansibility factor of the standard, equation 5, for the downstream pressure divided by
// the upstream pressure (0.75 to 1) and the isentropic exponent.
double Expansibility(double beta, double pressureRatio, double isentropicExponent);

struct MeteringConditions {
    double diameterM = 0;
    double beta = 0;
    double diffPressurePa = 0;
    double upstreamDensity = 0;       // kg per cubic meter
    double dischargeCoefficient = 0;  // C
    double expansibility = 1;         // 1 for a liquid
};

// The mass flow in kg/s, equation 1 of the standard.
double MassFlow(const MeteringConditions& conditions);

// The pipe Reynolds number of a mass flow; viscosity in Pa s.
double Reynolds(double massFlow, const MeteringConditions& conditions, double viscosity);

// The mass flow of a fluid of this viscosity, with the discharge coefficient of the Reynolds number
// that it has itself.
double MassFlow(MeteringConditions conditions, TapSpacing taps, double viscosity);

}  // namespace tarvix::iso5167
