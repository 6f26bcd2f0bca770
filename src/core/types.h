// Basic types of the system and the checked arithmetic of the recalculation pipeline.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>

namespace vn {

using Integer = std::int16_t;  // 16-bit signed; 32767 overflows
using Boolean = std::int16_t;  // True = -1, False = 0
using Single = float;          // 32-bit
using Number = double;         // a field that may hold an integer or a Double

constexpr Boolean True = -1;
constexpr Boolean False = 0;

// pi as the program's single-precision constant, widened to double.
constexpr double PiSingle = 3.1415927410125732;

// A failed numeric step inside the recalculation: division by zero, overflow of a stored value,
// the square root of a negative number, a subscript out of range, a failed conversion.
// Thrown by the checked helpers below and caught by Recalculate, which then shows its one message.
struct CalcFault : std::runtime_error {
  explicit CalcFault(const char* what) : std::runtime_error(what) {}
};

[[noreturn]] inline void Fault(const char* what) { throw CalcFault(what); }

// Division that faults on a zero divisor, as the program's run-time does.
inline double Div(double a, double b) {
  if (b == 0.0) Fault("division by zero");
  double q = a / b;
  if (!std::isfinite(q)) Fault("overflow");
  return q;
}

inline double Sqrt(double a) {
  if (!(a >= 0.0)) Fault("invalid square root");
  return std::sqrt(a);
}

// a ^ b with the run-time's faults: 0 to a negative power, a negative base to a fractional power.
inline double Pow(double a, double b) {
  if (a == 0.0 && b < 0.0) Fault("division by zero");
  if (a < 0.0 && b != std::floor(b)) Fault("invalid power");
  double p = std::pow(a, b);
  if (!std::isfinite(p)) Fault("overflow");
  return p;
}

inline double Log(double a) {
  if (!(a > 0.0)) Fault("invalid logarithm");
  return std::log(a);
}

// Checks a value before it flows on: NaN or infinity is a fault.
inline double Finite(double a) {
  if (!std::isfinite(a)) Fault("overflow");
  return a;
}

// Store into a Single field: overflow beyond the float range faults.
inline Single ToSingle(double a) {
  if (std::isnan(a)) Fault("invalid value");
  if (std::isinf(a) || std::fabs(a) > static_cast<double>(std::numeric_limits<float>::max()))
    Fault("overflow");
  return static_cast<Single>(a);
}

// Round half to even, as the program's conversion to Integer does.
inline double RoundHalfEven(double a) { return std::nearbyint(a); }

// Store into an Integer field: rounds halves to even and faults outside -32768..32767.
inline Integer ToInteger(double a) {
  if (!std::isfinite(a)) Fault("overflow");
  double r = RoundHalfEven(a);
  if (r < -32768.0 || r > 32767.0) Fault("overflow");
  return static_cast<Integer>(r);
}

inline Boolean ToBoolean(bool b) { return b ? True : False; }

}  // namespace vn
