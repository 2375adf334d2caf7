#pragma once
#include "platform/Control.h"

namespace qp {

class EventLoop;

// A timer ticks every Interval ms while Enabled and Interval > 0. Setting Enabled or Interval
// restarts the count from now.
class Timer : public Control {
 public:
  Timer(Form* form, QString name, int intervalMs, bool enabled = false);
  ~Timer() override;
  ControlKind kind() const override { return ControlKind::Timer; }
  Prop<int> Interval{this, 0};
  std::function<void()> Timer_;  // the Timer event: tDraw.Timer_ = [this] { tDraw_Timer(); };
  void raiseTimer() { if (Timer_) Timer_(); }
  bool running() const { return Enabled && Interval > 0; }

 private:
  EventLoop& loop_;
};

}  // namespace qp
