// The pictures of a theme on the main window, and what a missing one leaves.
#include "../../mainwindow/themes.h"

#include "../main_window_fixture.h"

namespace tests {
namespace {

using Names = std::vector<std::string>;

struct ThemesTest : MainWindowTest {
  /// Loads a theme; tells what is seen then, in the order in which the pictures are loaded.
  Names Load(int theme, bool whole = true) {
    mainwindow::F1& F1 = window.F1;
    EXPECT_EQ(mainwindow::LoadThemeImages(theme, window.State.settings, services, F1), whole);
    Names names{F1.Image.Get().Name, F1.picW.Image.Get().Name};
    for (int i = 0; i < 6; ++i) names.push_back(F1.picSP(i).Image.Get().Name);
    names.push_back(F1.picInfoLine.Image.Get().Name);
    return names;
  }
  static Names Theme(const std::string& prefix) {
    Names names;
    for (const char* part : {"_back", "_picw", "_s1", "_s2", "_s3_high", "_s4", "_s5", "_s6", "_last6"}) {
      names.push_back("img/" + prefix + part + ".jpg");
    }
    return names;
  }
};

TEST_F(ThemesTest, OnlyTheThreeThemesChangeAnything) {
  const std::tuple<int, int, const char*> cases[] = {{2, 2, "bw"},  {0, 2, "bw"},   {4, 2, "bw"},
                                                     {3, 3, "flo"}, {-1, 3, "flo"}, {1, 1, "basis"}};
  for (const auto& [theme, chosen, prefix] : cases) {
    EXPECT_EQ(Load(theme), Theme(prefix)) << theme;
    EXPECT_EQ(window.State.settings.HG, chosen) << theme;
  }
}

TEST_F(ThemesTest, MissingPictureStopsThereWithTheThemeChosen) {
  for (std::size_t missing = 0; missing < 9; ++missing) {
    services.MissingPictures.clear();
    Names expected = Load(1);
    const Names wanted = Theme("bw");
    std::copy_n(wanted.begin(), missing, expected.begin());
    services.MissingPictures = {wanted[missing]};
    EXPECT_EQ(Load(2, false), expected) << wanted[missing];
    EXPECT_EQ(window.State.settings.HG, 2);
  }
}

}  // namespace
}  // namespace tests
