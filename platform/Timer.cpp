#include "platform/Timer.h"

#include "platform/EventLoop.h"
#include "platform/Form.h"

namespace qp {

Timer::Timer(Form* form, QString name, int intervalMs, bool enabled)
    : Control(form, nullptr, std::move(name)), loop_(form->runtime().loop) {
  Interval.setRaw(intervalMs < 0 ? 0 : intervalMs);
  Enabled.setRaw(enabled);
  // Writing the interval always starts the count again; switching on or off only when it changes,
  // so that `Enabled = True` on a running timer keeps its rhythm.
  Interval.setSetter([this](const int& v) {
    if (v < 0 || v > 65535) raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value");
    Interval.setRaw(v);
    loop_.timerChanged(this);
  });
  Enabled.setSetter([this](const bool& v) {
    if (v == Enabled.get()) return;
    Enabled.setRaw(v);
    loop_.timerChanged(this);
  });
  if (running()) loop_.timerChanged(this);
}

Timer::~Timer() { loop_.timerDestroyed(this); }

}  // namespace qp
