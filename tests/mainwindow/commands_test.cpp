// Commands from the menu, its shortcuts and the tool bar; keys and clicks of the main window; the lock of the dialogs.
#include "../drawn.h"
#include "../main_window_fixture.h"

namespace tests {
namespace {

using platform::FunctionKey;
using platform::MouseButton;

struct CommandsTest : MainWindowTest {
  CommandsTest() { Put(Folder / "tastatur.txt", "keys"); }
  /// What has happened since it was asked last: dialogs, boxes and file dialogs that were shown, and rolls. Leaves all.
  std::string Happened() {
    std::string happened;
    for (const platform::Form* form : window.Desktop.Forms()) happened += form->Visible ? form->Name + " " : "";
    for (const ScriptedServices::Box& box : services.Boxes) happened += box.Text + " ";
    for (const platform::FileDialog& dialog : services.FileDialogs) happened += dialog.DialogTitle + " ";
    services.Boxes.clear();
    services.FileDialogs.clear();
    LeaveAll();
    return happened;
  }
};

TEST_F(CommandsTest, MenuShortcutAndToolBarDoTheSame) {
  const platform::KeyCode backspace = platform::kKeyBackspace;
  const std::tuple<const char*, platform::KeyCode, platform::Modifiers, int, std::string> commands[] = {
      {"mnuGameNew", 'N', kCtrl, 1, "F20 "},
      {"mnuFileLoad", 'F', kCtrl, 2, "T3 "},
      {"mnuFileSaveAs", 'S', kCtrl, 3, "T4 "},
      {"mnuGameInfo", 'I', kCtrl, 4, "F6 "},
      {"mnuFilePrint", 'P', kCtrl, 5, "F10 "},
      {"mnuFileQuit", 'Q', kCtrl, 6, "T101 "},
      {"mnuExtraZS", 'T', kCtrl, 7, "F9 "},
      {"mnuSpecialLHS", 'H', kCtrl, 8, "T107 "},
      {"mnuExtraDelLastW", backspace, kAlt, 9, "T106 "},
      {"mnuExtraSettings", FunctionKey(8), {}, 10, "F8 "},
      {"mnuHelpKeys", FunctionKey(11), {}, 12, "F2 "},
      {"mnuHelpInfo", FunctionKey(12), {}, 13, "F3 "}};
  for (const auto& [name, key, with, tool, happens] : commands) {
    Choose(name);
    EXPECT_EQ(Happened(), "F1 " + happens) << name;
    Press(key, with);
    EXPECT_EQ(Happened(), "F1 " + happens) << name;
    window.F1.ClickTool(window.F1.tbrMenu, tool);
    EXPECT_EQ(Happened(), tool == 6 ? "F1 " : "F1 " + happens) << "button " << tool;
  }
  for (const int noButton : {-1, 0, 11, 14}) window.F1.ClickTool(window.F1.tbrMenu, noButton);
  EXPECT_EQ(Happened(), "F1 ");
}

TEST_F(CommandsTest, ATallFrameLeavesTheClocksInTheWindow) {
  for (const auto& [frame, y] : {std::pair(600, "7955"), {2000, "8105"}}) {
    window.F1.FrameHeight = frame;
    window.F1.timSpielzeit.Elapsed();
    EXPECT_THAT(Drawn(window.F1.Drawing).back(), testing::HasSubstr(std::string(",") + y + " 'PAUSE'"));
  }
}

TEST_F(CommandsTest, KeysWithAndWithoutModifiers) {
  // Current player, player of the data dialog, black die, "+" where the points are brought into two digits.
  const std::tuple<platform::KeyCode, platform::Modifiers, std::string> cases[] = {
      {FunctionKey(1), {}, "1 0 0 +"},
      {FunctionKey(2), {}, "2 0 0 +"},
      {FunctionKey(3), {}, "3 0 0 -"},
      {FunctionKey(4), {}, "4 0 0 +"},
      {FunctionKey(1), kShift, "0 1 0 -"},
      {FunctionKey(6), kCtrl, "0 6 0 -"},
      {FunctionKey(10), {}, "0 0 0 +"},
      {'1', {}, "0 0 1 +"},
      {'6', {}, "0 0 6 +"},
      {'7', {}, "0 0 0 +"},
      {'3', kShift, "0 0 0 -"},
      {platform::kKeyNumberPad0 + 3, {}, "0 0 0 +"}};
  for (const auto& [key, with, expected] : cases) {
    for (const int seat : {2, 3}) game.Players[seat].Active = false;
    asked.CurrentPlayer = asked.DataPlayer = entry.Die1 = 0;
    figures.PlayerPoints[1] = -1;
    figures.PlayerPoints[5] = 32767;
    Press(key, with);
    const std::string clamped = figures.PlayerPoints[1] == 0 && figures.PlayerPoints[5] == 99 ? "+" : "-";
    EXPECT_EQ(std::to_string(asked.CurrentPlayer) + " " + std::to_string(asked.DataPlayer) + " " +
                  std::to_string(entry.Die1) + " " + clamped,
              expected)
        << key;
    EXPECT_EQ(window.F7.Visible, entry.Die1 > 0) << key;
    LeaveAll();
  }
}

TEST_F(CommandsTest, EveryDialogLocksAndEveryWayOutUnlocks) {
  const Act attack = [&] { game.EventCount[4] = 6, game.GameType = core::kFirstExpansion, Type("43B"); };
  const std::tuple<platform::Form*, Act, platform::Control*, platform::KeyCode> dialogs[] = {
      {&window.F3, [&] { Press(FunctionKey(12)); }, &window.F3.cmdOK, platform::kKeyEnter},
      {&window.F4, [&] { Press(FunctionKey(2)); }, &window.F4.cmdNix, platform::kKeyEscape},
      {&window.F5, [&] { Press(FunctionKey(6), kAlt); }, &window.F5.cmdOK, platform::kKeyEnter},
      {&window.F6, [&] { Press('I', kCtrl); }, &window.F6.cmdOK, platform::kKeyEnter},
      {&window.F7, [&] { Type("43"); }, &window.F7.cmdNoOK, platform::kKeyEscape},
      {&window.F8, [&] { Press(FunctionKey(8)); }, &window.F8.cmdOK, platform::kKeyEnter},
      {&window.F9, [&] { Press('T', kCtrl); }, &window.F9.cmdOK, platform::kKeyEnter},
      {&window.F10, [&] { Press('P', kCtrl); }, &window.F10.cmdPrintCancel, platform::kKeyEscape},
      {&window.F11, attack, &window.F11.cmdOK, platform::kKeyEnter},
      {&window.F20, [&] { Press('N', kCtrl); }, &window.F20.cmdCancel, platform::kKeyEscape}};
  for (const auto& [dialog, open, button, key] : dialogs) {
    for (int way = 0; way < 3; ++way) {
      open();
      EXPECT_TRUE(Locking(*dialog)) << dialog->Name;
      Click(window.F1.picWurfel(0), MouseButton::Right);  // the main window takes nothing
      window.F1.PressCloseBox();
      way == 0 ? Click(*button) : way == 1 ? Key(*dialog, key) : dialog->PressCloseBox();
      EXPECT_TRUE(Closed(*dialog)) << dialog->Name << ", way " << way;
    }
  }
  EXPECT_TRUE(Rolls() == 3 && services.QuitStatus == -1) << "only the attacks come with a roll";
}

}  // namespace
}  // namespace tests
