// Random evenings in the model of the forms, a million events. To play one seed again, or longer:
//   ORVANBEG_EVENING_SEED=3 ORVANBEG_EVENING_EVENTS=5000000 random_evening_tests
#include "random_evening.h"

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

std::vector<unsigned> Seeds() {
  std::vector<unsigned> seeds(kEvenings);
  std::iota(seeds.begin(), seeds.end(), 1U);
  const unsigned seed = FromEnvironment("ORVANBEG_EVENING_SEED", 0);
  return seed ? std::vector{seed} : seeds;
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomEvening, testing::ValuesIn(Seeds()), testing::PrintToStringParamName());

}  // namespace
}  // namespace tests
