#include "dialog.h"

#include "../core/points.h"

namespace windows {

void Lock::Take(const platform::Form& dialog) {
  holders_.insert(&dialog);
  f1_.Enabled = false;
}

void Lock::GiveBack(const platform::Form& dialog) {
  holders_.erase(&dialog);
  f1_.Enabled = holders_.empty();
}

void Dialog::Open() {
  Show();
  context_.lock.Take(*this);
}

void Dialog::Leave(const std::function<void()>& last) {
  context_.lock.GiveBack(*this);
  if (last) last();
  Visible = false;
}

void Dialog::LeaveAndScore() {
  Leave([this] { core::CalcPoints(state(), screen()); });
}

}  // namespace windows
