#pragma once
// Runs script commands against a running Quillora: every input goes to the controls' own events,
// exactly as the window would deliver it, and every reading comes from the controls and variables.
#include <QString>
#include <QTextStream>
#include <cstdint>
#include <vector>

#include "script/Command.h"

namespace qp {
class Control;
class Form;
class Program;
class VisualControl;
struct Runtime;
}  // namespace qp

namespace qp::script {

// What a run needs from around it, which differs between a headless run and one on screen.
class Host {
 public:
  virtual ~Host() = default;
  // Lets ms milliseconds pass, running the timers and queued work that fall due.
  virtual void wait(std::int64_t ms) = 0;
  // After each input, as after each real event: queued work runs and the window catches up.
  virtual void afterInput() = 0;
  virtual bool screenshot(const QString& file, QString& why) = 0;
  // The text of the last message box, lines joined by \n; "" before the first.
  virtual QString lastMessageBox() const = 0;
  virtual bool quitRequested() const = 0;
};

class Runner {
 public:
  enum class Outcome { Done, ExpectFailed, Error, Quit };

  Runner(Program& program, Runtime& rt, Host& host, QTextStream& out, QTextStream& err);

  // Where relative input files (drop, clipboard load) are looked for first: the script's folder.
  void setInputFolder(const QString& folder) { inputFolder_ = folder; }
  // Silences the note about inputs to hidden or disabled controls (the monkey makes many).
  void setQuietUnreachable(bool quiet) { quietUnreachable_ = quiet; }

  Outcome run(const Command& c);
  // Runs the commands in order; stops at an error or when the program ends. Returns the exit
  // status: 0 every expect held, 1 one failed, 2 the script could not run.
  int runAll(const std::vector<Command>& commands);

  // The control a script names: "vVal1", "Shadow(5)", "frmCanvas", "frmTile.cTile".
  Control* resolve(const QString& path) const;
  std::vector<Form*> forms() const;

 private:
  Outcome error(const Command& c, const QString& message);
  bool reachable(const Control& c) const;
  VisualControl* visual(const Command& c, Outcome& o);
  Outcome pointer(const Command& c);
  Outcome click(const Command& c);
  Outcome menu(const Command& c);
  Outcome key(const Command& c);
  Outcome type(const Command& c);
  Outcome set(const Command& c);
  Outcome drop(const Command& c);
  Outcome clipboard(const Command& c);
  Outcome save(const Command& c);
  Outcome readOut(const Command& c);
  void keyDown(int code, int shift);
  void keyUp(int code, int shift);
  void keyPress(int ascii);
  QString inputFile(const QString& name) const;

  Program& p_;
  Runtime& rt_;
  Host& host_;
  QTextStream& out_;
  QTextStream& err_;
  QString inputFolder_;
  bool quietUnreachable_ = false;
  Form* activeForm_;
};

}  // namespace qp::script
