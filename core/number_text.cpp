#include "number_text.h"

#include <charconv>
#include <cmath>

namespace core {
namespace {

std::string WithSeparator(std::string text, const std::string& decimalSeparator) {
  const auto point = text.find('.');
  if (point != std::string::npos) text.replace(point, 1, decimalSeparator);
  return text;
}

}  // namespace

std::string WithOneDecimal(float value, const std::string& decimalSeparator) {
  const double tenths = std::round(static_cast<double>(value) * 10);
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, tenths / 10, std::chars_format::fixed, 1).ptr;
  return WithSeparator(std::string(text, end), decimalSeparator);
}

std::string PlainText(float value, const std::string& decimalSeparator) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  return WithSeparator(std::string(text, end), decimalSeparator);
}

std::string PrintedNumber(int value) { return (value < 0 ? "" : " ") + std::to_string(value) + " "; }

}  // namespace core
