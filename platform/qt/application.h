// The Qt application: the program's name and icon, its look, and what screen readers call its windows.
#pragma once

#include <QApplication>

#include "../picture.h"

namespace platform::qt {

struct ProgramIdentity {
  const char* Name = "";          ///< as titles show it, UTF-8
  const char* DesktopEntry = "";  ///< file name of the desktop entry, without extension
  Picture Icon;
  Picture SmallIcon;  ///< for title bars and lists, of fewer strokes
};

class Application {
 public:
  /// The command line is not read.
  Application(char* programPath, const ProgramIdentity& program);
  ~Application();

  /// Runs until the program quits; its status.
  int Run() { return application_.exec(); }

 private:
  int argumentCount_ = 1;
  char* arguments_[2];
  QApplication application_;
};

/// Sets the style and the font of all widgets, the toolkit's own dialogs on every system, and what screen readers call
/// them. Once, when there is an application.
void SetLook();

}  // namespace platform::qt
