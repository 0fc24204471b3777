#include "f4_player_action.h"

#include "../core/new_game.h"
#include "../core/player_actions.h"
#include "../core/texts.h"
#include "../windows/form_metrics.h"
#include "../windows/image_lists.h"

namespace dialogs {
namespace {

namespace text = core::text;
using platform::Place;

constexpr int kClientWidth = 5775;
constexpr int kClientHeight = 4335;
constexpr int kFirstAction = 1;
constexpr int kLastAction = 10;

constexpr std::array<Place, 10> kButtons{{{480, 120, 2300, 700},
                                          {480, 870, 2300, 700},
                                          {480, 1620, 2300, 700},
                                          {480, 2370, 2300, 700},
                                          {480, 3120, 2300, 700},
                                          {3030, 120, 2300, 700},
                                          {3030, 870, 2300, 700},
                                          {3030, 1620, 2300, 700},
                                          {3030, 2370, 2300, 700},
                                          {3030, 3120, 2300, 700}}};
constexpr std::array<Place, 10> kKeys{{{240, 240, 255, 375},
                                       {240, 990, 255, 495},
                                       {240, 1770, 255, 495},
                                       {240, 2490, 255, 495},
                                       {240, 3270, 255, 495},
                                       {5370, 240, 375, 495},
                                       {5370, 990, 375, 495},
                                       {5370, 1770, 375, 495},
                                       {5370, 2490, 375, 495},
                                       {5370, 3240, 375, 375}}};
constexpr Place kNixPlace{1800, 3870, 2175, 405};

// The symbol of each action, among the icons.
constexpr std::array<core::Symbol, 10> kSymbols{
    core::kSettlementSymbol,  core::kCitySymbol,     core::kBonusPointSymbol, core::kLongestRoadSymbol,
    core::kLargestArmySymbol, core::kPoliticsSymbol, core::kTradeSymbol,      core::kScienceSymbol,
    core::kMerchantSymbol,    core::kLostCitySymbol};

/// The action of a digit key of the top row, "0" standing for the tenth; 0 for any other key.
int ActionOfKey(int keyCode) {
  if (keyCode == '0') return kLastAction;
  return keyCode >= '1' && keyCode <= '9' ? keyCode - '0' : 0;
}

}  // namespace

F4::F4(const windows::Context& context)
    : Dialog(context, "F4", kClientWidth, kClientHeight),
      cmdSP(this, "cmdSP", kButtons, kFirstAction),
      lblFTaste(this, "lblFTaste", kKeys),
      cmdNix(this, "cmdNix", kNixPlace) {
  KeyPreview = true;
  PressesFocusedButtons = false;
  KeyUp = [this](int keyCode, platform::Modifiers) { F4_Form_KeyUp(keyCode); };
  for (int action = kFirstAction; action <= kLastAction; ++action) {
    cmdSP(action).Click = [this, action] { F4_cmdSP_Click(action); };
    platform::Label& key = lblFTaste(action - 1);
    key.Caption = std::to_string(action % 10);
    key.Face = platform::Font{"MS Sans Serif", 13.5, true};
  }
  cmdNix.Cancel = true;
  cmdNix.Click = [this] { Leave(); };
  Close = [this] { Leave(); };
}

void F4::SetPictures() {
  for (int action = kFirstAction; action <= kLastAction; ++action) {
    cmdSP(action).Image = windows::imlIcons.Image(kSymbols[static_cast<std::size_t>(action - 1)]);
  }
}

void F4::SetCaptions() {
  for (int action = kFirstAction; action <= kLastAction; ++action) {
    const std::string& name = state().Text(text::BuildSettlement + action - kFirstAction);
    cmdSP(action).Caption = name;
    cmdSP(action).SpokenName = lblFTaste(action - 1).Caption.Get() + ": " + name;
  }
  cmdNix.Caption = state().Text(text::NoAction);
}

void F4::OpenActionDialog(int seat) {
  state().asked.CurrentPlayer = static_cast<std::int16_t>(seat);
  const std::string& name = state().game.Players[seat].Name;
  Caption = state().Text(text::ChooseAction) + " " + name + " (" + state().Text(text::Player) + " " +
            std::to_string(seat) + ")";
  Open();
}

void F4::OfferActions() {
  const std::int16_t gameType = state().game.GameType;
  if (!core::KindOf(gameType)) return;
  for (int action = kFirstAction; action <= kLastAction; ++action) {
    cmdSP(action).Enabled = core::ActionOffered(gameType, action);
  }
}

/// Carries `ActionCode` out, or says why it is refused.
void F4::Apply() {
  const auto refusal = core::ApplyPlayerAction(state().game, state().asked);
  if (!refusal) return;
  const std::string& name = state().game.Players[state().asked.CurrentPlayer].Name;
  context_.services.MessageBox(name + " " + state().Text(refusal->MessageText), state().Text(refusal->TitleText));
}

void F4::F4_cmdSP_Click(int index) {
  state().asked.ActionCode = static_cast<std::int16_t>(index);
  Apply();
  LeaveAndScore();
}

void F4::F4_Form_KeyUp(int keyCode) {
  const int action = ActionOfKey(keyCode);
  if (action != 0) {
    state().asked.ActionCode = static_cast<std::int16_t>(action);
    if (core::ActionOffered(state().game.GameType, action)) Apply();
  }
  LeaveAndScore();
}

}  // namespace dialogs
