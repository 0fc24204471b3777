#include "key_codes.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <array>
#include <string_view>

namespace platform::qt {
namespace {

struct Pair {
  int qtKey;
  KeyCode code;
};
constexpr Pair kNamedKeys[] = {
    {Qt::Key_Backspace, kKeyBackspace}, {Qt::Key_Tab, kKeyTab},
    {Qt::Key_Backtab, kKeyTab},         {Qt::Key_Return, kKeyEnter},
    {Qt::Key_Enter, kKeyEnter},         {Qt::Key_Escape, kKeyEscape},
    {Qt::Key_Space, kKeySpace},         {Qt::Key_Shift, kKeyShift},
    {Qt::Key_Control, kKeyControl},     {Qt::Key_Alt, kKeyAlt},
    {Qt::Key_Left, kKeyLeft},           {Qt::Key_Up, kKeyUp},
    {Qt::Key_Right, kKeyRight},         {Qt::Key_Down, kKeyDown},
};

// The keys of the number pad without NumLock, from 0 to 9.
constexpr std::array kPadKeys{Qt::Key_Insert, Qt::Key_End,   Qt::Key_Down, Qt::Key_PageDown, Qt::Key_Left,
                              Qt::Key_Clear,  Qt::Key_Right, Qt::Key_Home, Qt::Key_Up,       Qt::Key_PageUp};

// The places of the top row, "1" to "0".
constexpr quint32 kPlaceOf1 = 10;
constexpr quint32 kPlaceOf0 = 19;

// The letters of a Latin keyboard by place, row by row.
struct LetterRow {
  quint32 firstPlace;
  std::string_view letters;
};
constexpr LetterRow kLetterRows[] = {{24, "QWERTYUIOP"}, {38, "ASDFGHJKL"}, {52, "ZXCVBNM"}};

/// The key's place on the keyboard, as X11 and Wayland number it; 0 if it is not known.
quint32 PlaceOf(const QKeyEvent& event) {
  static const bool known = OnWindows() || QGuiApplication::platformName() == "xcb" || OnWayland();
  constexpr quint32 kWindowsStartsLower = 8;
  const quint32 scan = known ? event.nativeScanCode() : 0;
  return OnWindows() && scan > 0 ? scan + kWindowsStartsLower : scan;
}

/// The letter by the key's place, for keyboards whose letters are not Latin.
KeyCode LetterByPlace(const QKeyEvent& event) {
  if (event.key() <= 0xFF || event.key() >= Qt::Key_Escape) return kKeyUnknown;
  for (const LetterRow& row : kLetterRows) {
    const quint32 inRow = PlaceOf(event) - row.firstPlace;
    if (inRow < row.letters.size()) return row.letters[inRow];
  }
  return kKeyUnknown;
}

KeyCode PadCode(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) return kKeyNumberPad0 + key - Qt::Key_0;
  for (std::size_t digit = 0; digit < kPadKeys.size(); ++digit) {
    if (kPadKeys[digit] == key) return kKeyNumberPad0 + static_cast<int>(digit);
  }
  return kKeyUnknown;
}

KeyCode DigitCode(const QKeyEvent& event) {
  const quint32 place = PlaceOf(event);
  if (place >= kPlaceOf1 && place <= kPlaceOf0) return '0' + static_cast<int>(place - kPlaceOf1 + 1) % 10;
  const bool digit = place == 0 && event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
  return digit ? event.key() : kKeyUnknown;
}

}  // namespace

bool OnWayland() {
  static const bool wayland = QGuiApplication::platformName().startsWith("wayland");
  return wayland;
}

bool OnWindows() {
  static const bool windows = QGuiApplication::platformName() == "windows";
  return windows;
}

KeyCode CodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if (event.modifiers() & Qt::KeypadModifier) {
    if (const KeyCode code = PadCode(key)) return code;
  } else if (const KeyCode code = DigitCode(event)) {
    return code;
  }
  if (key >= Qt::Key_A && key <= Qt::Key_Z) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return kKeyF1 + key - Qt::Key_F1;
  for (const Pair& pair : kNamedKeys) {
    if (pair.qtKey == key) return pair.code;
  }
  // An umlaut or accented letter with a key of its own has the number of its character. The numbers of other signs
  // are those of arrows and function keys.
  return key >= Qt::Key_Agrave && key <= 0xFF ? key : LetterByPlace(event);
}

Modifiers ModifiersOf(Qt::KeyboardModifiers held) {
  return {.Shift = held.testFlag(Qt::ShiftModifier),
          .Control = held.testFlag(Qt::ControlModifier),
          .Alt = held.testFlag(Qt::AltModifier)};
}

QString TextOf(const Shortcut& shortcut) {
  if (shortcut.Code == kKeyUnknown) return {};
  const bool function = shortcut.Code >= kKeyF1 && shortcut.Code < kKeyF1 + 12;
  Qt::Key key = static_cast<Qt::Key>(shortcut.Code);
  if (function) key = static_cast<Qt::Key>(Qt::Key_F1 + shortcut.Code - kKeyF1);
  if (shortcut.Code == kKeyBackspace) key = Qt::Key_Backspace;
  Qt::KeyboardModifiers with = Qt::NoModifier;
  with.setFlag(Qt::ShiftModifier, shortcut.With.Shift);
  with.setFlag(Qt::ControlModifier, shortcut.With.Control);
  with.setFlag(Qt::AltModifier, shortcut.With.Alt);
  return QKeySequence(QKeyCombination(with, key)).toString(QKeySequence::NativeText);
}

}  // namespace platform::qt
