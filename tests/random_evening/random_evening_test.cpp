// Random evenings in the model of the forms, a million events. To play one seed again, or longer:
//   ORVANBEG_EVENING_SEED=3 ORVANBEG_EVENING_EVENTS=5000000 random_evening_tests
#include "random_evening.h"

#include "../../storage/game_file.h"
#include "../storage/random_state.h"

namespace tests {
namespace {

constexpr unsigned kEvenings = 5;
#ifdef NDEBUG
constexpr unsigned kEvents = 1'000'000 / kEvenings;
#else  // the debug build carries the sanitizers
constexpr unsigned kEvents = 60'000 / kEvenings;
#endif
constexpr unsigned kEnoughForAll = 200'000;  // events in which every dialog has been open

TEST_P(RandomEvening, KeepsWhatMustAlwaysHold) {
  const unsigned events = FromEnvironment("ORVANBEG_EVENING_EVENTS", kEvents);
  Play(events);
  if (HasFatalFailure() || events < kEnoughForAll) return;
  EXPECT_THAT(seen, testing::IsSupersetOf({"F4", "F7", "F9", "F11", "F20", "expansion", "full log"}))
      << "the evening missed something of the game";
}

/// Every game that is loaded has any number in every field; the sanitizers look on.
class HostileEvening : public RandomEvening {
 protected:
  HostileEvening() {
    chance.ChosenFile = storage::TextOf(Folder / "hostile.obg");
    chance.BeforeAFileIsChosen = [this] {
      core::State state = RandomState(games_);
      if (chance.Percent(20)) state.game.GameType = static_cast<std::int16_t>(games_());
      if (chance.Percent(50)) state.game.DiceCount.fill(40);  // so that the log is read, with whatever it holds
      Put(chance.ChosenFile, storage::GameFileText(state));
      seen.insert("file");
    };
  }
  std::string Offence() override { return LockOffence(); }

 private:
  std::mt19937 games_{GetParam()};
};

TEST_P(HostileEvening, DoesNoHarm) {
  Play(FromEnvironment("ORVANBEG_EVENING_EVENTS", kEvents));
  EXPECT_TRUE(seen.contains("file"));
}

std::vector<unsigned> Seeds() {
  std::vector<unsigned> seeds(kEvenings);
  std::iota(seeds.begin(), seeds.end(), 1U);
  const unsigned seed = FromEnvironment("ORVANBEG_EVENING_SEED", 0);
  return seed ? std::vector{seed} : seeds;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEvening, testing::ValuesIn(Seeds()), testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(Seed, HostileEvening, testing::Values(Seeds()[0]), testing::PrintToStringParamName());

}  // namespace
}  // namespace tests
