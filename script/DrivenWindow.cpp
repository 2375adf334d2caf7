// A window session driven by a script, with the recovery copy a user's session keeps.
#include "script/DrivenWindow.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "app/Program.h"
#include "files/Recovery.h"
#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "platform/qt/QtRuntime.h"
#include "script/Command.h"
#include "script/Limits.h"
#include "script/Sessions.h"

namespace qp::script {

namespace {

class DrivenSession : public Host {
 public:
  DrivenSession(std::uint32_t seed, QTextStream& out)
      : out_(out), qt_(seed), msgbox_(answers_, &out), runtime_{qt_.loop, qt_.rnd, msgbox_, qt_.clipboard, qt_.screen} {
    program_ = std::make_unique<Program>(runtime_, [this] { quit_ = true; });
    view_ = std::make_unique<FormView>(program_->f);
    program_->start();
    view_->sync();
    view_->window().show();
    keeper_ = std::make_unique<RecoveryKeeper>(program_->s, recoveryFolder(), recoveryDelayMs());
    keeper_->written = [this] {
      out_ << "recovery written" << Qt::endl;
    };
    keeper_->offer();
    view_->sync();
  }
  ~DrivenSession() override {
    keeper_.reset();
    view_.reset();
    program_.reset();
  }
  Program& program() { return *program_; }
  Runtime& rt() { return runtime_; }

  void wait(std::int64_t ms) override {
    out_.flush();  // what the script printed so far is seen while it waits
    if (quit_) return;
    QEventLoop pause;
    QTimer::singleShot(static_cast<int>(std::min<std::int64_t>(ms, kMaxWaitMs)), &pause, &QEventLoop::quit);
    pause.exec();
  }
  void afterInput() override {
    QCoreApplication::processEvents();
    view_->sync();
  }
  bool screenshot(const QString& file, QString& why) override {
    if (grabWindows(*view_).save(file, "PNG")) return true;
    why = "the file could not be written";
    return false;
  }
  QString lastMessageBox() const override { return msgbox_.last(); }
  bool quitRequested() const override { return quit_; }

 private:
  QTextStream& out_;
  QtRuntime qt_;
  HeadlessMessageBoxes answers_;
  ScriptMessageBoxes msgbox_;
  Runtime runtime_;
  bool quit_ = false;
  std::unique_ptr<Program> program_;
  std::unique_ptr<FormView> view_;
  std::unique_ptr<RecoveryKeeper> keeper_;
};

}  // namespace

int runDrivenWindow(const QString& file) {
  QTextStream out(stdout), err(stderr);
  QFile f(file);
  if (!f.open(QIODevice::ReadOnly)) {
    err << "cannot read the script " << file << ": " << f.errorString() << Qt::endl;
    return 2;
  }
  std::vector<Command> commands;
  ParseError perr;
  if (!parseScript(QString::fromUtf8(f.read(kMaxScriptBytes)), commands, perr)) {
    err << file << ": line " << perr.line << ": " << perr.message << Qt::endl;
    return 2;
  }
  const std::uint32_t seed = takeLeadingSeed(commands);
  DrivenSession session(seed, out);
  Runner runner(session.program(), session.rt(), session, out, err);
  runner.setInputFolder(QFileInfo(file).absolutePath());
  const int status = runner.runAll(commands);
  out.flush();
  return status;
}

}  // namespace qp::script
