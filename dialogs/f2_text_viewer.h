// F2, the text viewer: shows a text file that comes with the program. It locks nothing.
#pragma once

#include <filesystem>
#include <fstream>

#include "../windows/dialog.h"

namespace dialogs {

class F2 : public platform::Form {
 public:
  explicit F2(const windows::Context& context);

  platform::TextBox txtInfo;
  platform::CommandButton cmdOK;

  /// Shows the file of this name in the program's folder, or the one of the language where there is one. A file that
  /// cannot be read shows nothing: a hidden viewer stays hidden, an open one is emptied.
  void ShowFile(const std::string& name);

 private:
  std::ifstream OpenInLanguage(const std::filesystem::path& file);

  windows::Context context_;
};

}  // namespace dialogs
