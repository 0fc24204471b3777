#include "dialog.h"

namespace windows {

void Dialog::Open() {
  if (Visible) {
    context_.desktop.BringToFront(*this);
  } else {
    Visible = true;
  }
  context_.F1.Enabled = false;
}

void Dialog::Leave() {
  Unlock();
  Visible = false;
}

}  // namespace windows
