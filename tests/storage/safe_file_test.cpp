// Writes that go well, that fail at every step, and that are killed in the middle: the old file or the new one is
// there.
#include "../../storage/safe_file.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <thread>

#include "temporary_folder.h"

namespace {

/// Calls of the system in their order, and what the next one of a name does instead.
struct System {
  std::vector<std::string> Calls;
  std::string Fails;  // the name of the call
  int After = 0;      // calls of it that still go well
  int Error = 0;
  std::size_t MostBytes = SIZE_MAX;  // taken by one write
} g_system;

bool Fails(const std::string& call) {
  g_system.Calls.push_back(call);
  if (call != g_system.Fails || g_system.After-- > 0) return false;
  g_system.Fails.clear();
  errno = g_system.Error;
  return true;
}

template <typename Function>
Function* Real(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool IsFolder(int file) {
  struct stat found {};
  return fstat(file, &found) == 0 && S_ISDIR(found.st_mode);
}

}  // namespace

// These stand before the system's own in this test program.
extern "C" ssize_t write(int file, const void* bytes, size_t size) {
  return Fails("write")
             ? -1
             : Real<ssize_t(int, const void*, size_t)>("write")(file, bytes, std::min(size, g_system.MostBytes));
}
extern "C" int fsync(int file) {
  return Fails(IsFolder(file) ? "sync folder" : "sync file") ? -1 : Real<int(int)>("fsync")(file);
}
extern "C" int renameat(int from, const char* name, int to, const char* newName) noexcept {
  return Fails("rename") ? -1 : Real<int(int, const char*, int, const char*)>("renameat")(from, name, to, newName);
}

namespace tests {
namespace {

using storage::WriteFailure;
using testing::ElementsAre;

class SafeFileTest : public TemporaryFolder {
 protected:
  SafeFileTest() { g_system = {}; }
  WriteFailure Save(const std::string& bytes) { return storage::WriteWhole(File, bytes).Failure; }
  mode_t Rights(const std::filesystem::path& path) {
    struct stat found {};
    stat(path.c_str(), &found);
    return found.st_mode & 07777;
  }
  std::filesystem::path File = Folder / "game.obg";
};

TEST_F(SafeFileTest, SyncsTheFileBeforeAndTheFolderAfterTheRename) {
  g_system.MostBytes = 4;
  EXPECT_EQ(Save("eleven byte"), WriteFailure::None);
  EXPECT_THAT(g_system.Calls, ElementsAre("write", "write", "write", "sync file", "rename", "sync folder"));
  EXPECT_EQ(Bytes(File), "eleven byte");
  EXPECT_THAT(Names(), ElementsAre("game.obg"));
}

TEST_F(SafeFileTest, AFailureAtAnyStepLeavesTheOldFileAndNothingElse) {
  struct Case {
    const char* Step;
    int After, Error;
    WriteFailure Failure;
    const char* Left;
  };
  const Case cases[] = {{"write", 0, ENOSPC, WriteFailure::NoRoom, "old"},
                        {"write", 1, EDQUOT, WriteFailure::NoRoom, "old"},
                        {"write", 0, EINTR, WriteFailure::None, "new bytes"},
                        {"write", 2, EINTR, WriteFailure::None, "new bytes"},
                        {"sync file", 0, EIO, WriteFailure::Other, "old"},
                        {"sync file", 0, EINTR, WriteFailure::None, "new bytes"},
                        {"rename", 0, EPERM, WriteFailure::NotAllowed, "old"},
                        {"sync folder", 0, EIO, WriteFailure::Other, "new bytes"},
                        {"sync folder", 0, EINVAL, WriteFailure::None, "new bytes"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.Step) + ": " + std::strerror(c.Error));
    Put(File, "old");
    g_system = {{}, c.Step, c.After, c.Error, 4};
    EXPECT_EQ(Save("new bytes"), c.Failure);
    EXPECT_EQ(Bytes(File), c.Left);
    EXPECT_THAT(Names(), ElementsAre("game.obg"));
  }
}

TEST_F(SafeFileTest, ADiskThatIsFullAfterAnyNumberOfBytes) {
  const std::string bytes(20000, 'n');
  signal(SIGXFSZ, SIG_IGN);
  rlimit unlimited{};
  getrlimit(RLIMIT_FSIZE, &unlimited);
  for (rlim_t room = 0; room <= bytes.size(); room += room < 8 ? 1 : 1999) {
    Put(File, "old");
    const rlimit limit{room, unlimited.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    const WriteFailure failure = Save(bytes);
    setrlimit(RLIMIT_FSIZE, &unlimited);
    EXPECT_EQ(failure, WriteFailure::NoRoom);
    EXPECT_EQ(Bytes(File), "old") << room;
    EXPECT_THAT(Names(), ElementsAre("game.obg"));
  }
}

TEST_F(SafeFileTest, PlacesThatCannotBeWritten) {
  Put(File, "old");
  std::filesystem::create_directory(Folder / "folder");
  std::filesystem::create_symlink("circle", Folder / "circle");
  const struct {
    std::filesystem::path Path;
    WriteFailure Failure;
  } cases[] = {{"", WriteFailure::NoSuchFolder},
               {Folder / "gone/x", WriteFailure::NoSuchFolder},
               {File / "x", WriteFailure::NoSuchFolder},
               {Folder / "folder", WriteFailure::NotAFile},
               {Folder / "folder/", WriteFailure::NoSuchFolder},
               {Folder / "circle", WriteFailure::NoSuchFolder},
               {"/dev/full", WriteFailure::NotAFile},
               {"/proc/new.obg", WriteFailure::NoSuchFolder},
               {Folder / std::string(300, 'x'), WriteFailure::Other}};
  for (const auto& c : cases) {
    EXPECT_EQ(storage::WriteWhole(c.Path, "x").Failure, c.Failure) << c.Path;
  }
  EXPECT_THAT(Names(), ElementsAre("circle", "folder", "game.obg"));
}

TEST_F(SafeFileTest, FollowsLinksAndKeepsRights) {
  std::filesystem::create_directory(Folder / "far");
  const auto target = Folder / "far/target";
  std::filesystem::create_symlink("far/target", Folder / "link");
  std::filesystem::create_symlink(Folder / "link", File);
  EXPECT_EQ(Save("through a dangling link"), WriteFailure::None);
  EXPECT_EQ(Bytes(target), "through a dangling link");
  for (const mode_t rights : {0600U, 0644U, 0666U, 0755U}) {
    chmod(target.c_str(), rights);
    EXPECT_EQ(Save("new"), WriteFailure::None);
    EXPECT_EQ(Rights(target), rights);
  }
  EXPECT_TRUE(std::filesystem::is_symlink(File) && std::filesystem::is_symlink(Folder / "link"));
  EXPECT_THAT(Names("far"), ElementsAre("target"));
  const mode_t mask = umask(027);
  storage::WriteWhole(Folder / "fresh", "x");
  umask(mask);
  EXPECT_EQ(Rights(Folder / "fresh"), 0640U);
}

TEST_F(SafeFileTest, AStrangersLeftoverIsNotTouched) {
  const auto leftover = Folder / (".orvanbeg-" + std::to_string(getpid()) + "-0.new");
  Put(leftover, "left");
  EXPECT_EQ(Save("new"), WriteFailure::None);
  EXPECT_EQ(Bytes(leftover), "left");
}

TEST_F(SafeFileTest, KilledAtAnyMomentOneWholeFileIsThere) {
  const std::string versions[] = {std::string(300'000, 'a'), std::string(50, 'b')};
  Put(File, versions[0]);
  for (int round = 0; round < 30; ++round) {
    const pid_t child = fork();
    if (child == 0) {
      for (int i = 0;; ++i) storage::WriteWhole(File, versions[i % 2]);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(500 + (round * 7919) % 20'000));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_THAT(Bytes(File), testing::AnyOfArray(versions)) << round;
  }
}

}  // namespace
}  // namespace tests
