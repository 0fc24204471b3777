// Keys and mouse buttons as numbers: letters and digits by their character, the others by their customary key codes.
#pragma once

namespace platform {

/// The code of a key, whatever layout or Shift state: "A" to "Z" 65 to 90, "0" to "9" of the top row 48 to 57.
using KeyCode = int;

inline constexpr KeyCode kKeyUnknown = 0;
inline constexpr KeyCode kKeyBackspace = 8;
inline constexpr KeyCode kKeyTab = 9;
inline constexpr KeyCode kKeyEnter = 13;
inline constexpr KeyCode kKeyShift = 16;
inline constexpr KeyCode kKeyControl = 17;
inline constexpr KeyCode kKeyAlt = 18;
inline constexpr KeyCode kKeyEscape = 27;
inline constexpr KeyCode kKeySpace = 32;
inline constexpr KeyCode kKeyLeft = 37;
inline constexpr KeyCode kKeyUp = 38;
inline constexpr KeyCode kKeyRight = 39;
inline constexpr KeyCode kKeyDown = 40;
inline constexpr KeyCode kKeyNumberPad0 = 96;  ///< to 105 for its 9; with NumLock on or off
inline constexpr KeyCode kKeyF1 = 112;         ///< to 123 for F12

/// The function key with this number, 1 to 12.
constexpr KeyCode FunctionKey(int number) { return kKeyF1 + number - 1; }

/// The keys that modify others, as held at the moment of an event.
struct Modifiers {
  bool Shift = false;
  bool Control = false;
  bool Alt = false;

  bool operator==(const Modifiers&) const = default;
  constexpr bool Any() const { return Shift || Control || Alt; }
};

/// A key of a menu entry; code 0 means that the entry has none.
struct Shortcut {
  KeyCode Code = kKeyUnknown;
  Modifiers With;
};

constexpr Shortcut Ctrl(char letter) { return {letter, {.Control = true}}; }
constexpr Shortcut AltBackspace() { return {kKeyBackspace, {.Alt = true}}; }
constexpr Shortcut Function(int number) { return {FunctionKey(number), {}}; }

enum class MouseButton { Left = 1, Right = 2, Middle = 4 };

}  // namespace platform
