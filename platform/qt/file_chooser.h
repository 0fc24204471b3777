// The dialog in which the user chooses a file.
#pragma once

#include "../file_dialog.h"

namespace platform::qt {

/// Shows the dialog and waits; false if it was cancelled, and then the file name stays.
bool ShowFileChooser(FileDialog& dialog);

}  // namespace platform::qt
