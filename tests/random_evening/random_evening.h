// A random evening: keys, clicks, texts, ticks and answers come by chance, and after each of them what must always hold
// is looked at. Each seed is an evening of its own; a failure names seed and event, with the events before it. What the
// user does reaches the model of the forms directly; another test puts real windows in between.
#pragma once

#include <gmock/gmock.h>

#include <cstdlib>
#include <numeric>
#include <random>

#include "../../core/points.h"
#include "../../mainwindow/main_window.h"
#include "../hands.h"
#include "../scripted_services.h"
#include "../storage/temporary_folder.h"

namespace tests {

using namespace platform;

constexpr unsigned kHabitLasts = 1500;  // events

constexpr MouseButton kOtherButtons[] = {MouseButton::Right, MouseButton::Middle};

/// Seed and number of events can be given: ORVANBEG_EVENING_SEED, ORVANBEG_EVENING_EVENTS.
inline unsigned FromEnvironment(const char* name, unsigned otherwise) {
  const char* value = std::getenv(name);
  return value ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : otherwise;
}

/// Answers by chance; the clock ticks while a box is open; now and then a picture is missing.
struct ChanceServices : ScriptedServices {
  using ScriptedServices::ScriptedServices;

  std::mt19937 Generator, Pictures;  // of their own, so that another way of drawing is not another evening
  std::function<void()> WhileABoxIsOpen, BeforeAFileIsChosen;

  int Below(int end) { return static_cast<int>(Generator() % static_cast<unsigned>(end)); }
  bool Percent(int share) { return Below(100) < share; }
  template <typename Choices>
  auto& Of(Choices&& choices) {
    return choices[static_cast<std::size_t>(Below(static_cast<int>(std::size(choices))))];
  }
  Answer MessageBox(const std::string&, const std::string&, Buttons buttons, Icon) override {
    WhileABoxIsOpen();
    return buttons == Buttons::Ok ? Answer::Ok : Percent(50) ? Answer::Yes : Answer::No;
  }
  bool ChooseFile(FileDialog& dialog) override {
    if (BeforeAFileIsChosen) BeforeAFileIsChosen();
    return ScriptedServices::ChooseFile(dialog);
  }
  bool CanShow(const Picture&) override { return Pictures() % 100 != 0; }
  double Random() override { return Below(1000) / 1000.0; }
};

class RandomEvening : public TemporaryFolder, public testing::WithParamInterface<unsigned>, protected virtual Hands {
 protected:
  RandomEvening() {
    chance.Generator.seed(GetParam());
    std::filesystem::copy(RunFolder(), Folder);
    chance.WhileABoxIsOpen = [this] { window.F1.timSpielzeit.Elapsed(); };
  }

  void Play(unsigned events) {
    ASSERT_EQ(window.Load(), mainwindow::Started::Yes);
    if (GetParam() % 2 == 1) {
      window.F20.OpenNewGame();
      tests::Click(window.F20.optB);
      tests::Click(window.F20.cmdStart);
    }
    std::deque<std::string> last;
    std::size_t habit = 0;
    for (unsigned event = 1; event <= events; ++event) {
      if (event % kHabitLasts == 0) habit = static_cast<std::size_t>(chance.Below(7));
      last.push_back(chance.Percent(50) ? Habitual(habit) : AnyEvent());
      if (last.size() > 12) last.pop_front();
      ASSERT_EQ(Offence(), "") << "seed " << GetParam() << ", event " << event << " of "
                               << testing::PrintToString(last);
    }
  }

  // What the user does; each tells in a few words what it was.
  std::string AnyEvent() {
    const int kind = chance.Below(100);
    if (kind < 40) return AnyKey();
    if (kind < 80) return Clicked(AnyControl(), chance.Percent(60) ? MouseButton::Left : chance.Of(kOtherButtons));
    if (kind < 84) return AnyText();
    if (kind < 88) return ClickMenu(window.F1, chance.Of(window.F1.MenuBar->Items())), "menu";
    if (kind < 90) return PressCloseBox(AnyForm()), "close box";
    if (window.F8.Visible && chance.Percent(50)) return MendedSettings();
    return window.F1.timSpielzeit.Elapsed(), "tick";
  }
  /// The same over and over, so that long games come about, too; what opens meanwhile is mostly closed by Enter.
  std::string Habitual(std::size_t habit) {
    static const std::vector<KeyCode> kHabits[] = {
        {kKeyEnter},
        {FunctionKey(9), kKeyEnter, kKeyEscape},
        {'1', '2', '3', '4', '5', '6', 'P', 'H', 'W', 'B', 'B', kKeyEnter},
        {FunctionKey(1), FunctionKey(2), FunctionKey(3), '1', '2', '0', '7', kKeyEnter}};
    if (habit >= std::size(kHabits)) return AnyEvent();
    if (habit == 0 && chance.Percent(50)) return Clicked(window.F1.picWurfel(0), MouseButton::Right);
    return Keyed(window.F1, chance.Of(kHabits[habit]), {});
  }
  Form& AnyForm() {
    Form& form = *chance.Of(window.Desktop.Forms());
    return form.AcceptsInput() || chance.Percent(10) ? form : AnyForm();
  }
  /// Of a form or of a frame in it.
  Control& AnyControl() {
    Control& control = *chance.Of(AnyForm().Controls());
    const auto* frame = dynamic_cast<Container*>(&control);
    return frame && chance.Percent(90) ? *chance.Of(frame->Controls()) : control;
  }
  std::string AnyKey() {
    Form& form = AnyForm();
    const KeyCode code = chance.Below(kKeyF1 + 13);  // to the key behind F12; among them codes of no key
    Modifiers with;
    if (chance.Percent(25)) with = {chance.Percent(40), chance.Percent(40), chance.Percent(40)};
    if (chance.Percent(80)) return Keyed(form, code, with);
    chance.Percent(50) ? KeyDown(form, code, with) : KeyUp(form, code, with);  // the other half comes elsewhere
    return form.Name + " half a key " + std::to_string(code);
  }
  std::string Keyed(Form& form, KeyCode code, Modifiers with) {
    Form* const receiver = window.Desktop.KeyReceiver(form);
    if (receiver) KeyDown(*receiver, code, with);
    if (receiver) KeyUp(*receiver, code, with);
    return (receiver ? receiver->Name : "locked") + " key " + std::to_string(code) + (with.Any() ? " modified" : "");
  }
  std::string Clicked(Control& control, MouseButton button) {
    ClickOn(control, button);
    if (auto* bar = dynamic_cast<ToolBar*>(&control)) ClickTool(*bar, chance.Below(16) - 1);
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) Pick(*combo, chance.Below(5) - 1);
    return control.Owner()->Name + " click " + control.Name + " " + std::to_string(static_cast<int>(button));
  }
  /// The settings have no cancel: without this they would stay open for most of the evening.
  std::string MendedSettings() {
    for (int i = 0; i < core::kEventFaces; ++i) Write(window.F8.txtEWHotkey(i), "b");
    Pick(window.F8.comSelectLang, 0);
    return Clicked(window.F8.cmdOK, MouseButton::Left);
  }
  std::string AnyText() {
    static const std::string kTexts[] = {"", "0", "Zoë", "-1", "99", "40000", "99999999999", std::string(300, 'x')};
    Control& control = AnyControl();
    Write(control, chance.Of(kTexts));
    return "text into " + control.Name;
  }

  // What must always hold; the answer is what does not, or nothing.
  virtual std::string Offence() {
    return ViewOffence() + LockOffence() + GameOffence() + LogOffence() + SilenceOffence();
  }
  std::string LockOffence() {
    int open = 0, locking = 0;
    for (const Form* form : window.Desktop.Forms()) {
      if (form == &window.F1 || !form->Visible) continue;
      seen.insert(form->Name);
      ++open;
      locking += form->Name != "F11" && form->Name != "F2";  // these leave the main window as it is
    }
    if (!window.F1.Visible) return "the main window is gone";
    if (!window.F1.Enabled && open == 0) return "the main window is locked without a dialog";
    if (locking > 1) return "two dialogs are open";
    return locking > 0 && window.F1.Enabled ? "the main window is free behind a dialog" : "";
  }
  std::string GameOffence() {
    const auto outside = [](int value, int lowest, int highest) { return value < lowest || value > highest; };
    if (outside(window.State.entry.DiceEntryStage, 0, window.F7.Visible ? 2 : 0)) return "DiceEntryStage";
    if (outside(game.NumPlayers, 2, 6) || outside(game.GameType, 2, 3)) return "kind of game or number of players";
    if (outside(window.State.asked.CurrentPlayer, 0, 6) || outside(window.State.asked.DataPlayer, 0, 6))
      return "seat of a dialog";
    if (outside(window.State.settings.HG, 1, 3)) return "theme";
    if (chance.ScreenAwake != game.ClockRunning) return "the screen does not follow the clock";
    core::Figures anew;
    core::ComputePoints(game, anew);
    core::ClampPoints(anew);
    if (game.GameType == core::kFirstExpansion) seen.insert("expansion");
    if (window.F5.Visible) return "";  // it changes the holdings at once, the points when it is left
    return anew.PlayerPoints == window.State.figures.PlayerPoints ? "" : "the points are not those of the holdings";
  }
  /// No file was loaded, so the log tells all that the counts say.
  std::string LogOffence() {
    const int total = std::accumulate(game.DiceCount.begin(), game.DiceCount.end(), 0);
    if (total > core::kLoggedRolls || total != window.State.figures.TotalRolls)
      return "TotalRolls " + std::to_string(total);
    if (total == core::kLoggedRolls) seen.insert("full log");
    decltype(game.DiceCount) sums{};
    decltype(game.EventCount) faces{game.EventCount[0]};  // which nothing resets
    for (std::size_t entry = 1; entry <= static_cast<std::size_t>(total); ++entry) {
      const core::TRoll& roll = game.DiceLog[entry];
      if (std::min(roll.Die1, roll.Die2) < 1) return "entry " + std::to_string(entry) + " of the log is no roll";
      ++sums.at(static_cast<std::size_t>(roll.Die1 + roll.Die2));
      if (roll.EventDie != 0) ++faces.at(static_cast<std::size_t>(roll.EventDie));
    }
    return sums == game.DiceCount && faces == game.EventCount ? "" : "log and counts have parted";
  }
  /// A picture that answers clicks or is written on has something to say to a screen reader.
  std::string SilenceOffence() {
    for (const Form* form : window.Desktop.Forms()) {
      for (const Control* control : form->Controls()) {
        const auto* box = dynamic_cast<const PictureBox*>(control);
        if (!form->Visible || !box || !box->Visible || !box->SpokenName.Get().empty()) continue;
        if (box->MouseUp ? box->ToolTipText.Get().empty() : !box->Drawing.Steps().empty()) return "silent " + box->Name;
      }
    }
    return "";
  }

  ChanceServices chance{Folder};
  mainwindow::MainWindow window{chance};
  core::Game& game = window.State.game;
  std::set<std::string> seen;
};

}  // namespace tests
