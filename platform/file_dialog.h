// The file dialog of a form: its properties are set before it is shown; the name chosen last stays for the next time.
#pragma once

#include <string>

namespace platform {

struct FileDialog {
  static constexpr int kAskBeforeOverwriting = 2;
  static constexpr int kPathMustExist = 2048;
  static constexpr int kFileMustExist = 4096;  ///< the dialog opens a file; without it, it saves one

  std::string Filter;  ///< pairs of name and pattern, all separated by "|"
  std::string InitDir;
  std::string DialogTitle;
  int Flags = 0;
  std::string DefaultExt;  ///< added to a name that is typed without an extension; empty: the name stays as typed
  std::string FileName;    ///< with its path; empty as long as none was chosen
};

}  // namespace platform
