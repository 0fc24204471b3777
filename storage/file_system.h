// What storage does by the system's own calls. Each system has a file of its own with it.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "safe_file.h"

namespace storage::file_system {

/// Why the last of the steps below failed that said false.
WriteFailure LastFailure();

/// The file where a link, or a chain of them, leads; the path itself if it is no link. Nothing for a circle of links.
std::filesystem::path LinkTarget(std::filesystem::path path);

/// What a new file takes over from the one that it replaces.
struct OldFile;
using OldFilePointer = std::shared_ptr<const OldFile>;

/// The file that is there now, or nothing; a failure where something else bears its name or it may not be replaced.
WriteFailure LookAt(const std::filesystem::path& target, OldFilePointer& old);

/// Whether a new file may be made in the folder.
bool TakesNewFiles(const std::filesystem::path& folder);

/// Writes over the bytes of a file that is there, down to the disk.
bool WriteOver(const std::filesystem::path& file, std::string_view bytes);

/// A new file beside the old one; gone again unless it was put in its place.
class NewFile {
 public:
  explicit NewFile(const std::filesystem::path& folder);
  ~NewFile();
  /// Fails as `Taken` where the name is. `old` may be null.
  bool Create(const std::string& name, const OldFile* old);
  bool Write(std::string_view bytes);
  bool TakeRights(const OldFile& old);
  bool Sync();
  bool PutInPlaceOf(const std::filesystem::path& name);
  /// Fails as `Taken` where the name is, also where two processes try at once.
  bool PutUnder(const std::filesystem::path& name);
  bool SyncFolder();

 private:
  struct Handles;
  std::unique_ptr<Handles> own_;
};

int OwnProcess();
bool IsGone(int process);

/// Whether names of files can hold a character, control characters apart.
bool FitsInName(char character);

}  // namespace storage::file_system
