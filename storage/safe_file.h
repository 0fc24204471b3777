// Puts a whole file on the disk so that at every moment, whatever happens, either the old file or the new one is there,
// never a part of one.
#pragma once

#include <filesystem>
#include <string_view>

namespace storage {

/// Why a file could not be written, as far as a user can do something about it.
enum class WriteFailure {
  None,
  NoSuchFolder,
  NotAFile,    ///< a folder or a device bears the name
  NotAllowed,  ///< by the rights of the file or the folder, or the disk is read-only
  NoRoom,
  Taken,  ///< by another file, for a write that replaces none
  Other,
};

struct [[nodiscard]] WriteOutcome {
  WriteFailure Failure = WriteFailure::None;

  explicit operator bool() const { return Failure == WriteFailure::None; }
};

/// Writes a new file beside the old one and puts it in its place once all bytes are safe on the disk; the old file's
/// rights are kept, a link is followed. Success means that all of this is done. After a failure the old file is
/// whole and nothing else is left, with one exception: where only the folder could not be synced at the very end, the
/// new file is in place. What a process that was killed in the middle of this has left in the folder is removed.
WriteOutcome WriteWhole(const std::filesystem::path& file, std::string_view bytes);

/// The same under a name that nothing bears yet, else the failure is `Taken`, also where two processes try at once.
WriteOutcome WriteNew(const std::filesystem::path& file, std::string_view bytes);

/// Writes over the bytes of a file that is there, for a folder in which no new one can be made. Killed in the middle it
/// leaves neither the old nor the new bytes.
WriteOutcome WriteInPlace(const std::filesystem::path& file, std::string_view bytes);

/// Whether WriteWhole may put a file there, as far as can be known without writing. A disk with a fault forbids
/// nothing: only the write shows it.
bool CanWriteWhole(const std::filesystem::path& file);

/// Whether WriteInPlace may write there.
bool CanWriteInPlace(const std::filesystem::path& file);

}  // namespace storage
