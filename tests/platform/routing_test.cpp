// The way of keys and clicks to forms and controls, and of pictures to a surface.
#include <gtest/gtest.h>

#include "../../platform/desktop.h"
#include "../keyboard.h"

namespace tests {
namespace {

using namespace platform;

constexpr MenuRow kMenu[] = {{"mnuNew", 1, "&New", Ctrl('N')}};
constexpr Place kPlace{0, 0, 300, 300};

/// A dialog with one control of each sort, which tells what reached it.
struct TestForm : Form {
  explicit TestForm(Desktop& desktop) : Form(desktop, "form", 3000, 3000) {
    MenuBar = std::make_unique<Menu>(kMenu);
    (*MenuBar)["mnuNew"].Click = Note("menu ");
    cmdOK.Default = cmdCancel.Cancel = true;
    cmdOK.Click = Note("ok ");
    cmdCancel.Click = Note("cancel ");
    cbx.Click = Note("check ");
    Close = Note("close ");
    txt.Change = Note("text ");
    pic.MouseUp = [this](MouseButton) { Log += "mouse "; };
    KeyUp = [this](KeyCode code, Modifiers) { Log += "form " + std::to_string(code) + " "; };
    txt.KeyUp = [this](KeyCode code, Modifiers) { Log += "field " + std::to_string(code) + " "; };
    Visible = true;
  }
  std::function<void()> Note(const char* what) {
    return [this, what] { Log += what; };
  }
  std::string Log;
  TextBox txt{this, "txt", kPlace};
  Frame frame{this, "frame", kPlace};
  CheckBox cbx{&frame, "cbx", kPlace};
  PictureBox pic{this, "pic", kPlace};
  CommandButton cmdOK{this, "cmdOK", kPlace};
  CommandButton cmdCancel{this, "cmdCancel", kPlace};
};

class RoutingTest : public testing::Test {
 protected:
  std::string LogOfEverything() {
    form.Log.clear();
    Key(form, 'A');
    Key(form, 'N', {.Control = true});
    form.ClickMenu((*form.MenuBar)["mnuNew"]);
    for (Control* control : std::initializer_list<Control*>{&form.cmdOK, &form.pic, &form.cbx}) Click(*control);
    form.Type(form.txt, form.txt.Text.Get() + "x");
    form.PressCloseBox();
    return form.Log;
  }
  Desktop desktop;
  TestForm form{desktop}, other{desktop};
};

TEST_F(RoutingTest, OnlyAShownFreeFormTakesInputForWhatCanBeUsed) {
  form.KeyPreview = true;
  other.Visible = false;
  const std::pair<const char*, std::function<void(bool)>> locks[] = {
      {"hidden", [this](bool lock) { form.Visible = !lock; }},
      {"disabled", [this](bool lock) { form.Enabled = !lock; }},
      {"another is modal", [this](bool lock) { desktop.SetModal(lock ? &other : nullptr); }}};
  for (const auto& [what, lock] : locks) {
    SCOPED_TRACE(what);
    lock(true);
    EXPECT_EQ(LogOfEverything(), "");
    lock(false);
    form.SetFocus(form.txt);
    EXPECT_EQ(LogOfEverything(), "form 65 field 65 menu form 78 field 78 menu ok mouse check text close ");
  }
  form.cmdOK.Enabled = form.frame.Enabled = form.pic.Visible = form.txt.Visible = false;
  EXPECT_EQ(LogOfEverything(), "form 65 menu form 78 menu close ");
}

TEST_F(RoutingTest, ReleaseCountsOnceAndOnlyWhereItsPressWasSeen) {
  form.KeyRelease('A', {});
  form.KeyPress('B', {});
  form.Enabled = false;
  form.Enabled = true;
  form.KeyRelease('B', {});
  for (int i = 0; i < 3; ++i) form.KeyPress('C', {});
  for (int i = 0; i < 2; ++i) form.KeyRelease('C', {});
  for (int i = 0; i < 2; ++i) form.KeyPress('N', {.Control = true});
  EXPECT_EQ(form.Log, "field 67 menu ");
}

TEST_F(RoutingTest, FormThatClosesOnAReleaseKeepsItFromTheFocusAndLeavesTheNextFormOnlyTheKeysPressedLater) {
  form.KeyPreview = true;
  form.KeyUp = [this](KeyCode, Modifiers) { form.Visible = false; };  // the other one is in front then
  for (const KeyCode code : {'A', 'B', 'C'}) form.KeyPress(code, {});
  form.KeyRelease('B', {});
  for (const KeyCode code : {'A', 'C'}) desktop.KeyReceiver(form)->KeyRelease(code, {});
  EXPECT_EQ(form.Log + other.Log, "field 67 ");
}

TEST_F(RoutingTest, EnterEscAndSpacePressButtons) {
  // Whether the form previews keys, what has the focus, whether the buttons can be used.
  const std::tuple<KeyCode, bool, Control*, bool, const char*> cases[] = {
      {kKeyEnter, false, &form.cmdCancel, true, "cancel "},
      {kKeyEnter, true, &form.cmdCancel, true, "ok "},
      {kKeyEscape, false, &form.txt, true, "cancel "},
      {kKeySpace, false, &form.cmdCancel, true, "cancel "},
      {kKeySpace, true, &form.cmdCancel, true, "form 32 "},
      {kKeySpace, true, &form.txt, true, "form 32 field 32 "},
      {kKeyEnter, true, &form.txt, false, "form 13 field 13 "},
      {kKeyEscape, true, &form.txt, false, "form 27 field 27 "}};
  for (const auto& [key, preview, focus, enabled, log] : cases) {
    form.KeyPreview = preview;
    form.PressesFocusedButtons = !preview;
    form.SetFocus(*focus);
    form.cmdOK.Enabled = form.cmdCancel.Enabled = enabled;
    form.Log.clear();
    Key(form, key);
    EXPECT_EQ(form.Log, log) << key;
  }
}

TEST_F(RoutingTest, KeysForTheLockedWindowGoToTheFormShownJustNow) {
  other.Visible = false;
  EXPECT_EQ(desktop.KeyReceiver(form), &form);
  other.Visible = true;
  EXPECT_EQ(desktop.KeyReceiver(form), &form) << "a free window keeps its keys";
  form.Enabled = false;
  EXPECT_EQ(desktop.KeyReceiver(form), &other);
  desktop.Activated(other);
  EXPECT_EQ(desktop.KeyReceiver(form), nullptr) << "it has its own keyboard by now";
  other.Visible = false;
  other.Visible = true;
  other.Visible = false;
  EXPECT_EQ(desktop.KeyReceiver(form), nullptr) << "it is gone again";
  form.Enabled = true;
  desktop.Activated(form);
  EXPECT_EQ(desktop.KeyReceiver(other), &form) << "a hidden window's keys are those of the form in front";
}

TEST(SurfaceTest, KeepsNoStepOfAMissingPicture) {
  Surface surface;
  surface.PaintPicture({}, 0, 0);
  EXPECT_TRUE(surface.Steps().empty());
}

}  // namespace
}  // namespace tests
