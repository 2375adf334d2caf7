#pragma once
// One running Quillora: the session variables, the main window, the tool table, and the wiring
// between them. The same object runs on screen, in a script and in a test.
#include <functional>

#include "core/ModQuillora.h"
#include "core/Session.h"
#include "core/ToolTable.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

class Program {
 public:
  // quit ends the process; without one, the exits only note that they were asked.
  explicit Program(Runtime& rt, std::function<void()> quit = {});
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Shows the main window, which runs its start-up.
  void start();
  bool quitRequested() const { return quitRequested_; }

  ModQuillora m;
  frmCanvas f;
  Windows w;  // the other windows: the file window and the layout preview
  ToolTable tools;
  Session s;

 private:
  std::function<void()> quit_;
  bool quitRequested_ = false;
};

}  // namespace qp
