// Hands for tests: they press keys and click controls as a user would.
#pragma once

#include "../platform/form.h"

namespace tests {

/// Presses and releases a key.
inline void Key(platform::Form& form, platform::KeyCode code, platform::Modifiers with = {}) {
  form.KeyPress(code, with);
  form.KeyRelease(code, with);
}

inline void Click(platform::Control& control, platform::MouseButton button = platform::MouseButton::Left) {
  platform::Form& form = *control.Owner();
  form.Click(control);
  form.MouseUp(control, button);
}

}  // namespace tests
