#include "key_tracker.h"

namespace platform {

KeyTracker::Verdict KeyTracker::Press(KeyCode code, Time now, bool markedAsRepeat) {
  if (markedAsRepeat && marksAreTrue_) return Verdict::Repeat;
  State& key = keys_[code];
  const bool typedJustBefore = key.releasedAt && now - *key.releasedAt < kRepeatDelay;
  const bool repeat = key.isDown || (markedAsRepeat && !typedJustBefore);
  if (!key.isDown) key.downSince = now;
  key.isDown = true;
  key.releasedAt.reset();
  return repeat ? Verdict::Repeat : Verdict::Counts;
}

KeyTracker::Verdict KeyTracker::Release(KeyCode code, Time now, bool markedAsRepeat) {
  if (markedAsRepeat && marksAreTrue_) return Verdict::Repeat;
  State& key = keys_[code];
  const bool heldLong = key.isDown && now - key.downSince >= kRepeatDelay;
  if (markedAsRepeat && (heldLong || !key.isDown)) return Verdict::Repeat;
  key.releasedAt = now;
  key.isDown = heldLong;  // until it is certain that no repeat follows
  return heldLong ? Verdict::Waits : Verdict::Counts;
}

bool KeyTracker::Expired(KeyCode code, Time since) {
  State& key = keys_[code];
  if (!key.isDown || key.releasedAt != since) return false;
  key.isDown = false;
  return true;
}

}  // namespace platform
