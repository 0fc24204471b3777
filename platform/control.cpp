#include "control.h"

#include <utility>

#include "form.h"

namespace platform {

Control::Control(Container* parent, std::string name, Place place)
    : Name(std::move(name)), Position(*this, Aspect::Place, place), parent_(parent) {
  if (parent_) parent_->controls_.push_back(this);
}

const std::vector<Control*>& Control::Controls() const {
  static const std::vector<Control*> kNone;
  return kNone;
}

Form* Control::Owner() { return parent_ ? parent_->Owner() : nullptr; }

bool Control::Usable() const {
  for (const Control* control = this; control->parent_; control = control->parent_) {
    if (!control->Visible || !control->Enabled) return false;
  }
  return true;
}

void Control::PropertyChanged(Aspect aspect) {
  Form* form = Owner();
  if (form && form->View) form->View->ControlChanged(*this, aspect);
}

}  // namespace platform
