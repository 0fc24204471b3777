// Held keys and typed keys, told apart by their times.
#include "../../platform/key_tracker.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tests {
namespace {

using platform::KeyTracker;

/// What becomes of a step: "counts", "waits" or "repeat"; of a wait that is over, whether the release stands, "yes" or
/// "no". Marked steps have an "m" behind their word.
std::string Outcome(KeyTracker& keys, const std::string& step, KeyTracker::Time at) {
  if (step == "over") return keys.Expired('A', at) ? "yes" : "no";
  const bool marked = step.back() == 'm';
  const auto verdict = step.starts_with("press") ? keys.Press('A', at, marked) : keys.Release('A', at, marked);
  return verdict == KeyTracker::Verdict::Counts ? "counts" : verdict == KeyTracker::Verdict::Waits ? "waits" : "repeat";
}

/// Each story is a row of steps, their milliseconds and outcomes; "over" has the time of the release that waits.
void Play(KeyTracker keys, const char* what, const char* story) {
  std::istringstream steps(story);
  std::string step, outcome;
  for (int at = 0; steps >> step >> at >> outcome;) {
    EXPECT_EQ(Outcome(keys, step, KeyTracker::Time(at)), outcome) << what << ": " << step << " at " << at;
  }
}

TEST(KeyTrackerTest, TellsRepeatsFromStrokes) {
  const std::pair<const char*, const char*> stories[] = {
      {"typed twice", "press 0 counts release 80 counts press 90 counts release 149 counts"},
      {"held, never repeated", "press 0 counts release 150 waits over 150 yes over 150 no press 180 counts"},
      {"repeats without marks",
       "press 0 counts release 500 waits press 500 repeat over 500 no release 530 waits press 531 repeat "
       "release 560 waits over 530 no over 560 yes"},
      {"marked repeats", "press 0 counts release-m 500 repeat press-m 500 repeat release 600 waits over 600 yes"},
      {"release of a repeat marked, its press not",
       "press 0 counts release-m 500 repeat press 500 repeat release 600 waits over 600 yes"},
      {"second stroke marked wrongly", "press 0 counts release-m 1 counts press-m 1 counts release 2 counts"},
      {"held since before the window had the keyboard", "press-m 0 repeat"}};
  for (const auto& [what, story] : stories) Play(KeyTracker(), what, story);
  Play(KeyTracker(true), "marks that are true, with the time of the first press",
       "press 0 counts release-m 0 repeat press-m 0 repeat release 900 waits over 900 yes");
}

}  // namespace
}  // namespace tests
