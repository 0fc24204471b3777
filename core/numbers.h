// Whole numbers of 16 bits, whose sums are worked out in more and brought back here, and numbers as text: as the
// program writes them into drawings and captions, and as it reads them from typed text and files.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace core {

/// The number itself if 16 bits hold it, else the nearest that they hold.
std::int16_t Saturate16(long long value);

/// The nearest whole number; of two equally near ones the even one.
double RoundHalfEven(double value);

/// Rounds both sides to whole numbers and divides them, dropping the rest; 0 where the divisor is 0.
long long WholeDivide(double dividend, double divisor);

/// A percentage with exactly one decimal, a tie rounded away from zero, with the system's decimal separator: "16,7".
std::string WithOneDecimal(float value, const std::string& decimalSeparator);

/// A measured share for chart and report: "0%", else with exactly one decimal.
std::string PercentText(float percent, const std::string& decimalSeparator);

/// The shortest text that names the number, with the system's decimal separator: "2,8", "3".
std::string PlainText(float value, const std::string& decimalSeparator);

/// A number as a drawing surface prints it: with a blank for the sign in front and one behind.
std::string PrintedNumber(int value);

/// The text without the blanks at both of its ends.
std::string_view WithoutBlanks(std::string_view text);

/// The number that a typed text holds: blanks around it, a sign, digits and a fraction behind a point or comma are
/// understood. Nothing for any other text.
std::optional<double> NumberIn(std::string_view text);

/// The same rounded to a whole number; nothing where 16 bits do not hold it either.
std::optional<std::int16_t> WholeNumberIn(std::string_view text);

}  // namespace core
