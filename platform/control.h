// What every control of a form has: a name, a place in twips, whether it is shown and can be used, a tooltip, a font,
// and what it does with the user's input. Containers hold other controls. The kinds of control are in controls.h.
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
  /// A mouse button was released over the control on which it was pressed.
  std::function<void(MouseButton)> MouseUp;

  Container* Parent() const { return parent_; }
  /// The controls that this one holds; none unless it is a container.
  virtual const std::vector<Control*>& Controls() const;
  /// The form that holds the control, directly or in a container; null only while that form is being made.
  virtual Form* Owner();
  /// Whether it is visible and enabled and so are all its containers. The form itself does not count.
  bool Usable() const;

  // The rest is called by the form, for usable controls only.
  virtual bool TakesFocus() const { return false; }
  virtual void UserClick() {}
  /// The user has edited the text of a field, which is now `text`.
  virtual void UserType(const std::string&) {}
  /// Whether the key clicks this control wherever the focus is: a default button for Enter, a cancel button for Esc.
  virtual bool IsClickedBy(KeyCode) const { return false; }
  /// Whether Enter clicks the control while it has the focus.
  virtual bool TakesEnter() const { return false; }
  /// Whether Tab passes by, because it stops at another control of the same group.
  virtual bool TabPassesBy() const { return false; }
  /// Where the arrow keys go from here within a group of controls; null outside of such a group. `step` is 1 or -1.
  virtual Control* GroupNeighbour(int) { return nullptr; }

  /// Reports the change to the form's view; kinds with effects of their own extend it.
  void PropertyChanged(Aspect aspect) override;

 private:
  Container* parent_;
};

/// A control that holds others. Their order, which is also the tab order, is that in which they were made.
class Container : public Control {
 public:
  using Control::Control;
  const std::vector<Control*>& Controls() const override { return controls_; }

 private:
  friend class Control;
  std::vector<Control*> controls_;
};

}  // namespace platform
