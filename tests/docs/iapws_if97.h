// Density of water vapour after the industrial formulation IAPWS-IF97 (release R7-97(2012)): region
// 2 up to 623.15 K, region 3 above, and the saturation line, region 4. The yardstick for the steam
// table; no part of the program. Pressures in MPa, temperatures in K, densities in kg/m3.
#pragma once

namespace tarvix::if97 {

// Region 4, equation 31 and 30 of the release: from 0.000611213 MPa and 273.15 K to the critical
// point, 22.064 MPa and 647.096 K.
double SaturationTemperature(double pressureMPa);
double SaturationPressure(double temperatureK);

// Region 2, equation 15: specific volume, m3/kg.
double VaporVolume(double pressureMPa, double temperatureK);

// Region 3, equation 28: pressure from density and temperature.
double PressureNearCritical(double density, double temperatureK);

// Dry saturated steam at this pressure, below 22 MPa.
double SaturatedVaporDensity(double pressureMPa);

}  // namespace tarvix::if97
