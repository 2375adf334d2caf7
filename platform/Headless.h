#pragma once
// The runtime without a screen: message boxes that answer by themselves and remember what they
// showed, a clipboard in memory, a screen of fixed size. Tests and the script runner use these with
// the virtual loop, so that a whole session runs exactly and at once.
#include <QImage>
#include <QString>
#include <QStringList>
#include <deque>
#include <vector>

#include "platform/EventLoop.h"
#include "platform/Runtime.h"

namespace qp {

class HeadlessMessageBoxes : public MessageBoxes {
 public:
  struct Shown {
    QString title;
    QString prompt;
    int buttons;
    int answer;
  };
  int MsgBox(const QString& prompt, int buttons, const QString& title) override;

  // The answer for boxes that have no queued answer; 0 means the box's first button.
  void setDefaultAnswer(int answer) { defaultAnswer_ = answer; }
  // Answers for the next boxes, in order, before the default applies again.
  void queueAnswer(int answer) { queued_.push_back(answer); }
  const std::vector<Shown>& shown() const { return shown_; }
  void clear() { shown_.clear(); }

  // The first button of a box with these buttons, as a user pressing Enter would choose.
  static int firstButton(int buttons);

 private:
  int defaultAnswer_ = 0;
  std::deque<int> queued_;
  std::vector<Shown> shown_;
};

class MemoryClipboard : public Clipboard {
 public:
  void Clear() override { picture_ = QImage(); }
  void SetData(const QImage& picture) override { picture_ = picture; }
  QImage GetData() const override { return picture_; }

 private:
  QImage picture_;
};

class FixedScreen : public Screen {
 public:
  // Size in pixels; the screen reports twips. Without a list, the fonts are those Qt knows.
  explicit FixedScreen(int widthPx = 1280, int heightPx = 1024);
  FixedScreen(int widthPx, int heightPx, QStringList fonts);
  int Width() const override { return widthPx_ * TwipsPerPixelX; }
  int Height() const override { return heightPx_ * TwipsPerPixelY; }
  QStringList Fonts() const override;
  void setSize(int widthPx, int heightPx) { widthPx_ = widthPx; heightPx_ = heightPx; }

 private:
  int widthPx_;
  int heightPx_;
  mutable QStringList fonts_;
  mutable bool fontsKnown_;  // Qt's fonts are asked for only when needed, and only with an app
};

// Everything a form needs, headless, in one object: `HeadlessRuntime h; frmCanvas f(h.rt());`.
struct HeadlessRuntime {
  explicit HeadlessRuntime(std::uint32_t seed = 1) : rnd(seed) {}
  HeadlessRuntime(const HeadlessRuntime&) = delete;
  HeadlessRuntime& operator=(const HeadlessRuntime&) = delete;

  VirtualLoop loop;
  Random rnd;
  HeadlessMessageBoxes msgbox;
  MemoryClipboard clipboard;
  FixedScreen screen;
  Runtime& rt() { return runtime_; }

 private:
  Runtime runtime_{loop, rnd, msgbox, clipboard, screen};
};

}  // namespace qp
