// The metering equations once more, apart from the program: double precision throughout, one form
// for all fluids, and roots by bisection. What the program's single precision and its iterations
// give is judged by it.
#pragma once

namespace tarvix::testing {

// flow = constant * 0.6 / sqrt(1 - beta^4) * Y(beta, h) * beta^2 * D^2 * sqrt(h) * root
class ReferenceMeter {
  public:
    // `root` is the square root of what stands beside h under the root: a density, a gravity, or
    // P / (Tf G Zf). A pressure of 0 means no expansion factor.
    ReferenceMeter(double constant, double root, double pressurePsia, double diameterIn);

    double Flow(double beta, double h) const;

    // The differential pressure below the peak of the flow curve; 0 when the flow lies above it.
    double DiffPressure(double flow, double beta) const;
    // The beta below 1; 0 when there is none.
    double Beta(double flow, double h) const;

    // 1 - Y: the share by which the expansion factor reduces the flow. At a third the flow curve
    // over h has its peak, at 1 the flow is zero.
    double Expansion(double beta, double h) const;

    // By what the error of ln h and ln beta is multiplied at each step of the damped iteration near
    // its root. It settles where the size is below 1, within 100 steps where it is well below 1.
    double DiffPressureContraction(double beta, double h) const;
    double BetaContraction(double beta, double h) const;

  private:
    double constant_;
    double root_;
    double pressurePsia_;
    double diameterIn_;
};

}  // namespace tarvix::testing
