// The virtual loop: a clock that moves only when told, running every timer tick on the way in
// order of due time, so that timed drawing is exact and instant under test.
#include "platform/EventLoop.h"

#include <algorithm>

#include "platform/Errors.h"
#include "platform/Timer.h"

namespace qp {

namespace {
// DoEvents inside DoEvents inside a tick is legal, but a handler that calls it in a loop must not
// stack up without end.
constexpr int kMaxNesting = 8;
}  // namespace

VirtualLoop::VirtualLoop() = default;
VirtualLoop::~VirtualLoop() = default;

void VirtualLoop::timerChanged(Timer* t) {
  entries_.erase(std::remove_if(entries_.begin(), entries_.end(), [t](const Entry& e) { return e.timer == t; }),
                 entries_.end());
  if (t->running()) entries_.push_back({t, now_ + t->Interval.get(), ++generation_});
}

void VirtualLoop::timerDestroyed(Timer* t) {
  entries_.erase(std::remove_if(entries_.begin(), entries_.end(), [t](const Entry& e) { return e.timer == t; }),
                 entries_.end());
  busy_.erase(std::remove(busy_.begin(), busy_.end(), t), busy_.end());
}

void VirtualLoop::post(std::function<void()> fn) {
  if (fn) posted_.push_back(std::move(fn));
}

void VirtualLoop::runPosted() {
  // Only the tasks waiting now: a task that posts another leaves it for the next turn.
  std::vector<std::function<void()>> batch;
  batch.swap(posted_);
  for (auto& fn : batch) trap(fn);
}

bool VirtualLoop::fireNextDue(std::int64_t until) {
  Entry* next = nullptr;
  for (Entry& e : entries_) {
    if (e.due > until) continue;
    if (std::find(busy_.begin(), busy_.end(), e.timer) != busy_.end()) continue;  // no re-entry
    if (!next || e.due < next->due || (e.due == next->due && e.generation < next->generation)) next = &e;
  }
  if (!next) return false;
  Timer* t = next->timer;
  now_ = std::max(now_, next->due);
  // The next tick counts from this one's due time; the handler may still restart or stop it.
  next->due += t->Interval.get();
  busy_.push_back(t);
  trap([t] { t->raiseTimer(); });
  // The handler may have destroyed its own timer, which already took it off the busy list.
  if (auto it = std::find(busy_.rbegin(), busy_.rend(), t); it != busy_.rend()) busy_.erase(std::next(it).base());
  return true;
}

void VirtualLoop::processEvents() {
  const std::int64_t target = now_ + doEventsStep_;
  if (depth_ >= kMaxNesting) {  // too deep to run anything more, but time still passes
    now_ = target;
    return;
  }
  ++depth_;
  runPosted();
  // Timers due on the way, each at most as often as it falls due; a busy timer is skipped.
  while (fireNextDue(target)) runPosted();
  now_ = std::max(now_, target);
  --depth_;
}

void EventLoop::waitUntil(std::int64_t until) {
  while (now() < until && !closing()) processEvents();
}

void VirtualLoop::waitUntil(std::int64_t until) {
  if (until <= now_) return;
  if (depth_ >= kMaxNesting) {  // too deep to run anything more, but the wait still ends
    now_ = until;
    return;
  }
  ++depth_;
  runPosted();
  while (fireNextDue(until)) runPosted();
  now_ = std::max(now_, until);
  --depth_;
}

void VirtualLoop::runModal(const std::function<bool()>& done) {
  // Time moves only when an input says so (a script's wait), so there is nothing to wait for.
  runPosted();
  feedUntil(done);
}

void VirtualLoop::advance(std::int64_t ms) {
  if (ms < 0) ms = 0;
  const std::int64_t target = now_ + ms;
  ++depth_;
  runPosted();
  while (fireNextDue(target)) runPosted();
  now_ = std::max(now_, target);
  runPosted();
  --depth_;
}

}  // namespace qp
