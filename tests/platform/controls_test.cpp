// What setting a property brings about, from code as from the user's hand; drawing steps and image lists.
#include <gmock/gmock.h>

#include "../../platform/desktop.h"
#include "../drawn.h"
#include "../keyboard.h"

namespace tests {
namespace {

using namespace platform;
using testing::ElementsAre;

constexpr Place kPlace{0, 0, 300, 300};

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() { form.Visible = true; }
  int count = 0;
  Desktop desktop;
  Form form{desktop, "form", 3000, 3000};
};

TEST_F(ControlsTest, EventsTellOfChangesOnly) {
  CheckBox cbx(&form, "cbx", kPlace);
  TextBox txt(&form, "txt", kPlace);
  cbx.Click = txt.Change = [this] { ++count; };
  for (const std::int16_t value : std::array<std::int16_t, 3>{0, 1, 1}) cbx.Value = value;
  EXPECT_EQ(count, 1);
  Click(cbx);
  EXPECT_EQ(count + cbx.Value, 2);
  txt.Text = "7";
  for (const char* text : {"7", "71"}) form.Type(txt, text);
  txt.ReadOnly = true;
  form.Type(txt, "712");
  EXPECT_EQ(count, 4);
  EXPECT_EQ(txt.Text.Get(), "71");
}

TEST_F(ControlsTest, OneOptionOfAContainerIsSetAndEachClickCounts) {
  Frame frame(&form, "frame", kPlace);
  OptionButton a(&frame, "a", kPlace), b(&frame, "b", kPlace), elsewhere(&form, "elsewhere", kPlace);
  b.Click = [this] { ++count; };
  elsewhere.Value = a.Value = true;
  for (int time = 1; time <= 2; ++time) Click(b);
  EXPECT_TRUE(!a.Value && b.Value && elsewhere.Value);
  EXPECT_EQ(count, 2);
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
  EXPECT_TRUE(combo.List().empty() && combo.ListIndex == -1);
}

TEST(SurfaceTest, KeepsTheStepsSinceTheLastClear) {
  Surface surface;
  int changes = 0;
  surface.OnChange = [&changes] { ++changes; };
  surface.Line(1, 1, 2, 2, kBlack);
  surface.Cls();
  surface.FontSize = 20;
  surface.PrintAt(5, 6, "first");
  surface.ForeColor = Colour::FromBgr(0xE16941);
  surface.FontBold = true;
  surface.PrintAt(5, 7, "second");
  for (const char* name : {"", "a.svg"}) surface.PaintPicture({name}, 1, 2);
  EXPECT_EQ(Drawn(surface), (Lines{"5,6 'first' 20 000000", "5,7 'second' 20+ 4169E1", "1,2 a.svg"}));
  EXPECT_EQ(changes, 5);
}

TEST(ImageListTest, NumbersOutsideTheListAreNoPicture) {
  constexpr ImageList list{"dice", 19, 31};
  for (const int index : {0, 20, -30000}) EXPECT_TRUE(list.Image(index).Empty()) << index;
  EXPECT_EQ(list.Image(19).Name, "dice/19.svg");
}

}  // namespace
}  // namespace tests
