// Where files are. A program that was not installed has everything beside it. An installed one has its own files
// where the installation puts them and writes nothing there; what its user sets or adds lies in the user's folders.
#pragma once

#include <filesystem>

namespace storage {

class Places {
 public:
  /// The folders of the executable, of the user's settings of all programs, of the user's documents, and of what the
  /// user's programs keep by themselves.
  Places(std::filesystem::path program, const std::filesystem::path& configuration, std::filesystem::path documents,
         const std::filesystem::path& state = {});

  /// The folder of the files that come with the program.
  const std::filesystem::path& ProgramFiles() const { return files_; }

  /// The language file to read. That of an installed program gives way to one of the user's own, beside the settings,
  /// even to one that cannot be read.
  std::filesystem::path LanguageFile() const;

  /// The settings file. Beside a program that was not installed if it can be written there, else in the user's folder;
  /// once written there it is found again, even if the program's folder can be written later.
  std::filesystem::path SettingsFile() const;

  /// The settings file to read at the start: the same, or one among the program's files that can only be read, as long
  /// as the user has none.
  std::filesystem::path SettingsToRead() const;

  /// The file with the size of the windows, beside the settings file.
  std::filesystem::path ViewFile() const;

  /// Where evenings keep themselves; empty where there is no folder for what programs keep.
  const std::filesystem::path& Copies() const { return copies_; }

  /// Where a file dialog begins as long as no file has been chosen in it.
  const std::filesystem::path& FirstFolder() const { return installed_ ? documents_ : files_; }

 private:
  bool installed_;
  std::filesystem::path files_;
  std::filesystem::path own_;  ///< the user's folder for this program
  std::filesystem::path documents_;
  std::filesystem::path copies_;
};

}  // namespace storage
