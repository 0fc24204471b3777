// The way of keys and clicks to forms and controls.
#include <gmock/gmock.h>

#include "../../platform/desktop.h"
#include "../keyboard.h"

namespace tests {
namespace {

using namespace platform;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr MenuRow kMenu[] = {{"mnuNew", 1, "&New", Ctrl('N')}};
constexpr Place kPlace{0, 0, 300, 300};

/// A dialog with one control of each sort, which tells what reached it.
struct TestForm : Form {
  explicit TestForm(Desktop& desktop) : Form(desktop, "form", 3000, 3000) {
    MenuBar = std::make_unique<Menu>(kMenu);
    (*MenuBar)["mnuNew"].Click = Note("menu");
    cmdOK.Default = cmdCancel.Cancel = true;
    cmdOK.Click = Note("ok");
    cmdCancel.Click = Note("cancel");
    cbx.Click = Note("check");
    Close = Note("close");
    txt.Change = Note("text");
    pic.MouseUp = [this](MouseButton) { Log.push_back("mouse"); };
    KeyUp = [this](KeyCode code, Modifiers) { Log.push_back("form " + std::to_string(code)); };
    txt.KeyUp = [this](KeyCode code, Modifiers) { Log.push_back("field " + std::to_string(code)); };
    Visible = true;
  }
  std::function<void()> Note(const char* what) {
    return [this, what] { Log.push_back(what); };
  }
  std::vector<std::string> Log;
  TextBox txt{this, "txt", kPlace};
  Frame frame{this, "frame", kPlace};
  CheckBox cbx{&frame, "cbx", kPlace};
  PictureBox pic{this, "pic", kPlace};
  CommandButton cmdOK{this, "cmdOK", kPlace};
  CommandButton cmdCancel{this, "cmdCancel", kPlace};
};

class RoutingTest : public testing::Test {
 protected:
  std::vector<std::string> LogOfKey(KeyCode code) {
    form.Log.clear();
    Key(form, code);
    return form.Log;
  }
  std::vector<std::string> LogOfEverything() {
    LogOfKey('A');
    Key(form, 'N', {.Control = true});
    form.ClickMenu((*form.MenuBar)["mnuNew"]);
    for (Control* control : std::vector<Control*>{&form.cmdOK, &form.pic, &form.cbx}) Click(*control);
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
    EXPECT_THAT(LogOfEverything(), IsEmpty());
    lock(false);
    form.SetFocus(form.txt);
    EXPECT_THAT(LogOfEverything(), ElementsAre("form 65", "field 65", "menu", "form 78", "field 78", "menu", "ok",
                                               "mouse", "check", "text", "close"));
  }
  form.cmdOK.Enabled = form.frame.Enabled = form.pic.Visible = form.txt.Visible = false;
  EXPECT_THAT(LogOfEverything(), ElementsAre("form 65", "menu", "form 78", "menu", "close"));
}

TEST_F(RoutingTest, ReleaseCountsOnceAndOnlyWhereItsPressWasSeen) {
  form.KeyRelease('A', {});
  form.KeyPress('B', {});
  form.Enabled = false;
  form.Enabled = true;
  form.KeyRelease('B', {});
  EXPECT_THAT(form.Log, IsEmpty());
  for (int i = 0; i < 3; ++i) form.KeyPress('C', {});
  for (int i = 0; i < 2; ++i) form.KeyRelease('C', {});
  for (int i = 0; i < 2; ++i) form.KeyPress('N', {.Control = true});
  EXPECT_THAT(form.Log, ElementsAre("field 67", "menu"));
}

TEST_F(RoutingTest, FormThatClosesOnAReleaseKeepsItFromTheFocusAndLeavesTheNextFormOnlyTheKeysPressedLater) {
  form.KeyPreview = true;
  form.KeyUp = [this](KeyCode, Modifiers) { form.Visible = false; };  // the other one is in front then
  for (const KeyCode code : {'A', 'B', 'C'}) form.KeyPress(code, {});
  form.KeyRelease('B', {});
  for (const KeyCode code : {'A', 'C'}) desktop.KeyReceiver(form)->KeyRelease(code, {});
  EXPECT_THAT(form.Log, IsEmpty());
  EXPECT_THAT(other.Log, ElementsAre("field 67"));
}

TEST_F(RoutingTest, EnterEscAndSpacePressButtons) {
  const auto logOf = [this](KeyCode code, bool preview, Control& focus) {
    form.KeyPreview = preview;
    form.SetFocus(focus);
    return LogOfKey(code);
  };
  EXPECT_THAT(logOf(kKeyEnter, false, form.cmdCancel), ElementsAre("cancel"));
  EXPECT_THAT(logOf(kKeyEnter, true, form.cmdCancel), ElementsAre("ok"));
  EXPECT_THAT(logOf(kKeyEscape, false, form.txt), ElementsAre("cancel"));
  EXPECT_THAT(logOf(kKeySpace, false, form.cmdCancel), ElementsAre("cancel"));
  EXPECT_THAT(logOf(kKeySpace, true, form.cmdCancel), ElementsAre("form 32"));
  EXPECT_THAT(logOf(kKeySpace, true, form.txt), ElementsAre("form 32", "field 32"));
  form.cmdOK.Enabled = false;
  EXPECT_THAT(LogOfKey(kKeyEnter), ElementsAre("form 13", "field 13"));
  form.cmdCancel.Enabled = false;
  EXPECT_THAT(LogOfKey(kKeyEscape), ElementsAre("form 27", "field 27"));
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

}  // namespace
}  // namespace tests
