// What Windows has of its own: attributes, devices, files that others have open.
#include <gmock/gmock.h>
#include <windows.h>

#include <thread>

#include "../../storage/evening_copies.h"
#include "temporary_folder.h"

namespace {

using storage::WriteFailure;

struct SafeFileWinTest : tests::TemporaryFolder {
  WriteFailure Save(const char* name) { return storage::WriteWhole(Folder / name, "new").Failure; }
};

TEST_F(SafeFileWinTest, AttributesForbidOrAreKept) {
  const auto file = (Folder / "game.obg").wstring();
  Put(file, "old");
  SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(Save("game.obg"), WriteFailure::NotAllowed);
  EXPECT_FALSE(storage::CanWriteInPlace(file));
  SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN);
  EXPECT_EQ(Save("game.obg"), WriteFailure::None);
  EXPECT_EQ(Bytes(file), "new");
  EXPECT_TRUE(GetFileAttributesW(file.c_str()) & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(SafeFileWinTest, NoDeviceIsWrittenAndNoNameIsForbidden) {
  for (const char* name : {"NUL", "COM1"}) EXPECT_EQ(storage::WriteWhole(name, "x").Failure, WriteFailure::NotAFile);
  EXPECT_TRUE(storage::GameCopy(Folder, 86400).Write("<a>:\"b\"\\c|?*", "x"));
  EXPECT_THAT(Names(), testing::ElementsAre(testing::EndsWith(" -a---b--c---.obg")));
}

TEST_F(SafeFileWinTest, AFileThatIsOpenElsewhereForAMomentIsWaitedFor) {
  Put(Folder / "game.obg", "old");
  Put(Folder / ".orvanbeg-2147483600-0.new", "of a process that is gone");
  const std::pair<DWORD, WriteFailure> cases[] = {{2000, WriteFailure::NotAllowed}, {100, WriteFailure::None}};
  for (const auto& [milliseconds, failure] : cases) {  // another program lets nobody else have it for so long
    const HANDLE held = CreateFileW((Folder / "game.obg").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    const std::jthread other([held, time = milliseconds] { Sleep(time), CloseHandle(held); });
    EXPECT_EQ(Save("game.obg"), failure);
  }
  EXPECT_EQ(Bytes(Folder / "game.obg"), "new");
  EXPECT_THAT(Names(), testing::ElementsAre("game.obg"));
}

}  // namespace
