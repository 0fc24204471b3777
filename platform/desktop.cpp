#include "desktop.h"

#include <algorithm>

#include "form.h"

namespace platform {

void Desktop::Add(Form& form) { forms_.push_back(&form); }

void Desktop::Remove(Form& form) {
  std::erase(forms_, &form);
  std::erase(opened_, &form);
  if (modal_ == &form) modal_ = nullptr;
  if (awaited_ == &form) awaited_ = nullptr;
}

void Desktop::FormChanged(Form& form, Aspect aspect) {
  if (aspect == Aspect::Visible) {
    std::erase(opened_, &form);
    if (form.Visible) opened_.push_back(&form);
  }
  if (form.AcceptsInput()) {
    awaited_ = &form;
  } else if (awaited_ == &form) {
    awaited_ = nullptr;
  }
  if (OnChange) OnChange(form, aspect);
}

void Desktop::BringToFront(Form& form) {
  std::erase(opened_, &form);
  opened_.push_back(&form);
  awaited_ = &form;
  if (OnChange) OnChange(form, Aspect::Focus);
}

Form* Desktop::Front() const {
  const auto found =
      std::find_if(opened_.rbegin(), opened_.rend(), [](const Form* form) { return form->AcceptsInput(); });
  return found == opened_.rend() ? nullptr : *found;
}

void Desktop::Activated(Form& form) {
  if (awaited_ == &form) awaited_ = nullptr;
}

Form* Desktop::KeyReceiver(Form& form) const {
  if (form.AcceptsInput()) return &form;
  if (!form.Visible) return Front();
  return awaited_ && awaited_->AcceptsInput() ? awaited_ : nullptr;
}

}  // namespace platform
