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
  //
  // A modal window blocks the routine that showed it until the window hides, so the lines after
  // the one that opened it must run while that routine still waits: the runner is the loop's
  // input source for the whole run, and the loop's nested loop takes the script's next lines from
  // it one by one until the window hides. Then the opening line finishes and the run goes on after
  // the last line the nested loop took. A script that ends with a modal window open leaves it open.
  int runAll(const std::vector<Command>& commands);

  // The control a script names: "vVal1", "Shadow(5)", "frmCanvas", "frmTile.cTile".
  Control* resolve(const QString& path) const;
  std::vector<Form*> forms() const;

 private:
  Outcome error(const Command& c, const QString& message);
  // Runs the next line of the script; false when there is none or the run must stop.
  bool step();
  // The window that takes the keys: the active one, else the main window.
  Form& keyForm() const;
  // A press, a focus or typing brings the control's window forward.
  void activate(VisualControl& v);
  bool reachable(const Control& c) const;
  bool behindModal(const Form* f) const;
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
  // The run in progress, shared between runAll and the nested loops of modal windows.
  const std::vector<Command>* script_ = nullptr;
  std::size_t next_ = 0;
  bool failed_ = false;
  int stopStatus_ = -1;  // the exit status once the run must stop early
};

}  // namespace qp::script
