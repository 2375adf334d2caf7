#pragma once
// The event loop and its clock. The program runs on Qt's loop with the real clock; tests and scripts
// run on a virtual loop whose clock moves only when told (advance), so timers fire in time order,
// exactly and at once.
#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "platform/WindowOrder.h"

namespace qp {

class Timer;

class EventLoop {
 public:
  virtual ~EventLoop() = default;
  // Milliseconds since the loop began.
  virtual std::int64_t now() const = 0;
  // DoEvents: lets waiting events and due timers run, then returns.
  virtual void processEvents() = 0;
  // Called by a Timer when its Enabled or Interval changes (and when it goes away).
  virtual void timerChanged(Timer* t) = 0;
  virtual void timerDestroyed(Timer* t) = 0;
  // Queues work to run on the loop after the present event.
  virtual void post(std::function<void()> fn) = 0;
  // DoEvents until the clock reaches `until` (ms): the wait of a drawing that paces itself. Events
  // and timers due meanwhile run in their order; a wait already past returns at once.
  virtual void waitUntil(std::int64_t until);
  // The program is ending: a long drawing that waits on the loop stops at its next wait.
  void close() { closing_ = true; }
  bool closing() const { return closing_; }

  // A modal Show waits in a nested loop until done() holds (its window has hidden); events, timers
  // and input go on meanwhile. When an input source is set, the nested loop takes its input from
  // there, one input a call, instead of from a user: that is how a script's next lines reach a
  // modal window. When the source runs dry with the window still open, the nested loop returns
  // (nobody is left to close it); on the virtual loop without a source it returns at once.
  virtual void runModal(const std::function<bool()>& done) = 0;
  // A window hid: a nested loop waiting for it may end.
  virtual void windowHidden() {}
  void setInputSource(std::function<bool()> next) { input_ = std::move(next); }
  bool hasInputSource() const { return static_cast<bool>(input_); }

  // The windows in the order they were last active: keys go to the first one still shown.
  WindowOrder& windows() { return windows_; }

 protected:
  // Runs the input source until done() holds; false when it ran dry first.
  bool feedUntil(const std::function<bool()>& done) {
    const std::function<bool()> next = input_;  // a copy: an input may change the source
    while (!done())
      if (!next || !next()) return done();
    return true;
  }

 private:
  std::function<bool()> input_;
  WindowOrder windows_;
  bool closing_ = false;
};

// Timers fire in order of due time; a timer's next due time is counted from when it fired, as a
// real timer's would be. A tick never interrupts a running handler.
class VirtualLoop : public EventLoop {
 public:
  VirtualLoop();
  ~VirtualLoop() override;
  std::int64_t now() const override { return now_; }
  void processEvents() override;
  void timerChanged(Timer* t) override;
  void timerDestroyed(Timer* t) override;
  void post(std::function<void()> fn) override;
  // Runs the clock to `until`, firing what falls due on the way, as the real wait would.
  void waitUntil(std::int64_t until) override;
  // Never waits: the nested loop is driven by the input source alone (see EventLoop::runModal).
  void runModal(const std::function<bool()>& done) override;

  // Moves the clock by ms, running every timer tick and posted task that falls due on the way.
  void advance(std::int64_t ms);
  // Runs posted tasks only.
  void runPosted();
  // How long one DoEvents takes on the virtual clock. Not zero by default, so that a loop that
  // waits with DoEvents until the clock passes a mark comes to its end, as it does on a real clock.
  void setDoEventsStep(std::int64_t ms) { doEventsStep_ = ms < 0 ? 0 : ms; }

 private:
  struct Entry {
    Timer* timer;
    std::int64_t due;
    std::uint64_t generation;
  };
  bool fireNextDue(std::int64_t until);
  std::int64_t now_ = 0;
  std::vector<Entry> entries_;
  std::vector<std::function<void()>> posted_;
  std::vector<Timer*> busy_;  // timers whose handler is running now
  std::uint64_t generation_ = 0;
  int depth_ = 0;  // nesting of DoEvents inside a tick
  std::int64_t doEventsStep_ = 1;
};

}  // namespace qp
