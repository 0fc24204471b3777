// What every control of a form has: a name, a place in twips, whether it shows and can be used, a tooltip, a font; and
// containers, which hold controls. The concrete kinds stand in controls.h.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "keys.h"
#include "property.h"
#include "surface.h"
#include "units.h"

namespace platform {

class Container;
class ControlVisitor;
class Form;

class Control : public PropertyOwner {
 public:
  Control(Container* parent, std::string name, Place place);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string Name;
  Property<Place> Position;  ///< in twips, from the top left of the container
  Property<bool> Visible{*this, Aspect::Visible, true};
  Property<bool> Enabled{*this, Aspect::Enabled, true};
  Property<std::string> ToolTipText{*this, Aspect::ToolTip};
  Property<Font> Face{*this, Aspect::Font};
  /// What a screen reader says of a control that bears no caption.
  Property<std::string> SpokenName{*this, Aspect::Spoken};

  /// A key was released while this control had the focus.
  std::function<void(KeyCode, Modifiers)> KeyUp;

  Container* Parent() const { return parent_; }
  /// The form on which the control lies, however deep; null only while the form itself is being made.
  Form* Owner();
  /// Visible and enabled, and all containers up to the form too; the form's own state is not looked at.
  bool Usable() const;

  virtual bool TakesFocus() const { return false; }
  /// The user clicks the control; forms call this for a usable control only.
  virtual void UserClick() {}
  virtual void Accept(ControlVisitor& visitor) = 0;

  /// Tells the form's view; kinds with effects of their own extend it.
  void PropertyChanged(Aspect aspect) override;

 private:
  Container* parent_;
};

/// A control that holds others, in the order of their making, which is the tab order too.
class Container : public Control {
 public:
  using Control::Control;
  const std::vector<Control*>& Controls() const { return controls_; }

 private:
  friend class Control;
  std::vector<Control*> controls_;
};

}  // namespace platform
