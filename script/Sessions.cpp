// The two runtimes a script runs on.
#include "script/Sessions.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <QMainWindow>
#include <QPixmap>

#include "platform/qt/FormView.h"
#include "platform/qt/QtRuntime.h"
#include "app/Program.h"

namespace qp::script {

int ScriptMessageBoxes::MsgBox(const QString& prompt, int buttons, const QString& title) {
  last_ = prompt;
  last_.replace("\r\n", "\n").replace('\r', '\n');
  if (echo_) *echo_ << "msgbox " << quoted(title) << ' ' << quoted(last_) << '\n';
  return inner_.MsgBox(prompt, buttons, title);
}

QImage grabWindows(FormView& view) {
  view.sync();
  return view.window().grab().toImage();
}

// ---------------------------------------------------------------------------------------------

HeadlessSession::HeadlessSession(std::uint32_t seed, QSize screenPixels, QTextStream& out)
    : rnd_(seed),
      msgbox_(answers_, &out),
      screen_(screenPixels.width(), screenPixels.height()),
      runtime_{loop_, rnd_, msgbox_, clipboard_, screen_} {
  program_ = std::make_unique<Program>(runtime_, [this] { quit_ = true; });
  program_->start();
  loop_.runPosted();
}

HeadlessSession::~HeadlessSession() {
  view_.reset();  // the view follows the program's form and must go first
  program_.reset();
}

void HeadlessSession::wait(std::int64_t ms) { loop_.advance(ms); }

void HeadlessSession::afterInput() { loop_.runPosted(); }

bool HeadlessSession::screenshot(const QString& file, QString& why) {
  if (!view_) {
    view_ = std::make_unique<FormView>(program_->f);
    view_->window().show();
  }
  const QImage shot = grabWindows(*view_);
  if (shot.isNull()) {
    why = "the window could not be drawn";
    return false;
  }
  if (!shot.save(file, "PNG")) {
    why = "the file could not be written";
    return false;
  }
  return true;
}

// ---------------------------------------------------------------------------------------------

struct ShownSession::Parts {
  explicit Parts(std::uint32_t seed) : qt(seed), msgbox(qt.msgbox, nullptr) {}
  QtRuntime qt;
  ScriptMessageBoxes msgbox;
  Runtime runtime{qt.loop, qt.rnd, msgbox, qt.clipboard, qt.screen};
};

ShownSession::ShownSession(std::uint32_t seed) : parts_(std::make_unique<Parts>(seed)) {
  program_ = std::make_unique<Program>(parts_->runtime, [this] { quit_ = true; });
  view_ = std::make_unique<FormView>(program_->f);
  for (Form* side : std::initializer_list<Form*>{&program_->w.file, &program_->w.lo, &program_->w.tile,
                                                 &program_->w.blend, &program_->w.stretch,
                                                 &program_->w.full, &program_->w.blue})
    sideViews_.push_back(std::make_unique<FormView>(*side));
  program_->start();
  view_->sync();
  view_->window().show();
}

ShownSession::~ShownSession() {
  sideViews_.clear();
  view_.reset();
  program_.reset();
}

Runtime& ShownSession::rt() { return parts_->runtime; }

void ShownSession::wait(std::int64_t ms) {
  // Real time passes while the window, its timers and its queued work all run.
  if (quit_) return;
  QEventLoop pause;
  QTimer::singleShot(static_cast<int>(std::min<std::int64_t>(ms, 24 * 3600 * 1000)), &pause, &QEventLoop::quit);
  pause.exec();
}

void ShownSession::afterInput() {
  QCoreApplication::processEvents();
  view_->sync();
}

bool ShownSession::screenshot(const QString& file, QString& why) {
  if (!grabWindows(*view_).save(file, "PNG")) {
    why = "the file could not be written";
    return false;
  }
  return true;
}

QString ShownSession::lastMessageBox() const { return parts_->msgbox.last(); }

}  // namespace qp::script
