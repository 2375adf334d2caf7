#include "platform/qt/QtRuntime.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QMimeData>
#include <QMessageBox>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "platform/Errors.h"
#include "platform/PictureDecode.h"
#include "platform/Timer.h"

namespace qp {

namespace {
// A DoEvents inside a DoEvents is legal; an endless tower of them is not.
constexpr int kMaxNesting = 8;
}  // namespace

QtLoop::QtLoop() { clock_.start(); }

QtLoop::~QtLoop() = default;

void QtLoop::processEvents() {
  if (depth_ >= kMaxNesting) return;
  ++depth_;
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  --depth_;
}

void QtLoop::waitUntil(std::int64_t until) {
  if (depth_ >= kMaxNesting) return;
  ++depth_;
  // Sleeps until an event comes or the wait is over: the input and repaints of the window get
  // through while a drawing paces itself, and no core spins.
  QTimer wake;
  wake.setSingleShot(true);
  wake.setTimerType(Qt::PreciseTimer);
  while (!closing()) {
    const std::int64_t left = until - now();
    if (left <= 0) break;
    wake.start(static_cast<int>(std::min<std::int64_t>(left, 1000)));
    QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
  }
  --depth_;
}

void QtLoop::timerChanged(Timer* t) {
  auto& slot = timers_[t];
  if (!slot) {
    slot = std::make_unique<QTimer>(&context_);
    slot->setTimerType(Qt::PreciseTimer);
    QObject::connect(slot.get(), &QTimer::timeout, &context_, [this, t] { fire(t); });
  }
  if (t->running()) {
    slot->start(t->Interval.get());  // start() restarts the count from now
  } else {
    slot->stop();
  }
}

void QtLoop::timerDestroyed(Timer* t) {
  // The timer may go away inside its own tick; its QTimer is then still sending, so it goes later.
  if (auto it = timers_.find(t); it != timers_.end()) {
    it->second->stop();
    it->second.release()->deleteLater();
    timers_.erase(it);
  }
  busy_.erase(std::remove(busy_.begin(), busy_.end(), t), busy_.end());
}

void QtLoop::fire(Timer* t) {
  // A handler that runs DoEvents may see its own timer fall due again; it waits for the next tick.
  if (std::find(busy_.begin(), busy_.end(), t) != busy_.end()) return;
  busy_.push_back(t);
  trap([t] { t->raiseTimer(); });
  if (auto it = std::find(busy_.begin(), busy_.end(), t); it != busy_.end()) busy_.erase(it);
}

void QtLoop::post(std::function<void()> fn) {
  if (!fn) return;
  QTimer::singleShot(0, &context_, [fn = std::move(fn)] { trap(fn); });
}

void QtLoop::runModal(const std::function<bool()>& done) {
  // A script on screen plays the user: its next lines are the input, delivered from here.
  if (hasInputSource()) {
    feedUntil(done);
    return;
  }
  if (done()) return;
  // The user's input arrives through Qt's own loop, run here until the window hides.
  QEventLoop nested;
  nested_.push_back({&nested, &done});
  nested.exec();
  nested_.pop_back();
}

void QtLoop::windowHidden() {
  for (const Nested& n : nested_)
    if ((*n.done)()) n.loop->quit();
}

int QtMessageBoxes::MsgBox(const QString& prompt, int buttons, const QString& title) {
  QMessageBox box(QApplication::activeWindow());
  box.setWindowTitle(title);
  box.setText(prompt);
  switch (buttons & 0x70) {
    case vbQuestion: box.setIcon(QMessageBox::Question); break;
    case vbExclamation: box.setIcon(QMessageBox::Warning); break;
    case vbInformation: box.setIcon(QMessageBox::Information); break;
    case 16: box.setIcon(QMessageBox::Critical); break;
    default: break;
  }
  struct Choice {
    QMessageBox::StandardButton button;
    int result;
  };
  std::vector<Choice> choices;
  switch (buttons & 7) {
    case vbOKCancel: choices = {{QMessageBox::Ok, vbOK}, {QMessageBox::Cancel, vbCancel}}; break;
    case 2: choices = {{QMessageBox::Abort, vbAbort}, {QMessageBox::Retry, vbRetry}, {QMessageBox::Ignore, vbIgnore}}; break;
    case vbYesNoCancel: choices = {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}, {QMessageBox::Cancel, vbCancel}}; break;
    case vbYesNo: choices = {{QMessageBox::Yes, vbYes}, {QMessageBox::No, vbNo}}; break;
    case 5: choices = {{QMessageBox::Retry, vbRetry}, {QMessageBox::Cancel, vbCancel}}; break;
    default: choices = {{QMessageBox::Ok, vbOK}}; break;
  }
  QMessageBox::StandardButtons set;
  for (auto& c : choices) set |= c.button;
  box.setStandardButtons(set);
  box.setDefaultButton(choices.front().button);
  const int chosen = box.exec();
  for (auto& c : choices)
    if (chosen == c.button) return c.result;
  // Closed without a button: the box's cancel, or its only button.
  for (auto& c : choices)
    if (c.result == vbCancel) return vbCancel;
  return choices.back().result;
}

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::SetData(const QImage& picture) { QGuiApplication::clipboard()->setImage(picture); }

// A picture another program put on the clipboard comes as the bytes of a file: it is decoded as
// a file is, so that pixels its data does not give are black and not left-over memory.
QImage QtClipboard::GetData() const {
  const QClipboard* board = QGuiApplication::clipboard();
  const QMimeData* mime = board->mimeData();
  if (mime && !board->ownsClipboard()) {
    for (const QString& type : mime->formats()) {
      if (!type.startsWith("image/")) continue;
      const QImage picture = DecodePicture(mime->data(type), {}, kPictureLimits);
      if (!picture.isNull()) return picture;
    }
  }
  return board->image();
}

namespace {
// The screen the program's window is on: the full-screen spirals cover that one.
const QScreen* currentScreen() {
  if (const QWidget* w = QApplication::activeWindow()) return w->screen();
  return QGuiApplication::primaryScreen();
}
}  // namespace

int QtScreen::Width() const {
  const QScreen* s = currentScreen();
  return s ? s->size().width() * TwipsPerPixelX : 0;
}

int QtScreen::Height() const {
  const QScreen* s = currentScreen();
  return s ? s->size().height() * TwipsPerPixelY : 0;
}

QStringList QtScreen::Fonts() const {
  QStringList fonts = QFontDatabase::families();
  std::sort(fonts.begin(), fonts.end(), [](const QString& a, const QString& b) {
    return QString::compare(a, b, Qt::CaseInsensitive) < 0;
  });
  return fonts;
}

}  // namespace qp
