#include "dialog.h"

namespace windows {

void Dialog::Open() {
  Visible = true;
  context_.F1.Enabled = false;
}

void Dialog::Leave() {
  Unlock();
  Visible = false;
}

}  // namespace windows
