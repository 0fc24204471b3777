#include "game_status.h"

#include "image_lists.h"

namespace windows {
namespace {

constexpr int kMostWithoutPicture = 4;  // players

}  // namespace

void ShowGameStatus(const platform::ControlArray<platform::PictureBox>& pictures, const GameStatus& status,
                    const core::State& state) {
  const struct {
    bool shown;
    int image;
    std::string spoken;
  } rows[] = {{true, status.BaseGame ? 1 : 2, state.Text(status.BaseGame ? 66 : 67)},
              {status.Flottillen, 3, state.Text(68)},
              {status.Scenario, 5, state.Text(69)},
              {status.Players > kMostWithoutPicture, 4, std::to_string(status.Players) + " " + state.Text(16)}};
  int index = pictures.First();
  for (const auto& [shown, image, spoken] : rows) {
    platform::PictureBox& picture = pictures(index++);
    picture.Image = shown ? imlGameType.Image(image) : platform::Picture{};
    picture.SpokenName = shown ? spoken : std::string();
  }
}

}  // namespace windows
