#pragma once
// A whole Quillora for a script to drive: headless on the virtual clock, or in a window in real
// time. Both build the same Program; only the runtime under it differs.
#include <QSize>
#include <QString>
#include <QTextStream>
#include <memory>
#include <vector>

#include "platform/Headless.h"
#include "platform/Runtime.h"
#include "script/Runner.h"

namespace qp {
class FormView;
class Program;
}  // namespace qp

namespace qp::script {

// Message boxes of a script run: remembered for `msgbox`, printed when nobody sees them, and
// answered by the box underneath (itself headless or real).
class ScriptMessageBoxes : public MessageBoxes {
 public:
  ScriptMessageBoxes(MessageBoxes& inner, QTextStream* echo) : inner_(inner), echo_(echo) {}
  int MsgBox(const QString& prompt, int buttons, const QString& title) override;
  const QString& last() const { return last_; }

 private:
  MessageBoxes& inner_;
  QTextStream* echo_;
  QString last_;
};

class HeadlessSession : public Host {
 public:
  HeadlessSession(std::uint32_t seed, QSize screenPixels, QTextStream& out);
  ~HeadlessSession() override;
  Program& program() { return *program_; }
  Runtime& rt() { return runtime_; }
  MemoryClipboard& clipboard() { return clipboard_; }

  void wait(std::int64_t ms) override;
  void afterInput() override;
  bool screenshot(const QString& file, QString& why) override;
  QString lastMessageBox() const override { return msgbox_.last(); }
  bool quitRequested() const override { return quit_; }

 private:
  VirtualLoop loop_;
  Random rnd_;
  HeadlessMessageBoxes answers_;
  ScriptMessageBoxes msgbox_;
  MemoryClipboard clipboard_;
  FixedScreen screen_;
  Runtime runtime_;
  bool quit_ = false;
  std::unique_ptr<Program> program_;
  std::unique_ptr<FormView> view_;  // made at the first screenshot only: most runs need none
};

class ShownSession : public Host {
 public:
  explicit ShownSession(std::uint32_t seed);
  ~ShownSession() override;
  Program& program() { return *program_; }
  Runtime& rt();

  void wait(std::int64_t ms) override;
  void afterInput() override;
  bool screenshot(const QString& file, QString& why) override;
  QString lastMessageBox() const override;
  bool quitRequested() const override { return quit_; }

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
  bool quit_ = false;
  std::unique_ptr<Program> program_;
  std::unique_ptr<FormView> view_;
  std::vector<std::unique_ptr<FormView>> others_;
};

// A picture of the windows as they are shown, side by side.
QImage grabWindows(FormView& view);

}  // namespace qp::script
