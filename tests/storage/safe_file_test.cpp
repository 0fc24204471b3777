// Writes as each system has to do them.
#include "../../storage/safe_file.h"

#include <gmock/gmock.h>

#include "temporary_folder.h"

namespace {

using SafeFileTest = tests::TemporaryFolder;

TEST_F(SafeFileTest, WritesWholeAnewAndInPlaceUnderNamesOfAnyLanguage) {
  const auto file = Folder / storage::PathOf("Żółw я ü.obg");
  EXPECT_EQ(storage::WriteInPlace(file, "x").Failure, storage::WriteFailure::NoSuchFolder) << "no file";
  EXPECT_TRUE(storage::WriteNew(file, "first"));
  EXPECT_EQ(storage::WriteNew(file, "x").Failure, storage::WriteFailure::Taken);
  EXPECT_TRUE(storage::CanWriteWhole(file) && storage::WriteWhole(file, "second"));
  EXPECT_EQ(Bytes(file), "second");
  EXPECT_TRUE(storage::CanWriteInPlace(file) && storage::WriteInPlace(file, "third"));
  EXPECT_EQ(Bytes(file), "third");
  EXPECT_THAT(Names(), testing::ElementsAre("Żółw я ü.obg"));
}

TEST_F(SafeFileTest, PlacesThatCannotBeWritten) {
  Put(Folder / "file", "old");
  create_directory(Folder / "folder");
  using enum storage::WriteFailure;
  const std::pair<const char*, storage::WriteFailure> cases[] = {
      {"gone/x", NoSuchFolder}, {"file/x", NoSuchFolder}, {"", NoSuchFolder}, {"folder", NotAFile}};
  for (const auto& [name, failure] : cases) EXPECT_EQ(storage::WriteWhole(Folder / name, "x").Failure, failure) << name;
  EXPECT_EQ(storage::WriteWhole("", "x").Failure, NoSuchFolder);
  EXPECT_THAT(Names(), testing::ElementsAre("file", "folder"));
}

}  // namespace
