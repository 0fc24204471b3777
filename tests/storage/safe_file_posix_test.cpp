// Writes that fail or are killed at every call of the system: the old file or the new one is there.
#include "../../storage/safe_file.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../../storage/evening_copies.h"
#include "temporary_folder.h"

namespace {

constexpr int kKilled = -1;

/// Calls of the system in their order, and what the next ones of some names do instead.
struct System {
  std::vector<std::string> Calls;
  std::map<std::string, int> Errors;  // by the name of the call; kKilled: the process ends there
  std::chrono::milliseconds SyncTakes{0};
} g_system;

bool Fails(const std::string& call) {
  g_system.Calls.push_back(call);
  const auto error = g_system.Errors.find(call);
  if (error == g_system.Errors.end()) return false;
  if (error->second == kKilled) raise(SIGKILL);
  errno = error->second;
  g_system.Errors.erase(call);
  return true;
}

template <typename Function>
Function* Real(Function*, const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

// These stand before the system's own in this test program; four bytes are all that one write takes.
extern "C" ssize_t write(int file, const void* bytes, size_t size) {
  return Fails("write") ? -1 : Real(write, "write")(file, bytes, std::min<size_t>(size, 4));
}
extern "C" ssize_t read(int file, void* bytes, size_t size) {
  return Fails("read") ? -1 : Real(read, "read")(file, bytes, size);
}
extern "C" int fsync(int file) {
  std::this_thread::sleep_for(g_system.SyncTakes);
  return Fails(fcntl(file, F_GETFL) & O_DIRECTORY ? "sync folder" : "sync file") ? -1 : Real(fsync, "fsync")(file);
}
extern "C" int renameat(int from, const char* name, int to, const char* newName) noexcept {
  return Fails("rename") ? -1 : Real(renameat, "renameat")(from, name, to, newName);
}

namespace {

using storage::WriteFailure;
using testing::ElementsAre;

struct SafeFilePosixTest : tests::TemporaryFolder {
  SafeFilePosixTest() { g_system = {}; }
  WriteFailure Save(const std::string& bytes, const std::string& name = "game.obg") {
    return storage::WriteWhole(Folder / name, bytes).Failure;
  }
  std::filesystem::path File = Folder / "game.obg";
};

TEST_F(SafeFilePosixTest, AFailureOrAKillAtAnyStepLeavesOneWholeFileAndNothingElse) {
  const std::string leftover = ".orvanbeg-" + std::to_string(getpid()) + "-0.new";  // a stranger's
  Put(Folder / leftover, "left");
  using enum WriteFailure;
  const std::tuple<const char*, int, WriteFailure, const char*> cases[] = {
      {"write", kKilled, None, "old"},      {"write", ENOSPC, NoRoom, "old"},      {"write", EDQUOT, NoRoom, "old"},
      {"write", EFBIG, NoRoom, "old"},      {"write", EINTR, None, "new"},         {"sync file", kKilled, None, "old"},
      {"sync file", EIO, Other, "old"},     {"sync file", EINTR, None, "new"},     {"rename", kKilled, None, "old"},
      {"rename", EPERM, NotAllowed, "old"}, {"sync folder", kKilled, None, "new"}, {"sync folder", EIO, Other, "new"},
      {"sync folder", EINVAL, None, "new"}};
  for (const auto& [step, error, failure, left] : cases) {
    SCOPED_TRACE(step + std::string(" with error ") + std::to_string(error));
    Put(File, "old");
    g_system.Errors = {{step, error}};
    if (error == kKilled) {
      EXPECT_EXIT(Save("new"), testing::KilledBySignal(SIGKILL), "");
    } else {
      EXPECT_EQ(Save("new"), failure);
    }
    g_system = {};
    EXPECT_EQ(Bytes(File), left);
  }
  g_system = {};
  EXPECT_EQ(Save("eleven byte"), WriteFailure::None);
  EXPECT_THAT(g_system.Calls, ElementsAre("write", "write", "write", "sync file", "rename", "sync folder"));
  EXPECT_EQ(Bytes(File) + Bytes(Folder / leftover), "eleven byteleft");
  EXPECT_THAT(Names(), ElementsAre(leftover, "game.obg")) << "what the killed ones left is gone";
}

TEST_F(SafeFilePosixTest, AFileInAFolderThatTakesNoNewOneIsWrittenInPlaceOnceItsOldBytesAreKept) {
  for (const std::string obstacle : {"read", "sync folder", ""}) {
    Put(File, "old bytes");
    g_system.Errors = {{"rename", EACCES}, {obstacle, EIO}};
    const WriteFailure failure = storage::WriteGame(File, "new", Folder / "copies").Failure;
    g_system = {};
    EXPECT_EQ(failure, obstacle.empty() ? WriteFailure::None : WriteFailure::NotAllowed) << obstacle;
    EXPECT_EQ(Bytes(File), obstacle.empty() ? "new" : "old bytes") << obstacle;
  }
  EXPECT_THAT(*Names("copies").rbegin(), testing::HasSubstr(" game"));
  EXPECT_EQ(Bytes(Folder / "copies" / *Names("copies").rbegin()), "old bytes");
}

TEST_F(SafeFilePosixTest, OnlyTheNewestOfEachGameIsWrittenBesideTheWindow) {
  using namespace std::chrono_literals;
  const auto first = std::make_shared<storage::GameCopy>(Folder, 0);
  const auto second = std::make_shared<storage::GameCopy>(Folder, 86400);
  g_system = {{}, {{"sync file", EIO}}, 50ms};
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
    alarm(3);
    std::make_unique<storage::CopyWriter>()->Put(first, "", "x");
    _exit(0);
  };
  g_system.SyncTakes = 1h;
  EXPECT_EXIT(onAHangingDisk(), testing::ExitedWithCode(0), "");
}

TEST_F(SafeFilePosixTest, FollowsLinksAndKeepsRightsAndLetsBeWhatIsNoNameOfAFile) {
  std::filesystem::create_symlink("circle", Folder / "circle");
  mkfifo((Folder / "pipe").c_str(), 0600);
  EXPECT_EQ(Save("x", "circle"), WriteFailure::NoSuchFolder);
  EXPECT_EQ(Save("x", "pipe"), WriteFailure::NotAFile);
  EXPECT_EQ(Save("x", std::string(300, 'x')), WriteFailure::Other);
  std::filesystem::create_directory(Folder / "far");
  const auto target = Folder / "far/target";
  std::filesystem::create_symlink("far/target", Folder / "link");
  std::filesystem::create_symlink(Folder / "link", File);
  EXPECT_EQ(Save("through a dangling link"), WriteFailure::None);
  EXPECT_EQ(Bytes(target), "through a dangling link");
  const bool ofAnother = geteuid() == 0 && chown(target.c_str(), 1234, 1235) == 0;  // a superuser may save it
  chmod(target.c_str(), 0717);
  EXPECT_EQ(Save("new"), WriteFailure::None);
  struct stat found = {};
  EXPECT_TRUE(stat(target.c_str(), &found) == 0 && (found.st_mode & 0777) == 0717);
  EXPECT_TRUE(!ofAnother || (found.st_uid == 1234 && found.st_gid == 1235));
  const mode_t mask = umask(027);
  Save("x", "fresh");
  umask(mask);
  EXPECT_EQ(std::filesystem::status(Folder / "fresh").permissions(), std::filesystem::perms(0640));
  EXPECT_THAT(Names(), ElementsAre("circle", "far", "fresh", "game.obg", "link", "pipe"));
  EXPECT_THAT(Names("far"), ElementsAre("target"));
}

}  // namespace
