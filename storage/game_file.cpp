#include "game_file.h"

#include "../core/numbers.h"
#include "game_file_layout.h"
#include "line_writer.h"
#include "words.h"

namespace storage {
namespace {

class WrittenLines {
 public:
  bool Text(std::string_view text) { return Add(text); }
  bool Number(std::int16_t number) { return Add(std::to_string(number)); }
  bool PaddedNumber(std::int16_t number) { return Add(core::PrintedNumber(number)); }
  bool Flag(bool flag) { return Add(FlagWord(flag)); }
  const std::string& Bytes() const { return writer_.Bytes(); }

 private:
  bool Add(std::string_view line) {
    writer_.Add(line);
    return true;
  }
  LineWriter writer_;
};

}  // namespace

std::string GameFileText(const core::State& state) {
  const core::Game& game = state.game;
  WrittenLines lines;
  lines.Text(kNewestVersion);
  for (const core::TPlayer& player : core::WithoutPlaceZero(game.Players)) PlayerLines(lines, player);
  CountLines(lines, game);
  RollLines(lines, core::WithoutPlaceZero(game.DiceLog));
  KindLines(lines, game);
  EndLines(lines, state);
  lines.Number(game.Clock[0]);
  return lines.Bytes();
}

}  // namespace storage
