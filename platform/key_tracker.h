// Distinguishes a key that is held from one that is pressed again. Window systems repeat a held key as pairs of release
// and press and mark only some of them. An unmarked repeat is recognised by its press, which follows its release
// immediately. The release of a key that was held for some time therefore waits a moment before it counts.
#pragma once

#include <chrono>
#include <map>
#include <optional>

#include "keys.h"

namespace platform {

class KeyTracker {
 public:
  using Time = std::chrono::milliseconds;
  /// A key that was down for less was never repeated: keyboards wait longer before the first repeat.
  static constexpr Time kRepeatDelay{150};
  /// How long a release waits for the press of a repeat.
  static constexpr Time kPatience{20};

  /// `marksAreTrue`: the toolkit repeats keys itself, and marks each repeat.
  explicit KeyTracker(bool marksAreTrue = false) : marksAreTrue_(marksAreTrue) {}

  enum class Verdict { Counts, Waits, Repeat };

  /// A key goes down at a time. `Repeat`: it was down all the while, nothing happened. Marks are believed only where
  /// they can be true: of a key typed twice within a millisecond the second stroke is marked wrongly.
  Verdict Press(KeyCode code, Time now, bool markedAsRepeat);
  /// A key comes up. `Waits`: ask `Expired` after kPatience whether it has come up for good.
  Verdict Release(KeyCode code, Time now, bool markedAsRepeat);
  /// Whether the release that waits since `since` counts: true once, unless a press has taken it back.
  bool Expired(KeyCode code, Time since);
  void Forget() { keys_.clear(); }

 private:
  struct State {
    bool isDown = false;
    Time downSince{};
    std::optional<Time> releasedAt;  ///< set while a release waits, and after the key came up for good
  };
  const bool marksAreTrue_;
  std::map<KeyCode, State> keys_;
};

}  // namespace platform
