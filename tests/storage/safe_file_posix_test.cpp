// Writes that fail or are killed at every call of the system: the old file or the new one is there.
#include "../../storage/safe_file.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "../../storage/evening_copies.h"
#include "temporary_folder.h"

namespace {

constexpr int kKilled = -1;

/// Calls of the system in their order, and what the next one of a name does instead.
struct System {
  std::vector<std::string> Calls;
  std::string Fails;                 // the name of the call
  int After = 0;                     // calls of it that still go well
  int Error = 0;                     // kKilled: the process ends there
  std::size_t MostBytes = SIZE_MAX;  // taken by one write
  std::chrono::milliseconds SyncTakes{0};
  bool ReadsFail = false;
} g_system;

bool Fails(const std::string& call) {
  g_system.Calls.push_back(call);
  if (call != g_system.Fails || g_system.After-- > 0) return false;
  if (g_system.Error == kKilled) raise(SIGKILL);
  g_system.Fails.clear();
  errno = g_system.Error;
  return true;
}

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsFolder(int file) {
  struct stat found = {};
  return fstat(file, &found) == 0 && S_ISDIR(found.st_mode);
}

}  // namespace

// These stand before the system's own in this test program.
extern "C" ssize_t write(int file, const void* bytes, size_t size) {
  return Fails("write")
             ? -1
             : Real<ssize_t(int, const void*, size_t)>("write")(file, bytes, std::min(size, g_system.MostBytes));
}
extern "C" ssize_t read(int file, void* bytes, size_t size) {
  if (!g_system.ReadsFail) return Real<ssize_t(int, void*, size_t)>("read")(file, bytes, size);
  errno = EIO;
  return -1;
}
extern "C" int fsync(int file) {
  std::this_thread::sleep_for(g_system.SyncTakes);
  return Fails(IsFolder(file) ? "sync folder" : "sync file") ? -1 : Real<int(int)>("fsync")(file);
}
extern "C" int renameat(int from, const char* name, int to, const char* newName) noexcept {
  return Fails("rename") ? -1 : Real<int(int, const char*, int, const char*)>("renameat")(from, name, to, newName);
}

namespace tests {
namespace {

using storage::WriteFailure;
using testing::ElementsAre;

class SafeFilePosixTest : public TemporaryFolder {
 protected:
  SafeFilePosixTest() { g_system = {}; }
  WriteFailure Save(const std::string& bytes) { return storage::WriteWhole(File, bytes).Failure; }
  mode_t Rights(const std::filesystem::path& path) {
    return static_cast<mode_t>(std::filesystem::status(path).permissions());
  }
  std::filesystem::path File = Folder / "game.obg";
};

TEST_F(SafeFilePosixTest, SyncsTheFileBeforeAndTheFolderAfterTheRenameAndTouchesNoStrangersLeftover) {
  const std::string leftover = ".orvanbeg-" + std::to_string(getpid()) + "-0.new";
  Put(Folder / leftover, "left");
  g_system = {};
  g_system.MostBytes = 4;
  EXPECT_EQ(Save("eleven byte"), WriteFailure::None);
  EXPECT_THAT(g_system.Calls, ElementsAre("write", "write", "write", "sync file", "rename", "sync folder"));
  EXPECT_EQ(Bytes(File) + Bytes(Folder / leftover), "eleven byteleft");
  EXPECT_THAT(Names(), ElementsAre(leftover, "game.obg"));
}

TEST_F(SafeFilePosixTest, AFailureAtAnyStepLeavesTheOldFileAndNothingElse) {
  using enum WriteFailure;
  const std::tuple<const char*, int, int, WriteFailure, const char*> cases[] = {
      {"write", 0, ENOSPC, NoRoom, "old"},          {"write", 1, EDQUOT, NoRoom, "old"},
      {"write", 2, EFBIG, NoRoom, "old"},           {"write", 2, EINTR, None, "new bytes"},
      {"sync file", 0, EIO, Other, "old"},          {"sync file", 0, EINTR, None, "new bytes"},
      {"rename", 0, EPERM, NotAllowed, "old"},      {"sync folder", 0, EIO, Other, "new bytes"},
      {"sync folder", 0, EINVAL, None, "new bytes"}};
  for (const auto& [step, after, error, failure, left] : cases) {
    SCOPED_TRACE(step + std::string(" with error ") + std::to_string(error));
    Put(File, "old");
    g_system = {{}, step, after, error, 4};
    EXPECT_EQ(Save("new bytes"), failure);
    EXPECT_EQ(Bytes(File), left);
    EXPECT_THAT(Names(), ElementsAre("game.obg"));
  }
}

TEST_F(SafeFilePosixTest, KilledAtAnyStepOneWholeFileIsThere) {
  for (const char* step : {"write", "sync file", "rename", "sync folder"}) {
    Put(File, "old");
    const pid_t child = fork();
    if (child == 0) {
      g_system = {{}, step, 0, kKilled, 4};
      Save("new bytes");
    }
    waitpid(child, nullptr, 0);
    EXPECT_EQ(Bytes(File), step == std::string("sync folder") ? "new bytes" : "old") << step;
  }
  Save("next");
  EXPECT_THAT(Names(), ElementsAre("game.obg")) << "what the killed ones left is gone";
}

TEST_F(SafeFilePosixTest, AFileInAFolderThatTakesNoNewOneIsWrittenInPlaceOnceItsOldBytesAreKept) {
  const auto copies = Folder / "copies";
  for (const std::string obstacle : {"read", "folder", ""}) {
    Put(File, "old bytes");
    std::filesystem::remove(copies);
    if (obstacle == "folder") Put(copies, "no folder");
    g_system = {{}, "rename", 0, EACCES};
    g_system.ReadsFail = obstacle == "read";
    const WriteFailure failure = storage::WriteGame(File, "new", copies).Failure;
    g_system = {};
    EXPECT_EQ(failure, obstacle.empty() ? WriteFailure::None : WriteFailure::NotAllowed) << obstacle;
    EXPECT_EQ(Bytes(File), obstacle.empty() ? "new" : "old bytes") << obstacle;
  }
  EXPECT_EQ(Bytes(copies / *Names("copies").begin()), "old bytes");
  EXPECT_THAT(*Names("copies").begin(), testing::EndsWith(" game.obg"));
}

TEST_F(SafeFilePosixTest, OnlyTheNewestOfEachGameIsWrittenBesideTheWindow) {
  using namespace std::chrono_literals;
  const auto copy = [this](std::time_t begun) { return std::make_shared<storage::GameCopy>(Folder, begun); };
  const auto first = copy(0), second = copy(86400);
  g_system = {{}, "sync file", 0, EIO};
  g_system.SyncTakes = 50ms;
  {
    storage::CopyWriter writer;
    writer.Put(first, "", "never seen");
    std::this_thread::sleep_for(20ms);
    for (int i = 0; i < 100; ++i) writer.Put(first, "", std::to_string(i)), writer.Put(second, "", "other");
  }
  EXPECT_EQ(std::ranges::count(g_system.Calls, "sync file"), 3) << "the first fails and holds nothing up";
  ASSERT_EQ(Names().size(), 2U);
  EXPECT_EQ(Bytes(Folder / *Names().begin()) + Bytes(Folder / *Names().rbegin()), "99other");
  const auto onAHangingDisk = [&] {
    g_system.SyncTakes = 1h;
    const auto begun = std::chrono::steady_clock::now();
    std::make_unique<storage::CopyWriter>()->Put(first, "", "x");
    _exit(std::chrono::steady_clock::now() - begun < 3s ? 0 : 1);
  };
  EXPECT_EXIT(onAHangingDisk(), testing::ExitedWithCode(0), "");
}

TEST_F(SafeFilePosixTest, WhatIsNoNameOfAFileIsLetBe) {
  std::filesystem::create_symlink("circle", Folder / "circle");
  mkfifo((Folder / "pipe").c_str(), 0600);
  EXPECT_EQ(storage::WriteWhole(Folder / "circle", "x").Failure, WriteFailure::NoSuchFolder);
  EXPECT_EQ(storage::WriteWhole(Folder / "pipe", "x").Failure, WriteFailure::NotAFile);
  EXPECT_EQ(storage::WriteWhole(Folder / std::string(300, 'x'), "x").Failure, WriteFailure::Other);
  EXPECT_THAT(Names(), ElementsAre("circle", "pipe"));
}

TEST_F(SafeFilePosixTest, FollowsLinksAndKeepsRights) {
  std::filesystem::create_directory(Folder / "far");
  const auto target = Folder / "far/target";
  std::filesystem::create_symlink("far/target", Folder / "link");
  std::filesystem::create_symlink(Folder / "link", File);
  EXPECT_EQ(Save("through a dangling link"), WriteFailure::None);
  EXPECT_EQ(Bytes(target), "through a dangling link");
  for (const mode_t rights : {0600U, 0666U, 0755U}) {
    chmod(target.c_str(), rights);
    EXPECT_EQ(Save("new"), WriteFailure::None);
    EXPECT_EQ(Rights(target), rights);
  }
  struct stat found = {};
  if (geteuid() == 0 && chown(target.c_str(), 1234, 1235) == 0) {  // a superuser saves what is another's
    Save("newer");
    EXPECT_TRUE(stat(target.c_str(), &found) == 0 && found.st_uid == 1234 && found.st_gid == 1235);
  }
  EXPECT_TRUE(std::filesystem::is_symlink(File) && std::filesystem::is_symlink(Folder / "link"));
  EXPECT_THAT(Names("far"), ElementsAre("target"));
  const mode_t mask = umask(027);
  EXPECT_TRUE(storage::WriteWhole(Folder / "fresh", "x"));
  umask(mask);
  EXPECT_EQ(Rights(Folder / "fresh"), 0640U);
}

}  // namespace
}  // namespace tests
