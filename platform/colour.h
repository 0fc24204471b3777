// Colours as the program writes them: a number &HBBGGRR with red in its low byte.
#pragma once

#include <cstdint>

namespace platform {

struct Colour {
  std::uint8_t Red = 0;
  std::uint8_t Green = 0;
  std::uint8_t Blue = 0;

  bool operator==(const Colour&) const = default;

  /// From a colour value &HBBGGRR.
  static constexpr Colour FromBgr(std::uint32_t value) {
    return {static_cast<std::uint8_t>(value & 0xFF), static_cast<std::uint8_t>((value >> 8) & 0xFF),
            static_cast<std::uint8_t>((value >> 16) & 0xFF)};
  }
};

inline constexpr Colour kBlack{0, 0, 0};
inline constexpr Colour kWhite{255, 255, 255};

}  // namespace platform
