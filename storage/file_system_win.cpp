#include <windows.h>

#include <cstddef>
#include <utility>
#include <vector>

#include "file_system.h"

namespace storage::file_system {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
constexpr DWORD kQuotaExceeded = 1295;  // on the disk; the headers lack it
constexpr DWORD kLongestWait = 256;     // milliseconds, twice the wait before it

WriteFailure KindOf(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY: return WriteFailure::NoSuchFolder;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT: return WriteFailure::NotAllowed;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kQuotaExceeded:
    case ERROR_FILE_TOO_LARGE: return WriteFailure::NoRoom;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS: return WriteFailure::Taken;
    default: return WriteFailure::Other;
  }
}

/// Virus scanners, indexers and the like have a file open for a moment that was just written.
template <typename Call>
bool Patiently(Call call) {
  for (DWORD wait = 1; !call(); wait *= 2) {
    const DWORD error = GetLastError();
    const bool passes =
        error == ERROR_ACCESS_DENIED || error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION;
    if (!passes || wait > kLongestWait) return false;
    Sleep(wait);
  }
  return true;
}

/// What the system has opened.
class Handle {
 public:
  explicit Handle(HANDLE handle = INVALID_HANDLE_VALUE) : handle_(handle) {}
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() { Close(); }
  HANDLE Get() const { return handle_; }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
  bool Open(const std::filesystem::path& file, DWORD access, DWORD share, DWORD how, DWORD flags = 0) {
    Close();
    handle_ = CreateFileW(file.c_str(), access, share, nullptr, how, flags, nullptr);
    return IsOpen();
  }
  bool Write(std::string_view bytes) {
    DWORD written = 0;
    return WriteFile(handle_, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) &&
           written == bytes.size();
  }
  bool Sync() { return FlushFileBuffers(handle_) && Close(); }
  bool Close() {
    const bool open = IsOpen();
    const HANDLE handle = std::exchange(handle_, INVALID_HANDLE_VALUE);
    return !open || CloseHandle(handle);
  }

 private:
  HANDLE handle_;
};

/// "NUL", "COM1" and their like, and where this system takes them for devices too, "C:\folder\NUL.obg".
bool IsDevice(const std::filesystem::path& target) {
  wchar_t whole[MAX_PATH] = {};
  GetFullPathNameW(target.c_str(), MAX_PATH, whole, nullptr);
  return std::wstring_view(whole).starts_with(LR"(\\.\)");
}

/// Places of a cloud are no links, although they are marked alike.
bool IsLink(const std::filesystem::path& path) {
  WIN32_FIND_DATAW found = {};
  const HANDLE search = FindFirstFileW(path.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return false;
  FindClose(search);
  return (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) && found.dwReserved0 == IO_REPARSE_TAG_SYMLINK;
}

}  // namespace

WriteFailure LastFailure() { return KindOf(GetLastError()); }

std::filesystem::path LinkTarget(std::filesystem::path path) {
  if (!IsLink(path)) return path;
  Handle file;
  if (!file.Open(path, 0, kShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS)) return {};
  std::wstring target(GetFinalPathNameByHandleW(file.Get(), nullptr, 0, 0), L'\0');
  target.resize(GetFinalPathNameByHandleW(file.Get(), target.data(), static_cast<DWORD>(target.size()), 0));
  return target;
}

struct OldFile {
  DWORD Attributes = 0;
  std::vector<std::byte> AccessList;  ///< who may do what with it
};

WriteFailure LookAt(const std::filesystem::path& target, OldFilePointer& old) {
  if (target.filename().empty()) return WriteFailure::NoSuchFolder;
  if (IsDevice(target)) return WriteFailure::NotAFile;
  OldFile file{GetFileAttributesW(target.c_str()), {}};
  if (file.Attributes == INVALID_FILE_ATTRIBUTES) {
    return GetLastError() == ERROR_FILE_NOT_FOUND ? WriteFailure::None : LastFailure();
  }
  if (file.Attributes & FILE_ATTRIBUTE_DIRECTORY) return WriteFailure::NotAFile;
  if (file.Attributes & FILE_ATTRIBUTE_READONLY) return WriteFailure::NotAllowed;
  const bool isOpen = Handle().Open(target, FILE_WRITE_DATA, kShareAll, OPEN_EXISTING);
  if (!isOpen && GetLastError() != ERROR_SHARING_VIOLATION) return LastFailure();
  DWORD size = 0;
  GetFileSecurityW(target.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  file.AccessList.resize(size);
  if (!GetFileSecurityW(target.c_str(), DACL_SECURITY_INFORMATION, file.AccessList.data(), size, &size)) {
    file.AccessList.clear();  // not every file system has one
  }
  old = std::make_shared<const OldFile>(std::move(file));
  return WriteFailure::None;
}

bool TakesNewFiles(const std::filesystem::path& folder) {
  return Handle().Open(folder, FILE_ADD_FILE, kShareAll, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS);
}

bool WriteOver(const std::filesystem::path& file, std::string_view bytes) {
  Handle there;
  return Patiently([&] { return there.Open(file, GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING); }) &&
         there.Write(bytes) && SetEndOfFile(there.Get()) && there.Sync();
}

struct NewFile::Handles {
  std::filesystem::path Folder, Path;
  Handle File;
  bool Exists = false;

  /// In one step on the disk, and down to it. ReplaceFileW keeps more of the old file, but knows moments without any.
  bool Rename(const std::filesystem::path& name, DWORD how) {
    const std::filesystem::path target = Folder / name;
    const bool done =
        Patiently([&] { return MoveFileExW(Path.c_str(), target.c_str(), how | MOVEFILE_WRITE_THROUGH); });
    Exists = Exists && !done;
    return done;
  }
};

NewFile::NewFile(const std::filesystem::path& folder) : own_(std::make_unique<Handles>()) { own_->Folder = folder; }

NewFile::~NewFile() {
  own_->File.Close();
  if (own_->Exists) DeleteFileW(own_->Path.c_str());
}

bool NewFile::Create(const std::string& name, const OldFile* old) {
  const DWORD attributes = old ? old->Attributes & kKeptAttributes : FILE_ATTRIBUTE_NORMAL;
  own_->Path = own_->Folder / name;
  own_->Exists = own_->File.Open(own_->Path, GENERIC_WRITE, 0, CREATE_NEW, attributes);
  return own_->Exists;
}

bool NewFile::Write(std::string_view bytes) { return own_->File.Write(bytes); }

/// As far as the user may: a disk of the network may keep its own rights.
bool NewFile::TakeRights(const OldFile& old) {
  if (old.AccessList.empty()) return true;
  std::vector<std::byte> list = old.AccessList;
  SetSecurityDescriptorControl(list.data(), SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
  SetFileSecurityW(own_->Path.c_str(), DACL_SECURITY_INFORMATION, list.data());
  return true;
}

bool NewFile::Sync() { return own_->File.Sync(); }

bool NewFile::PutInPlaceOf(const std::filesystem::path& name) { return own_->Rename(name, MOVEFILE_REPLACE_EXISTING); }

bool NewFile::PutUnder(const std::filesystem::path& name) { return own_->Rename(name, 0); }

/// The rename was down on the disk before it came back.
bool NewFile::SyncFolder() { return true; }

int OwnProcess() { return static_cast<int>(GetCurrentProcessId()); }

bool IsGone(int process) {
  const Handle found(OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, static_cast<DWORD>(process)));
  DWORD status = 0;
  if (!found.IsOpen()) return GetLastError() == ERROR_INVALID_PARAMETER;
  return GetExitCodeProcess(found.Get(), &status) && status != STILL_ACTIVE;
}

bool FitsInName(char character) { return std::string_view(R"(<>:"/\|?*)").find(character) == std::string_view::npos; }

}  // namespace storage::file_system
