// What setting a property brings about, from code as from the user's hand; drawing steps and image lists.
#include <gmock/gmock.h>

#include "../../platform/desktop.h"
#include "../keyboard.h"

namespace tests {
namespace {

using namespace platform;
using testing::ElementsAre;

constexpr Place kPlace{0, 0, 300, 300};

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() { form.Visible = true; }
  std::function<void()> Count(int& counter) {
    return [&counter] { ++counter; };
  }
  Desktop desktop;
  Form form{desktop, "form", 3000, 3000};
};

TEST_F(ControlsTest, CheckBoxClicksWhereItsValueChanges) {
  CheckBox cbx(&form, "cbx", kPlace);
  int clicks = 0;
  cbx.Click = Count(clicks);
  cbx.Value = 0;
  EXPECT_EQ(clicks, 0);
  cbx.Value = 1;
  cbx.Value = 1;
  EXPECT_EQ(clicks, 1);
  Click(cbx);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(cbx.Value, 0);
}

TEST_F(ControlsTest, OneOptionOfAContainerIsSet) {
  Frame frame(&form, "frame", kPlace);
  OptionButton a(&frame, "a", kPlace), b(&frame, "b", kPlace), elsewhere(&form, "elsewhere", kPlace);
  int clicks = 0;
  a.Click = b.Click = Count(clicks);
  elsewhere.Value = true;
  a.Value = true;
  Click(b);
  Click(b);
  EXPECT_THAT((std::vector{a.Value.Get(), b.Value.Get(), elsewhere.Value.Get()}), ElementsAre(false, true, true));
  EXPECT_EQ(clicks, 2);
}

TEST_F(ControlsTest, TextTellsOfChangesOnly) {
  TextBox txt(&form, "txt", kPlace);
  int changes = 0;
  txt.Change = Count(changes);
  txt.Text = "7";
  form.Type(txt, "7");
  form.Type(txt, "71");
  txt.ReadOnly = true;
  form.Type(txt, "712");
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(txt.Text.Get(), "71");
}

TEST_F(ControlsTest, ComboBoxPicksEntriesAndTakesText) {
  ComboBox combo(&form, "combo", kPlace);
  std::vector<std::string> log;
  combo.Change = [&] { log.push_back("change " + combo.Text.Get()); };
  combo.Click = [&] { log.push_back("click " + std::to_string(combo.ListIndex)); };
  for (const char* item : {"a", "b"}) combo.AddItem(item);
  for (const int index : {1, 2, -1}) form.Pick(combo, index);
  form.Type(combo, "a");
  combo.Clear();
  EXPECT_THAT(log, ElementsAre("change b", "click 1", "change a", "change "));
  EXPECT_TRUE(combo.List().empty());
  EXPECT_EQ(combo.ListIndex, -1);
}

TEST(SurfaceTest, KeepsTheStepsSinceTheLastClear) {
  Surface surface;
  int changes = 0;
  surface.OnChange = [&changes] { ++changes; };
  surface.Line(1, 1, 2, 2, kBlack);
  surface.Cls();
  surface.ForeColor = Colour::FromBgr(0xE16941);
  surface.FontSize = 20;
  surface.FontBold = true;
  surface.PrintAt(5, 6, "first");
  surface.ForeColor = kBlack;
  surface.FontBold = false;
  surface.Print("second");
  surface.PaintPicture({}, 1, 2);
  surface.PaintPicture({"a.svg"}, 1, 2);
  const std::vector<DrawingStep> expected{TextStep{5, 6, "first", {0x41, 0x69, 0xE1}, {"Verdana", 20, true}},
                                          TextStep{5, 6, "second", {0, 0, 0}, {"Verdana", 20, false}},
                                          PictureStep{1, 2, {"a.svg"}}};
  EXPECT_EQ(surface.Steps(), expected);
  EXPECT_EQ(changes, 5);
}

TEST(ImageListTest, NumbersOutsideTheListAreNoPicture) {
  constexpr ImageList list{"dice", 19, 31};
  for (const int index : {0, -1, 20, 30012, -30000}) EXPECT_TRUE(list.Image(index).Empty()) << index;
  EXPECT_EQ(list.Image(1).Name, "dice/01.svg");
  EXPECT_EQ(list.Image(19).Name, "dice/19.svg");
}

}  // namespace
}  // namespace tests
