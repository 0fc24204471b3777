// The arithmetic of the program's figures: whole numbers of 16 bits whose sums are worked out in more and brought back
// here, and the division that rounds both of its sides first.
#pragma once

#include <cstdint>

namespace core {

/// The number itself if 16 bits hold it, else the nearest that they hold.
std::int16_t Saturate16(long long value);

/// The nearest whole number; of two equally near ones the even one.
double RoundHalfEven(double value);

/// Rounds both sides to whole numbers and divides them, dropping the rest; 0 where the divisor is 0.
long long WholeDivide(double dividend, double divisor);

}  // namespace core
