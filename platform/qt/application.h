// The Qt application as the program wants it: its name and icon, its look, and the toolkit's own words (the buttons of
// message boxes) in the system's language.
#pragma once

#include <QApplication>
#include <QTranslator>

#include "../picture.h"

namespace platform::qt {

class Application {
 public:
  struct Icon {
    Picture Drawing;
    Picture SmallDrawing;  ///< for title bars and lists, of fewer strokes
  };

  /// `name` of the program as titles show it. The command line is not read.
  Application(char* programPath, const char* name, const Icon& icon);

  ~Application();

  /// Runs until the program quits; its status.
  int Run() { return application_.exec(); }

 private:
  int argumentCount_ = 1;
  char* arguments_[2];
  QApplication application_;
  QTranslator toolkitWords_;
};

}  // namespace platform::qt
