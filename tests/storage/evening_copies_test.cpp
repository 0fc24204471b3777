// The folder of copies: names, the newest twenty, and what else may lie there.
#include "../../storage/evening_copies.h"

#include <gmock/gmock.h>

#include "temporary_folder.h"

namespace {

using testing::ElementsAre;

struct CopiesTest : tests::TemporaryFolder {
  storage::GameCopy Game(int day = 0) const {
    std::tm noon = {};
    noon.tm_year = 70, noon.tm_mday = 1 + day, noon.tm_hour = 12, noon.tm_isdst = -1;
    return {Folder / "copies", std::mktime(&noon)};
  }
};

TEST_F(CopiesTest, EachGameHasAFileOfItsOwnByDateTimeAndTitle) {
  storage::GameCopy one = Game(), other = Game();
  EXPECT_TRUE(one.Write("", "first"));
  EXPECT_TRUE(one.Write(" a/b\tc ", "second"));
  EXPECT_TRUE(other.Write(" a/b\tc", "of another program"));
  EXPECT_THAT(Names("copies"), ElementsAre("1970-01-01 12.00  a-b-c (2).obg", "1970-01-01 12.00  a-b-c.obg"));
  EXPECT_TRUE(one.Write(std::string(99, 'x') + "ü", "third"));
  EXPECT_THAT(Names("copies"),
              ElementsAre("1970-01-01 12.00  a-b-c (2).obg", "1970-01-01 12.00 " + std::string(99, 'x') + ".obg"));
  std::filesystem::remove_all(Folder / "copies");
  EXPECT_TRUE(one.Write(std::string(99, 'x') + "ü", "third")) << "the folder is made again";
}

TEST_F(CopiesTest, TheNewestTwentyStayAndWhatIsNoCopyToo) {
  const auto copies = Folder / "copies";
  std::filesystem::create_directories(copies / "2020-01-01 12.00 folder.obg");
  Put(copies / "notes.txt", "mine");
  Put(copies / "2020-01-01 mine.obg", "not named by the program");
  Put(copies / "2030-01-01 12.00.obg", "from a day when the clock was wrong");
  const auto age = [&](const std::filesystem::path& file, int hours) {
    last_write_time(file, std::filesystem::file_time_type::clock::now() + std::chrono::hours(hours));
  };
  age(copies / "2030-01-01 12.00.obg", 99999);
  for (int day = 1; day <= 30; ++day) {
    EXPECT_TRUE(Game(day).Write("", "x"));
    age(copies / ("1970-01-" + std::string(day < 9 ? "0" : "") + std::to_string(day + 1) + " 12.00.obg"), day - 99);
  }
  EXPECT_TRUE(Game().Write("oldest by its name", "x"));
  EXPECT_LE(last_write_time(copies / "2030-01-01 12.00.obg"), std::filesystem::file_time_type::clock::now());
  EXPECT_EQ(Names("copies").size(), 20U + 3);
  EXPECT_TRUE(Names("copies").contains("1970-01-01 12.00 oldest by its name.obg"));
  EXPECT_TRUE(Names("copies").contains("1970-01-31 12.00.obg") && !Names("copies").contains("1970-01-10 12.00.obg"));
}

}  // namespace
