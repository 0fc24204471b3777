#include "dialog.h"

namespace windows {

void Dialog::BringUp() {
  if (Visible) {
    context_.desktop.BringToFront(*this);
  } else {
    Visible = true;
  }
}

void Dialog::Open() {
  BringUp();
  locks_ = true;
  context_.F1.Enabled = false;
}

void Dialog::Unlock() {
  locks_ = false;
  for (platform::Form* form : context_.desktop.Forms()) {
    const auto* dialog = dynamic_cast<const Dialog*>(form);
    if (dialog && dialog->locks_ && dialog->Visible) return;
  }
  context_.F1.Enabled = true;
}

void Dialog::Leave() {
  Unlock();
  Visible = false;
}

}  // namespace windows
