// Where files stand: beside a program that was unpacked somewhere, in the user's folders for an installed one.
#include "../../storage/places.h"

#include "../../core/game_state.h"
#include "../../storage/settings_file.h"
#include "../../storage/view_file.h"
#include "temporary_folder.h"

namespace {

struct PlacesTest : tests::TemporaryFolder {
  storage::Places Now() const { return {program, configuration, Folder / "documents"}; }

  const std::filesystem::path program = Folder / "bin", configuration = Folder / "configuration";
  const std::filesystem::path own = configuration / "orvanbeg";
};

TEST_F(PlacesTest, AllRunsFindTheSameSettings) {
  const auto beside = program / "orvanbeg.ini", elsewhere = own / "orvanbeg.ini";
  EXPECT_EQ(Now().SettingsFile(), elsewhere) << "the program's folder cannot be written";
  EXPECT_TRUE(storage::WriteSettings(elsewhere, {}));
  std::filesystem::create_directory(program);
  EXPECT_EQ(Now().SettingsFile(), elsewhere) << "where it was written before";
  EXPECT_TRUE(storage::WriteSettings(beside, {}));
  EXPECT_EQ(Bytes(beside), storage::SettingsText({}));
  EXPECT_EQ(Now().SettingsFile(), beside);
  std::filesystem::remove_all(configuration);
  std::filesystem::remove(beside);
  EXPECT_EQ(Now().SettingsFile(), beside);
}

TEST_F(PlacesTest, AnInstalledProgramWritesNothingBesideItAndTakesTheUsersLanguageFirst) {
  const auto files = Folder / "share/orvanbeg", ownLanguage = own / "language.ini";
  for (const auto& folder : {program, files, own}) std::filesystem::create_directories(folder);
  EXPECT_EQ(Now().ProgramFiles(), files);
  EXPECT_EQ(Now().LanguageFile(), files / "language.ini");
  EXPECT_EQ(Now().SettingsFile(), own / "orvanbeg.ini") << "although the others could be written";
  EXPECT_EQ(Now().SettingsToRead(), files / "orvanbeg.ini") << "for all users, as long as this one has none";
  EXPECT_EQ(Now().FirstFolder(), Folder / "documents");
  std::filesystem::create_directory(ownLanguage);
  EXPECT_EQ(Now().LanguageFile(), ownLanguage) << "the user is told that it cannot be read";
  Put(program / "language.ini", "");
  EXPECT_EQ(Now().LanguageFile(), program / "language.ini") << "not installed";
  EXPECT_EQ(Now().FirstFolder(), program);
}

TEST_F(PlacesTest, TheSizeOfTheWindowsIsKept) {
  EXPECT_EQ(storage::ReadViewSize(Now().ViewFile()), 100) << "no file";
  EXPECT_TRUE(storage::WriteViewSize(Now().ViewFile(), 150));
  EXPECT_EQ(Bytes(Now().ViewFile()), "150\r\n");
  EXPECT_EQ(storage::ReadViewSize(Now().ViewFile()), 150);
  for (const char* text : {"", "x", "0", "1001", "99999999999"}) {
    Put(Now().ViewFile(), text);
    EXPECT_EQ(storage::ReadViewSize(Now().ViewFile()), 100) << text;
  }
}

}  // namespace
