#include "arithmetic.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace core {

std::int16_t Saturate16(long long value) {
  using Limits = std::numeric_limits<std::int16_t>;
  return static_cast<std::int16_t>(std::clamp<long long>(value, Limits::min(), Limits::max()));
}

double RoundHalfEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest != 0.5) return rest < 0.5 ? below : below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

long long WholeDivide(double dividend, double divisor) {
  const auto divideBy = static_cast<long long>(RoundHalfEven(divisor));
  return divideBy == 0 ? 0 : static_cast<long long>(RoundHalfEven(dividend)) / divideBy;
}

}  // namespace core
