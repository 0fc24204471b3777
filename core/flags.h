// The two kinds of flag, which are stored and compared differently and never mixed: a boolean, which is a bool in
// memory, and a check value, the number of a check box. Files may bring any number as a check value.
#pragma once

#include <cstdint>

namespace core {

struct CheckValue {
  std::int16_t Value = 0;

  constexpr CheckValue() = default;
  constexpr explicit CheckValue(std::int16_t value) : Value(value) {}
  bool operator==(const CheckValue&) const = default;
  constexpr bool IsOn() const { return Value == 1; }
  constexpr bool IsOff() const { return Value == 0; }
};

inline constexpr CheckValue kOff{0};
inline constexpr CheckValue kOn{1};

}  // namespace core
