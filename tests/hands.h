// What a user does to the forms. Here it reaches their model directly; tests of real windows put widgets in between.
#pragma once

#include "../platform/form.h"

namespace tests {

class Hands {
 protected:
  Hands() = default;
  ~Hands() = default;

  virtual void KeyDown(platform::Form& form, platform::KeyCode code, platform::Modifiers with) {
    form.KeyPress(code, with);
  }
  virtual void KeyUp(platform::Form& form, platform::KeyCode code, platform::Modifiers with) {
    form.KeyRelease(code, with);
  }
  virtual void ClickOn(platform::Control& control, platform::MouseButton button) {
    if (button == platform::MouseButton::Left) control.Owner()->Click(control);
    control.Owner()->MouseUp(control, button);
  }
  virtual void ClickTool(platform::ToolBar& bar, int index) { bar.Owner()->ClickTool(bar, index); }
  virtual void ClickMenu(platform::Form& form, platform::MenuItem& item) { form.ClickMenu(item); }
  virtual void Pick(platform::ComboBox& combo, int index) { combo.Owner()->Pick(combo, index); }
  virtual void Write(platform::Control& control, const std::string& text) { control.Owner()->Type(control, text); }
  virtual void PressCloseBox(platform::Form& form) { form.PressCloseBox(); }
  /// Where what is seen is not what the model holds; empty: nowhere.
  virtual std::string ViewOffence() { return ""; }
};

}  // namespace tests
