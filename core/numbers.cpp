#include "numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace core {
namespace {

std::string WithSeparator(std::string text, const std::string& decimalSeparator) {
  const auto point = text.find('.');
  if (point != std::string::npos) text.replace(point, 1, decimalSeparator);
  return text;
}

}  // namespace

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

std::string WithOneDecimal(float value, const std::string& decimalSeparator) {
  const double tenths = std::round(static_cast<double>(value) * 10);
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, tenths / 10, std::chars_format::fixed, 1).ptr;
  return WithSeparator(std::string(text, end), decimalSeparator);
}

std::string PercentText(float percent, const std::string& decimalSeparator) {
  return (percent == 0 ? "0" : WithOneDecimal(percent, decimalSeparator)) + "%";
}

std::string PlainText(float value, const std::string& decimalSeparator) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  return WithSeparator(std::string(text, end), decimalSeparator);
}

std::string PrintedNumber(int value) { return (value < 0 ? "" : " ") + std::to_string(value) + " "; }

std::string_view WithoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string_view()
                                         : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::optional<double> NumberIn(std::string_view text) {
  std::string digits(WithoutBlanks(text));
  if (digits.empty()) return std::nullopt;
  std::replace(digits.begin(), digits.end(), ',', '.');
  const std::size_t sign = digits.front() == '+' || digits.front() == '-' ? 1 : 0;
  if (digits.find_first_not_of(".0123456789", sign) != std::string::npos) return std::nullopt;
  double value = 0;
  const char* const end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data() + sign, end, value, std::chars_format::fixed);
  if (read.ec == std::errc::result_out_of_range) value = std::numeric_limits<double>::infinity();
  if (read.ec == std::errc::invalid_argument || read.ptr != end) return std::nullopt;
  return digits.front() == '-' ? -value : value;
}

std::optional<std::int16_t> WholeNumberIn(std::string_view text) {
  // Nearly all are plain digits; from_chars knows those, but no plus and no fraction.
  const std::string_view digits = text.starts_with(' ') ? WithoutBlanks(text) : text;
  std::int16_t plain = 0;
  const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), plain);
  if (end.ec == std::errc() && end.ptr == digits.data() + digits.size()) return plain;
  const auto value = NumberIn(text);
  if (!value) return std::nullopt;
  const double whole = RoundHalfEven(*value);
  using Limits = std::numeric_limits<std::int16_t>;
  return whole >= Limits::min() && whole <= Limits::max() ? std::optional(static_cast<std::int16_t>(whole))
                                                          : std::nullopt;
}

}  // namespace core
