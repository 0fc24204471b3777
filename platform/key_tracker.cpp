#include "key_tracker.h"

namespace platform {

KeyTracker::Verdict KeyTracker::Press(KeyCode code, Time now, bool markedAsRepeat) {
  const auto found = keys_.find(code);
  if (found == keys_.end()) {
    keys_[code] = {now, std::nullopt};
    return markedAsRepeat ? Verdict::Repeat : Verdict::Counts;
  }
  found->second.releasedAt.reset();
  return Verdict::Repeat;
}

KeyTracker::Verdict KeyTracker::Release(KeyCode code, Time now, bool markedAsRepeat) {
  if (markedAsRepeat) return Verdict::Repeat;
  const auto found = keys_.find(code);
  if (found == keys_.end()) return Verdict::Counts;
  if (now - found->second.downSince < kRepeatDelay) {
    keys_.erase(found);
    return Verdict::Counts;
  }
  found->second.releasedAt = now;
  return Verdict::Waits;
}

bool KeyTracker::Expired(KeyCode code, Time since) {
  const auto found = keys_.find(code);
  if (found == keys_.end() || found->second.releasedAt != since) return false;
  keys_.erase(found);
  return true;
}

}  // namespace platform
