// A game file may bring any 16-bit number anywhere: every window is opened, every command given and every drawing made
// over such games, with the sanitizers looking on.
#include "../../storage/game_file.h"
#include "../main_window_fixture.h"
#include "../storage/random_state.h"

namespace tests {
namespace {

struct HostileGameTest : MainWindowTest {
  void EveryKeyAndCommand() {
    for (const mainwindow::Command& command : mainwindow::Commands()) {
      if (command.Run) window.F1.ClickMenu((*window.F1.MenuBar)[command.Menu.Name]);
      LeaveAll();
    }
    for (int seat = 1; seat <= core::kSeats; ++seat) {
      for (const char action : std::string("1234567890")) {
        Key(window.F1, platform::FunctionKey(seat));
        Key(window.F4, action);
        LeaveAll();
      }
      Key(window.F1, platform::FunctionKey(seat), {.Shift = true});
      for (int j = window.F5.cmdPlus.First(); j <= window.F5.cmdPlus.Last(); ++j) Click(window.F5.cmdPlus(j));
      LeaveAll();
    }
    window.F1_timSpielzeit_Timer();
  }
};

TEST_F(HostileGameTest, AnyNumberAnywhereDoesNoHarm) {
  RandomState random(4711);
  services.Answers.assign(10'000, platform::Answer::Yes);
  services.ChosenFile = (Folder / "hostile.obg").string();
  for (int i = 0; i < 25; ++i) {
    core::State state = random.Next();
    if (i % 5 == 0) state.game.GameType = random.Number();
    if (i % 2 == 0) state.game.DiceCount.fill(40);  // so that the log is read, with whatever it holds
    Put(services.ChosenFile, storage::GameFileText(state));
    window.F1_mnuFileLoad_Click();
    LeaveAll();
    EveryKeyAndCommand();
    ASSERT_TRUE(window.F1.AcceptsInput()) << "game " << i;
  }
}

}  // namespace
}  // namespace tests
