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
  void UseEverything() {
    form.Log.clear();
    Key(form, 'A');
    Key(form, 'N', {.Control = true});
    form.ClickMenu((*form.MenuBar)["mnuNew"]);
    Click(form.cmdOK);
    Click(form.pic);
    Click(form.cbx);
    form.Type(form.txt, form.txt.Text.Get() + "x");
    form.PressCloseBox();
  }
  Desktop desktop;
  TestForm form{desktop};
  TestForm other{desktop};
};

TEST_F(RoutingTest, OnlyAShownFreeFormTakesInput) {
  form.KeyPreview = true;
  other.Visible = false;
  const auto freeForm = ElementsAre("form 65", "field 65", "menu", "form 78", "field 78", "menu", "ok", "mouse",
                                    "check", "text", "close");
  UseEverything();
  EXPECT_THAT(form.Log, freeForm);
  const std::pair<const char*, std::function<void(bool)>> locks[] = {
      {"hidden", [this](bool lock) { form.Visible = !lock; }},
      {"disabled", [this](bool lock) { form.Enabled = !lock; }},
      {"another is modal", [this](bool lock) { desktop.SetModal(lock ? &other : nullptr); }}};
  for (const auto& [what, lock] : locks) {
    SCOPED_TRACE(what);
    lock(true);
    UseEverything();
    EXPECT_THAT(form.Log, IsEmpty());
    lock(false);
    form.SetFocus(form.txt);
    UseEverything();
    EXPECT_THAT(form.Log, freeForm);
  }
}

TEST_F(RoutingTest, ControlThatCannotBeUsedTakesNoClick) {
  form.cmdOK.Enabled = false;
  form.pic.Visible = false;
  form.frame.Enabled = false;
  for (Control* control :
       {static_cast<Control*>(&form.cmdOK), static_cast<Control*>(&form.pic), static_cast<Control*>(&form.cbx)}) {
    Click(*control);
  }
  EXPECT_THAT(form.Log, IsEmpty());
}

TEST_F(RoutingTest, ReleaseCountsOnceAndOnlyWhereItsPressWasSeen) {
  form.KeyRelease('A', {});
  form.KeyPress('B', {});
  form.Enabled = false;
  form.Enabled = true;
  form.KeyRelease('B', {});
  EXPECT_THAT(form.Log, IsEmpty());
  for (int i = 0; i < 3; ++i) form.KeyPress('C', {});
  form.KeyRelease('C', {});
  form.KeyRelease('C', {});
  EXPECT_THAT(form.Log, ElementsAre("field 67"));
  form.KeyPress('N', {.Control = true});
  form.KeyPress('N', {.Control = true});
  EXPECT_THAT(form.Log, ElementsAre("field 67", "menu"));
}

TEST_F(RoutingTest, FormThatClosesOnAKeyKeepsItFromTheFocus) {
  form.KeyPreview = true;
  form.KeyUp = [this](KeyCode, Modifiers) { form.Visible = false; };
  Key(form, 'A');
  EXPECT_THAT(form.Log, IsEmpty());
}

TEST_F(RoutingTest, EnterEscAndSpacePressButtons) {
  struct Case {
    KeyCode Code;
    bool Preview, OnCancel, OkEnabled;  ///< whether the focus stands on cmdCancel, else on the text field
    std::vector<std::string> Log;
  };
  const Case cases[] = {
      {kKeyEnter, false, false, true, {"ok"}},     {kKeyEnter, false, false, false, {"field 13"}},
      {kKeyEnter, false, true, true, {"cancel"}},  {kKeyEnter, true, true, true, {"ok"}},
      {kKeyEnter, true, true, false, {"form 13"}}, {kKeyEscape, false, false, true, {"cancel"}},
      {kKeyEscape, true, false, true, {"cancel"}}, {kKeySpace, false, true, true, {"cancel"}},
      {kKeySpace, true, true, true, {"form 32"}},  {kKeySpace, true, false, true, {"form 32", "field 32"}}};
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << "key " << c.Code << ", preview " << c.Preview << ", on cancel " << c.OnCancel);
    form.Log.clear();
    form.KeyPreview = c.Preview;
    form.cmdOK.Enabled = c.OkEnabled;
    form.SetFocus(c.OnCancel ? static_cast<Control&>(form.cmdCancel) : form.txt);
    Key(form, c.Code);
    EXPECT_EQ(form.Log, c.Log);
  }
  form.Log.clear();
  form.cmdCancel.Enabled = false;
  Key(form, kKeyEscape);
  EXPECT_THAT(form.Log, ElementsAre("form 27", "field 27"));
}

TEST_F(RoutingTest, TabWalksOverWhatCanBeUsed) {
  const auto walk = [this](Modifiers with) {
    std::vector<std::string> names{form.Focus()->Name};
    for (int i = 0; i < 4; ++i) {
      Key(form, kKeyTab, with);
      names.push_back(form.Focus()->Name);
    }
    return names;
  };
  EXPECT_THAT(walk({}), ElementsAre("txt", "cbx", "cmdOK", "cmdCancel", "txt"));
  EXPECT_THAT(walk({.Shift = true}), ElementsAre("txt", "cmdCancel", "cmdOK", "cbx", "txt"));
  form.frame.Visible = false;
  form.cmdCancel.Enabled = false;
  EXPECT_THAT(walk({}), ElementsAre("txt", "cmdOK", "txt", "cmdOK", "txt"));
  form.txt.Enabled = false;
  EXPECT_EQ(form.Focus(), &form.cmdOK);
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
}

}  // namespace
}  // namespace tests
