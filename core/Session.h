#pragma once
// What a routine of the program works on: the session variables, the main window with its
// controls, and the runtime. Routines are plain functions taking a Session&, as the program's
// handlers are plain routines over shared variables.
#include "core/ModQuillora.h"
#include "platform/Runtime.h"

namespace qp {

class frmCanvas;
class ToolTable;
struct Windows;

struct Session {
  ModQuillora& m;
  frmCanvas& f;
  Runtime& rt;
  ToolTable& tools;
  Windows* windows = nullptr;  // the file window and the layout preview; absent in bare tests
};

}  // namespace qp
