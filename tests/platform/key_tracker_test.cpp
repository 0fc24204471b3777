// Held keys and typed keys, told apart by their times.
#include "../../platform/key_tracker.h"

#include <gtest/gtest.h>

#include <vector>

namespace tests {
namespace {

using platform::KeyTracker;

enum class Does { Press, Release, PressMarked, ReleaseMarked, StillReleased };

struct Step {
  Does What;
  int At;              ///< milliseconds; of `StillReleased`: the time of the release that waits
  char Outcome = 'y';  ///< 'c'ounts, 'w'aits, 'r'epeat; of `StillReleased`: 'y'es or 'n'o
};

char Play(KeyTracker& keys, const Step& step) {
  const KeyTracker::Time at(step.At);
  const bool marked = step.What == Does::PressMarked || step.What == Does::ReleaseMarked;
  if (step.What == Does::StillReleased) return keys.Expired('A', at) ? 'y' : 'n';
  const bool press = step.What == Does::Press || step.What == Does::PressMarked;
  const auto verdict = press ? keys.Press('A', at, marked) : keys.Release('A', at, marked);
  return verdict == KeyTracker::Verdict::Counts ? 'c' : verdict == KeyTracker::Verdict::Waits ? 'w' : 'r';
}

TEST(KeyTrackerTest, TellsRepeatsFromStrokes) {
  using enum Does;
  const std::pair<const char*, std::vector<Step>> stories[] = {
      {"typed twice", {{Press, 0, 'c'}, {Release, 80, 'c'}, {Press, 90, 'c'}, {Release, 149, 'c'}}},
      {"held, never repeated",
       {{Press, 0, 'c'}, {Release, 150, 'w'}, {StillReleased, 150}, {StillReleased, 150, 'n'}, {Press, 180, 'c'}}},
      {"repeats without marks",
       {{Press, 0, 'c'},
        {Release, 500, 'w'},
        {Press, 500, 'r'},
        {StillReleased, 500, 'n'},
        {Release, 530, 'w'},
        {Press, 531, 'r'},
        {Release, 560, 'w'},
        {StillReleased, 530, 'n'},
        {StillReleased, 560}}},
      {"marked repeats",
       {{Press, 0, 'c'},
        {ReleaseMarked, 500, 'r'},
        {PressMarked, 500, 'r'},
        {Release, 600, 'w'},
        {StillReleased, 600}}},
      {"release of a repeat marked, its press not",
       {{Press, 0, 'c'}, {ReleaseMarked, 500, 'r'}, {Press, 500, 'r'}, {Release, 600, 'w'}, {StillReleased, 600}}},
      {"second stroke marked wrongly",
       {{Press, 0, 'c'}, {ReleaseMarked, 1, 'c'}, {PressMarked, 1, 'c'}, {Release, 2, 'c'}}},
      {"held since before the window had the keyboard", {{PressMarked, 0, 'r'}}},
  };
  for (const auto& [what, steps] : stories) {
    KeyTracker keys;
    for (const Step& step : steps) EXPECT_EQ(Play(keys, step), step.Outcome) << what << " at " << step.At;
  }
}

}  // namespace
}  // namespace tests
