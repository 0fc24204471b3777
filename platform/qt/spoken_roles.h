// What a screen reader takes the program's own widgets for: windows, groups and pictures. Of a plain widget it would
// only say that there is something.
#pragma once

namespace platform::qt {

/// Once, when there is an application.
void InstallSpokenRoles();

}  // namespace platform::qt
