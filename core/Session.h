#pragma once
// What a routine of the program works on: the session variables, the main window with its
// controls, and the runtime. Routines are plain functions taking a Session&, as the program's
// handlers are plain routines over shared variables.
#include <cstdint>

#include "core/ModQuillora.h"
#include "platform/Runtime.h"
#include "surface/TextRun.h"

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
  // Text1's pen positions in pPix's font, followed key by key so that the 3D text's stack costs
  // the same at every key however long the text grows.
  TextRun text3DRun = {};
  std::uint64_t text3DEdits = 0;  // Text1's count of changes when the run last followed it
};

}  // namespace qp
