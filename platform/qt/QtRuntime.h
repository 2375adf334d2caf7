#pragma once
// The runtime on a real desktop: Qt's event loop and clock, real message boxes, the system
// clipboard and the primary screen.
#include <QElapsedTimer>
#include <QEventLoop>
#include <QObject>
#include <QTimer>
#include <map>
#include <memory>

#include "platform/EventLoop.h"
#include "platform/Runtime.h"

namespace qp {

class QtLoop : public EventLoop {
 public:
  QtLoop();
  ~QtLoop() override;
  std::int64_t now() const override { return clock_.elapsed(); }
  void processEvents() override;
  void timerChanged(Timer* t) override;
  void timerDestroyed(Timer* t) override;
  void post(std::function<void()> fn) override;
  void waitUntil(std::int64_t until) override;
  void runModal(const std::function<bool()>& done) override;
  void windowHidden() override;

 private:
  struct Nested {
    QEventLoop* loop;
    const std::function<bool()>* done;
  };
  void fire(Timer* t);
  std::vector<Nested> nested_;
  QElapsedTimer clock_;
  QObject context_;  // owns the QTimers and the posted calls, so they die with the loop
  std::map<Timer*, std::unique_ptr<QTimer>> timers_;
  std::vector<Timer*> busy_;
  int depth_ = 0;
};

class QtMessageBoxes : public MessageBoxes {
 public:
  int MsgBox(const QString& prompt, int buttons, const QString& title) override;
};

class QtClipboard : public Clipboard {
 public:
  void Clear() override;
  void SetData(const QImage& picture) override;
  QImage GetData() const override;
};

class QtScreen : public Screen {
 public:
  int Width() const override;
  int Height() const override;
  QStringList Fonts() const override;
};

// Everything a form needs on the desktop, in one object: `QtRuntime q; frmCanvas f(q.rt());`.
struct QtRuntime {
  explicit QtRuntime(std::uint32_t seed = 1) : rnd(seed) {}
  QtRuntime(const QtRuntime&) = delete;
  QtRuntime& operator=(const QtRuntime&) = delete;

  QtLoop loop;
  Random rnd;
  QtMessageBoxes msgbox;
  QtClipboard clipboard;
  QtScreen screen;
  Runtime& rt() { return runtime_; }

 private:
  Runtime runtime_{loop, rnd, msgbox, clipboard, screen};
};

}  // namespace qp
