#include "shortcut_text.h"

#include <QKeySequence>

namespace platform::qt {

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
