#include "desktop.h"

#include <algorithm>

#include "form.h"

namespace platform {

void Desktop::Add(Form& form) { forms_.push_back(&form); }

void Desktop::Remove(Form& form) {
  std::erase(forms_, &form);
  if (modal_ == &form) modal_ = nullptr;
  if (awaited_ == &form) awaited_ = nullptr;
}

void Desktop::FormChanged(Form& form, Aspect aspect) {
  if (form.AcceptsInput()) {
    awaited_ = &form;
  } else if (awaited_ == &form) {
    awaited_ = nullptr;
  }
  if (OnChange) OnChange(form, aspect);
}

void Desktop::Activated(Form& form) {
  if (awaited_ == &form) awaited_ = nullptr;
}

Form* Desktop::KeyReceiver(Form& form) const {
  if (form.AcceptsInput()) return &form;
  return awaited_ && awaited_->AcceptsInput() ? awaited_ : nullptr;
}

}  // namespace platform
