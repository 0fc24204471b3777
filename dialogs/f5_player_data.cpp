#include "f5_player_data.h"

#include <algorithm>
#include <variant>

#include "../core/new_game.h"
#include "../core/numbers.h"
#include "../core/standing.h"
#include "../core/texts.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"
#include "../windows/storable_field.h"

namespace dialogs {
namespace {

namespace text = core::text;
using core::TPlayer;
using platform::Place;
using windows::Repeat;

constexpr int kClientWidth = 4710;
constexpr int kClientHeight = 4110;
constexpr int kRows = 10;
constexpr int kPitch = 360;

// The row of the name is apart from the others.
constexpr auto kLabels = [] {
  auto places = Repeat<kRows>({540, 210, 2385, 255}, 0, kPitch);
  places[0].Top = 150;
  return places;
}();
constexpr auto kFields = [] {
  auto places = Repeat<kRows>({3510, 180, 750, 315}, 0, kPitch);
  places[0] = {3090, 60, 1575, 315};
  return places;
}();
constexpr auto kMinus = Repeat<kRows - 1>({3090, 570, 285, 255}, 0, kPitch);
constexpr auto kPlus = Repeat<kRows - 1>({4380, 570, 285, 255}, 0, kPitch);
constexpr auto kSymbolPlaces = Repeat<kRows - 1>({180, 540, 285, 285}, 0, kPitch);
constexpr Place kOkPlace{1665, 3720, 1455, 375};

enum class Shown { Always, InBaseGame, InExpansion };

using NumberOf = std::int16_t TPlayer::*;
using FlagOf = bool TPlayer::*;

// What a row can be about: how it is shown, what typed text and the buttons make of it.
struct Name {
  static std::string TextOf(const TPlayer& player, const core::State&) { return player.Name; }
  static void Take(TPlayer& player, const std::string& typed) { player.Name = typed; }
  static void Step(TPlayer&, int) {}
};

struct Number {
  NumberOf Field;
  int Highest;            // for the buttons; a typed number may be any
  const char* Otherwise;  // what stands in for text that is no number

  std::string TextOf(const TPlayer& player, const core::State&) const { return std::to_string(player.*Field); }
  /// What is no number may be on its way to one.
  void Take(TPlayer& player, const std::string& typed) const {
    player.*Field = core::WholeNumberIn(typed).value_or(player.*Field);
  }
  /// One more, up to the bound, or one fewer, down to 0.
  void Step(TPlayer& player, int by) const {
    const int stepped = player.*Field + by;
    player.*Field = core::Saturate16(by < 0 ? std::max(stepped, 0) : std::min(stepped, Highest));
  }
};

struct Flag {
  FlagOf Field;

  std::string TextOf(const TPlayer& player, const core::State& state) const {
    return state.Text(player.*Field ? text::Yes : text::No);
  }
  static void Take(TPlayer&, const std::string&) {}
  /// Turned over, whichever button it was.
  void Step(TPlayer& player, int) const { player.*Field = !(player.*Field); }
};

struct Row {
  std::variant<Name, Number, Flag> About;
  core::Symbol Symbol = {};
  Shown When = Shown::Always;
};

constexpr Row kTable[kRows] = {
    {.About = Name{}},
    {.About = Number{.Field = &TPlayer::Settlements, .Highest = 5, .Otherwise = "2"},
     .Symbol = core::kSettlementSymbol},
    {.About = Number{.Field = &TPlayer::Cities, .Highest = 4, .Otherwise = "0"}, .Symbol = core::kCitySymbol},
    {.About = Flag{.Field = &TPlayer::LongestRoad}, .Symbol = core::kLongestRoadSymbol},
    {.About = Flag{.Field = &TPlayer::LargestArmy}, .Symbol = core::kLargestArmySymbol, .When = Shown::InBaseGame},
    {.About = Flag{.Field = &TPlayer::PoliticsMetropolis}, .Symbol = core::kPoliticsSymbol, .When = Shown::InExpansion},
    {.About = Flag{.Field = &TPlayer::TradeMetropolis}, .Symbol = core::kTradeSymbol, .When = Shown::InExpansion},
    {.About = Flag{.Field = &TPlayer::ScienceMetropolis}, .Symbol = core::kScienceSymbol, .When = Shown::InExpansion},
    {.About = Number{.Field = &TPlayer::BonusPoints, .Highest = 99, .Otherwise = "0"},
     .Symbol = core::kBonusPointSymbol},
    {.About = Flag{.Field = &TPlayer::Merchant}, .Symbol = core::kMerchantSymbol, .When = Shown::InExpansion},
};

}  // namespace

F5::F5(const windows::Context& context)
    : Dialog(context, "F5", kClientWidth, kClientHeight),
      lblData(this, "lblData", kLabels),
      txtData(this, "txtData", kFields),
      cmdMinus(this, "cmdMinus", kMinus),
      cmdPlus(this, "cmdPlus", kPlus),
      picSymbol(this, "picSymbol", kSymbolPlaces),
      cmdOK(this, "cmdOK", kOkPlace) {
  for (int row = 0; row < kRows; ++row) {
    txtData(row).Change = [this, row] { F5_txtData_Change(row); };
    txtData(row).KeyUp = [this, row](platform::KeyCode, platform::Modifiers) { F5_txtData_KeyUp(row); };
    if (row == 0) continue;
    lblData(row).Middle = true;
    txtData(row).Align = platform::Alignment::Centre;
    cmdMinus(row - 1).Caption = "-";
    cmdPlus(row - 1).Caption = "+";
    cmdMinus(row - 1).Face = cmdPlus(row - 1).Face = platform::Font{"Verdana", 8.25, true};
    cmdMinus(row - 1).Click = [this, row] { Step(row, -1); };
    cmdPlus(row - 1).Click = [this, row] { Step(row, 1); };
    picSymbol(row - 1).Image = windows::imlIcons.Image(kTable[row].Symbol);
    picSymbol(row - 1).Opaque = false;
  }
  windows::KeepStorable(txtData(0), state());
  cmdOK.Caption = "OK";
  cmdOK.Default = true;
  cmdOK.Click = [this] { LeaveAndScore(); };
  Close = [this] { LeaveAndScore(); };
}

void F5::SetCaptions() {
  Caption = state().Text(text::PlayerData);
  for (int row = 0; row < kRows; ++row) {
    const std::string& name = state().Text(text::Name + row);
    lblData(row).Caption = txtData(row).SpokenName = name;
    if (row == 0) continue;
    picSymbol(row - 1).SpokenName = name;
    cmdMinus(row - 1).SpokenName = name + " -";
    cmdPlus(row - 1).SpokenName = name + " +";
  }
}

core::TPlayer& F5::Player() { return state().game.Players[state().asked.DataPlayer]; }

void F5::PrepareDataDialog() {
  if (!core::IsSeat(state().asked.DataPlayer)) return;
  const std::string seat = std::to_string(state().asked.DataPlayer);
  Caption = state().Text(text::PlayerData) + " " + Player().Name + " (" + state().Text(text::Player) + seat + ")";
  ShowRows();
  for (int row = 0; row < kRows; ++row) ShowValue(row);
  SetFocus(txtData(0));
  Open();
}

/// Shows the rows that the kind of game has; of an unknown kind nothing is known, and the rows stay.
void F5::ShowRows() {
  const std::int16_t gameType = state().game.GameType;
  if (!core::KindOf(gameType)) return;
  const Shown hidden = gameType == core::kBaseGame ? Shown::InExpansion : Shown::InBaseGame;
  for (int row = 1; row < kRows; ++row) {
    const bool visible = kTable[row].When != hidden;
    lblData(row).Visible = txtData(row).Visible = visible;
    cmdMinus(row - 1).Visible = cmdPlus(row - 1).Visible = picSymbol(row - 1).Visible = visible;
  }
}

void F5::ShowValue(int row) {
  const auto textOf = [this](const auto& about) { return about.TextOf(Player(), state()); };
  txtData(row).Text = std::visit(textOf, kTable[row].About);
}

void F5::Step(int row, int by) {
  const auto step = [this, by](const auto& about) { about.Step(Player(), by); };
  std::visit(step, kTable[row].About);
  ShowValue(row);
}

/// Name and numbers are taken at once, whether typed, pasted or composed; a flag shows nothing but its value.
void F5::F5_txtData_Change(int row) {
  if (std::holds_alternative<Flag>(kTable[row].About)) return ShowValue(row);
  const auto take = [&](const auto& about) { about.Take(Player(), txtData(row).Text.Get()); };
  std::visit(take, kTable[row].About);
}

/// Any key: a flag turns over, and text that is still no number is replaced.
void F5::F5_txtData_KeyUp(int row) {
  if (std::holds_alternative<Flag>(kTable[row].About)) return Step(row, 1);
  const auto* number = std::get_if<Number>(&kTable[row].About);
  if (number && !core::WholeNumberIn(txtData(row).Text.Get())) txtData(row).Text = number->Otherwise;
}

}  // namespace dialogs
