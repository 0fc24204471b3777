#include "game_info.h"

#include "../core/texts.h"
#include "image_lists.h"
#include "storable_field.h"

namespace windows {
namespace {

namespace text = core::text;
using platform::Place;

// Within the frame.
constexpr Place kTitleLabelPlace{180, 360, 945, 255};
constexpr Place kTitlePlace{1290, 300, 2475, 285};
constexpr Place kInfoLabelPlace{180, 690, 945, 255};
constexpr Place kInfoPlace{1290, 630, 2475, 285};

constexpr int kMostWithoutPicture = 4;  // players

}  // namespace

GameInfoFrame::GameInfoFrame(platform::Container* form, Place place, const core::State& state)
    : fraSpielInfo(form, "fraSpielInfo", place),
      lblC(&fraSpielInfo, "lblC", kTitleLabelPlace),
      txtSpieltitel(&fraSpielInfo, "txtSpieltitel", kTitlePlace),
      lblD(&fraSpielInfo, "lblD", kInfoLabelPlace),
      txtSpielinfo(&fraSpielInfo, "txtSpielinfo", kInfoPlace) {
  for (auto* field : {&txtSpieltitel, &txtSpielinfo}) KeepStorable(*field, state);
}

void GameInfoFrame::SetCaptions(const core::State& state) {
  fraSpielInfo.Caption = state.Text(text::ShortDescription);
  lblC.Caption = txtSpieltitel.SpokenName = state.Text(text::GameTitle);
  lblD.Caption = txtSpielinfo.SpokenName = state.Text(text::InfoLine);
}

void ShowGameStatus(const platform::ControlArray<platform::PictureBox>& pictures, const GameStatus& status,
                    const core::State& state) {
  int index = pictures.First();
  const auto show = [&](bool shown, GamePicture image, const std::string& spoken) {
    platform::PictureBox& picture = pictures(index++);
    picture.Image = shown ? imlGameType.Image(image) : platform::Picture{};
    picture.SpokenName = shown ? spoken : std::string();
  };
  if (status.BaseGame) {
    show(true, kBaseGamePicture, state.Text(text::BaseGame));
  } else {
    show(true, kFirstExpansionPicture, state.Text(text::FirstExpansion));
  }
  show(status.Flottillen, kFlottillenPicture, state.Text(text::SecondExpansion));
  show(status.Scenario, kScenarioPicture, state.Text(text::Scenario));
  show(status.Players > kMostWithoutPicture, kManyPlayersPicture,
       std::to_string(status.Players) + " " + state.TextOr(text::PlayersAfterNumber, text::Player));
}

}  // namespace windows
