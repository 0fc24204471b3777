#include "safe_file.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <optional>
#include <utility>

namespace storage {
namespace {

constexpr int kMostLinks = 40;
constexpr int kMostNames = 1000;                      // tried for the new file
constexpr const char* kNewFilePrefix = ".orvanbeg-";  // the process and a count behind it
constexpr const char* kNewFileSuffix = ".new";
constexpr mode_t kRightsOfNewFiles = 0666;
constexpr mode_t kAllRights = 07777;

WriteFailure KindOf(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR: return WriteFailure::NoSuchFolder;
    case EISDIR: return WriteFailure::NotAFile;
    case EACCES:
    case EPERM:
    case EROFS: return WriteFailure::NotAllowed;
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return WriteFailure::NoRoom;
    case EEXIST: return WriteFailure::Taken;
    default: return WriteFailure::Other;
  }
}

WriteOutcome Failed(int error = errno) { return {KindOf(error), std::error_code(error, std::generic_category())}; }

/// Repeats a call that a signal interrupted.
template <typename Call>
auto Uninterrupted(Call call) {
  auto result = call();
  while (result == -1 && errno == EINTR) result = call();
  return result;
}

/// An open file or folder.
class Handle {
 public:
  explicit Handle(int number) : number_(number) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(); }
  int Number() const { return number_; }
  bool IsOpen() const { return number_ != -1; }
  /// False if the system held back an error until now.
  bool Close() {
    const int number = std::exchange(number_, -1);
    return number == -1 || close(number) == 0 || errno == EINTR;
  }

 private:
  int number_;
};

bool WriteAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = Uninterrupted([&] { return write(file, bytes.data(), bytes.size()); });
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool SyncFile(Handle& file) {
  return Uninterrupted([&file] { return fsync(file.Number()); }) == 0 && file.Close();
}

/// The new file beside the old one; gone again unless it was put in its place.
class NewFile {
 public:
  NewFile(int folder, mode_t rights) : folder_(folder), file_(Create(rights)) {}
  ~NewFile() {
    if (exists_) unlinkat(folder_, name_.c_str(), 0);
  }
  bool IsOpen() const { return file_.IsOpen(); }
  bool Write(std::string_view bytes) { return WriteAll(file_.Number(), bytes); }
  bool TakeRights(const struct stat& old);
  bool Sync() { return SyncFile(file_); }
  bool PutInPlaceOf(const std::string& name) {
    const bool done = renameat(folder_, name_.c_str(), folder_, name.c_str()) == 0;
    exists_ = exists_ && !done;
    return done;
  }
  /// Not every file system knows the links that make the test and the naming one step.
  bool PutUnder(const std::string& name) {
    if (linkat(folder_, name_.c_str(), folder_, name.c_str(), 0) == 0) return true;
    if (errno == EEXIST || faccessat(folder_, name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) {
      errno = EEXIST;
      return false;
    }
    return PutInPlaceOf(name);
  }

 private:
  int Create(mode_t rights);

  int folder_;
  std::string name_;
  bool exists_ = false;
  Handle file_;
};

/// A name that no other process takes, short enough for every file system.
int NewFile::Create(mode_t rights) {
  for (int i = 0; i < kMostNames; ++i) {
    name_ = kNewFilePrefix + std::to_string(getpid()) + "-" + std::to_string(i) + kNewFileSuffix;
    const int file = Uninterrupted(
        [&] { return openat(folder_, name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, rights); });
    exists_ = file != -1;
    if (exists_ || errno != EEXIST) return file;
  }
  return -1;
}

/// Only the owner's own groups and, for a superuser, other owners can be kept; whoever saves then owns the file.
bool NewFile::TakeRights(const struct stat& old) {
  struct stat own = {};
  if (fstat(file_.Number(), &own) != 0) return false;
  if (own.st_uid != old.st_uid || own.st_gid != old.st_gid) {
    if (fchown(file_.Number(), old.st_uid, old.st_gid) != 0 && fchown(file_.Number(), own.st_uid, old.st_gid) != 0) {
      return fchmod(file_.Number(), old.st_mode & (S_IRWXU | S_IRWXO)) == 0;  // rights of a group that is not that one
    }
  }
  return (own.st_mode & kAllRights) == (old.st_mode & kAllRights) ||
         fchmod(file_.Number(), old.st_mode & kAllRights) == 0;
}

/// The file that is there now, or nothing; a failure where something else bears its name or it may not be replaced.
WriteOutcome LookAt(const std::filesystem::path& target, std::optional<struct stat>& old) {
  struct stat found = {};
  if (target.filename().empty()) return Failed(ENOENT);
  if (lstat(target.c_str(), &found) != 0) return errno == ENOENT ? WriteOutcome{} : Failed();
  if (!S_ISREG(found.st_mode)) return Failed(EISDIR);
  if (access(target.c_str(), W_OK) != 0) return Failed();
  old = found;
  return {};
}

/// Some file systems know no syncing of folders.
bool SyncFolder(int folder) {
  return Uninterrupted([folder] { return fsync(folder); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

std::filesystem::path FolderOf(const std::filesystem::path& target) {
  return target.has_parent_path() ? target.parent_path() : ".";
}

/// The process whose new file bears this name; 0 for any other name.
pid_t ProcessOf(std::string_view name) {
  const std::string_view prefix = kNewFilePrefix;
  if (!name.starts_with(prefix) || !name.ends_with(kNewFileSuffix)) return 0;
  pid_t process = 0;
  const char* const end = name.data() + name.size();
  const auto read = std::from_chars(name.data() + prefix.size(), end, process);
  return read.ec == std::errc() && *read.ptr == '-' && process > 0 ? process : 0;
}

/// New files of processes that are gone.
void RemoveLeftovers(const std::filesystem::path& folder) {
  std::error_code unknown;
  for (std::filesystem::directory_iterator found(folder, unknown), end; !unknown && found != end;
       found.increment(unknown)) {
    const pid_t process = ProcessOf(found->path().filename().string());
    if (process != 0 && kill(process, 0) != 0 && errno == ESRCH) unlink(found->path().c_str());
  }
}

using PutUnderName = bool (NewFile::*)(const std::string&);

WriteOutcome WriteBeside(const std::filesystem::path& target, const std::optional<struct stat>& old,
                         std::string_view bytes, PutUnderName put) {
  const std::filesystem::path path = FolderOf(target);
  const auto openFolder = [&] { return open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); };
  const Handle folder(Uninterrupted(openFolder));
  if (!folder.IsOpen()) return Failed();
  NewFile fresh(folder.Number(), old ? old->st_mode & kRightsOfNewFiles : kRightsOfNewFiles);
  if (!fresh.IsOpen() || !fresh.Write(bytes) || (old && !fresh.TakeRights(*old)) || !fresh.Sync() ||
      !(fresh.*put)(target.filename().string()) || !SyncFolder(folder.Number())) {
    return Failed();
  }
  RemoveLeftovers(path);
  return {};
}

}  // namespace

std::filesystem::path LinkTarget(std::filesystem::path path) {
  std::error_code noLink;
  for (int links = 0; links < kMostLinks; ++links) {
    const auto next = std::filesystem::read_symlink(path, noLink);
    if (noLink) return path;
    path = path.parent_path() / next;
  }
  return {};
}

WriteOutcome WriteWhole(const std::filesystem::path& file, std::string_view bytes) {
  const std::filesystem::path target = LinkTarget(file);
  std::optional<struct stat> old;
  if (const WriteOutcome looked = LookAt(target, old); !looked) return looked;
  return WriteBeside(target, old, bytes, &NewFile::PutInPlaceOf);
}

WriteOutcome WriteNew(const std::filesystem::path& file, std::string_view bytes) {
  return WriteBeside(file, {}, bytes, &NewFile::PutUnder);
}

WriteOutcome WriteInPlace(const std::filesystem::path& file, std::string_view bytes) {
  const std::filesystem::path target = LinkTarget(file);
  Handle there(Uninterrupted([&] { return open(target.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC); }));
  const auto size = static_cast<off_t>(bytes.size());
  if (!there.IsOpen() || !WriteAll(there.Number(), bytes) || ftruncate(there.Number(), size) != 0 || !SyncFile(there)) {
    return Failed();
  }
  return {};
}

bool CanWriteInPlace(const std::filesystem::path& file) {
  std::optional<struct stat> old;
  return LookAt(LinkTarget(file), old) && old;
}

bool CanWriteWhole(const std::filesystem::path& file) {
  const std::filesystem::path target = LinkTarget(file);
  std::optional<struct stat> old;
  if (const WriteOutcome looked = LookAt(target, old); !looked) return looked.Failure == WriteFailure::Other;
  return access(FolderOf(target).c_str(), R_OK | W_OK | X_OK) == 0 || KindOf(errno) == WriteFailure::Other;
}

}  // namespace storage
