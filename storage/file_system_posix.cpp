#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "file_system.h"

namespace storage::file_system {
namespace {

constexpr int kMostLinks = 40;
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
  Handle() = default;
  explicit Handle(int number) : number_(number) {}
  Handle(Handle&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Handle& operator=(Handle&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Handle() { Close(); }
  int Number() const { return number_; }
  bool IsOpen() const { return number_ != -1; }
  /// False if the system held back an error until now.
  bool Close() {
    const int number = std::exchange(number_, -1);
    return number == -1 || close(number) == 0 || errno == EINTR;
  }

 private:
  int number_ = -1;
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

}  // namespace

WriteFailure LastFailure() { return KindOf(errno); }

std::filesystem::path LinkTarget(std::filesystem::path path) {
  std::error_code noLink;
  for (int links = 0; links < kMostLinks; ++links) {
    const auto next = std::filesystem::read_symlink(path, noLink);
    if (noLink) return path;
    path = path.parent_path() / next;
  }
  return {};
}

struct OldFile {
  struct stat Found = {};
};

WriteFailure LookAt(const std::filesystem::path& target, OldFilePointer& old) {
  OldFile file;
  if (target.filename().empty()) return WriteFailure::NoSuchFolder;
  if (lstat(target.c_str(), &file.Found) != 0) return errno == ENOENT ? WriteFailure::None : LastFailure();
  if (!S_ISREG(file.Found.st_mode)) return WriteFailure::NotAFile;
  if (access(target.c_str(), W_OK) != 0) return LastFailure();
  old = std::make_shared<const OldFile>(file);
  return WriteFailure::None;
}

bool TakesNewFiles(const std::filesystem::path& folder) { return access(folder.c_str(), R_OK | W_OK | X_OK) == 0; }

bool WriteOver(const std::filesystem::path& file, std::string_view bytes) {
  Handle there(Uninterrupted([&] { return open(file.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC); }));
  return there.IsOpen() && WriteAll(there.Number(), bytes) &&
         ftruncate(there.Number(), static_cast<off_t>(bytes.size())) == 0 && SyncFile(there);
}

struct NewFile::Handles {
  Handle Folder, File;
  std::string Name;
  bool Exists = false;
};

NewFile::NewFile(const std::filesystem::path& folder) : own_(std::make_unique<Handles>()) {
  const auto openFolder = [&] { return open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); };
  own_->Folder = Handle(Uninterrupted(openFolder));
}

NewFile::~NewFile() {
  if (own_->Exists) unlinkat(own_->Folder.Number(), own_->Name.c_str(), 0);
}

bool NewFile::Create(const std::string& name, const OldFile* old) {
  if (!own_->Folder.IsOpen()) return false;
  const mode_t rights = old ? old->Found.st_mode & kRightsOfNewFiles : kRightsOfNewFiles;
  own_->Name = name;
  own_->File = Handle(Uninterrupted([&] {
    return openat(own_->Folder.Number(), name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, rights);
  }));
  own_->Exists = own_->File.IsOpen();
  return own_->Exists;
}

bool NewFile::Write(std::string_view bytes) { return WriteAll(own_->File.Number(), bytes); }

/// Only the owner's own groups and, for a superuser, other owners can be kept; whoever saves then owns the file.
bool NewFile::TakeRights(const OldFile& file) {
  const int fresh = own_->File.Number();
  const struct stat& old = file.Found;
  struct stat own = {};
  if (fstat(fresh, &own) != 0) return false;
  if (own.st_uid != old.st_uid || own.st_gid != old.st_gid) {
    if (fchown(fresh, old.st_uid, old.st_gid) != 0 && fchown(fresh, own.st_uid, old.st_gid) != 0) {
      return fchmod(fresh, old.st_mode & (S_IRWXU | S_IRWXO)) == 0;  // rights of a group that is not that one
    }
  }
  return (own.st_mode & kAllRights) == (old.st_mode & kAllRights) || fchmod(fresh, old.st_mode & kAllRights) == 0;
}

bool NewFile::Sync() { return SyncFile(own_->File); }

bool NewFile::PutInPlaceOf(const std::filesystem::path& name) {
  const int folder = own_->Folder.Number();
  const bool done = renameat(folder, own_->Name.c_str(), folder, name.c_str()) == 0;
  own_->Exists = own_->Exists && !done;
  return done;
}

/// Not every file system knows the links that make the test and the naming one step.
bool NewFile::PutUnder(const std::filesystem::path& name) {
  const int folder = own_->Folder.Number();
  if (linkat(folder, own_->Name.c_str(), folder, name.c_str(), 0) == 0) return true;
  if (errno == EEXIST || faccessat(folder, name.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) == 0) {
    errno = EEXIST;
    return false;
  }
  return PutInPlaceOf(name);
}

/// Some file systems know no syncing of folders.
bool NewFile::SyncFolder() {
  return Uninterrupted([this] { return fsync(own_->Folder.Number()); }) == 0 || errno == EINVAL || errno == ENOTSUP;
}

int OwnProcess() { return getpid(); }

bool IsGone(int process) { return kill(process, 0) != 0 && errno == ESRCH; }

bool FitsInName(char character) { return character != '/'; }

}  // namespace storage::file_system
