#include "safe_file.h"

#include <charconv>

#include "file_system.h"
#include "path_text.h"

namespace storage {
namespace {

using file_system::NewFile;
using file_system::OldFilePointer;

constexpr int kMostNames = 1000;                           // tried for the new file
constexpr std::string_view kNewFilePrefix = ".orvanbeg-";  // the process and a count behind it
constexpr std::string_view kNewFileSuffix = ".new";

std::filesystem::path FolderOf(const std::filesystem::path& target) {
  return target.has_parent_path() ? target.parent_path() : ".";
}

/// Under a name that no other process takes, short enough for every file system.
bool Create(NewFile& fresh, const OldFilePointer& old) {
  for (int i = 0; i < kMostNames; ++i) {
    const std::string number = std::to_string(file_system::OwnProcess()) + "-" + std::to_string(i);
    if (fresh.Create(std::string(kNewFilePrefix).append(number).append(kNewFileSuffix), old.get())) return true;
    if (file_system::LastFailure() != WriteFailure::Taken) break;
  }
  return false;
}

/// The process whose new file bears this name; 0 for any other name.
int ProcessOf(std::string_view name) {
  if (!name.starts_with(kNewFilePrefix) || !name.ends_with(kNewFileSuffix)) return 0;
  int process = 0;
  const char* const end = name.data() + name.size();
  const auto read = std::from_chars(name.data() + kNewFilePrefix.size(), end, process);
  return read.ec == std::errc() && *read.ptr == '-' && process > 0 ? process : 0;
}

/// New files of processes that are gone.
void RemoveLeftovers(const std::filesystem::path& folder) {
  std::error_code unknown, stays;
  for (std::filesystem::directory_iterator found(folder, unknown), end; !unknown && found != end;
       found.increment(unknown)) {
    const int process = ProcessOf(TextOf(found->path().filename()));
    if (process != 0 && file_system::IsGone(process)) std::filesystem::remove(found->path(), stays);
  }
}

using PutUnderName = bool (NewFile::*)(const std::filesystem::path&);

WriteOutcome WriteBeside(const std::filesystem::path& target, const OldFilePointer& old, std::string_view bytes,
                         PutUnderName put) {
  const std::filesystem::path folder = FolderOf(target);
  NewFile fresh(folder);
  if (!Create(fresh, old) || !fresh.Write(bytes) || (old && !fresh.TakeRights(*old)) || !fresh.Sync() ||
      !(fresh.*put)(target.filename()) || !fresh.SyncFolder()) {
    return {file_system::LastFailure()};
  }
  RemoveLeftovers(folder);
  return {};
}

}  // namespace

WriteOutcome WriteWhole(const std::filesystem::path& file, std::string_view bytes) {
  const std::filesystem::path target = file_system::LinkTarget(file);
  OldFilePointer old;
  if (const WriteOutcome looked{file_system::LookAt(target, old)}; !looked) return looked;
  return WriteBeside(target, old, bytes, &NewFile::PutInPlaceOf);
}

WriteOutcome WriteNew(const std::filesystem::path& file, std::string_view bytes) {
  return WriteBeside(file, {}, bytes, &NewFile::PutUnder);
}

WriteOutcome WriteInPlace(const std::filesystem::path& file, std::string_view bytes) {
  if (file_system::WriteOver(file_system::LinkTarget(file), bytes)) return {};
  return {file_system::LastFailure()};
}

bool CanWriteInPlace(const std::filesystem::path& file) {
  OldFilePointer old;
  return file_system::LookAt(file_system::LinkTarget(file), old) == WriteFailure::None && old;
}

bool CanWriteWhole(const std::filesystem::path& file) {
  const std::filesystem::path target = file_system::LinkTarget(file);
  OldFilePointer old;
  const WriteFailure looked = file_system::LookAt(target, old);
  if (looked != WriteFailure::None) return looked == WriteFailure::Other;
  return file_system::TakesNewFiles(FolderOf(target)) || file_system::LastFailure() == WriteFailure::Other;
}

}  // namespace storage
