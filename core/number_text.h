// Numbers as the program writes them into drawings and captions.
#pragma once

#include <string>

namespace core {

/// A percentage with exactly one decimal, a tie rounded away from zero, with the system's decimal separator: "16,7".
std::string WithOneDecimal(float value, const std::string& decimalSeparator);

/// The shortest text that names the number, with the system's decimal separator: "2,8", "3".
std::string PlainText(float value, const std::string& decimalSeparator);

/// A number as a drawing surface prints it: with a blank for the sign in front and one behind.
std::string PrintedNumber(int value);

}  // namespace core
