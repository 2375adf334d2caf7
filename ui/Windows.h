#pragma once
// The program's windows beside the main one. Each is built once and shown when asked for.
#include "ui/frmFile.h"
#include "ui/frmLO.h"

namespace qp {

struct Windows {
  explicit Windows(Runtime& rt) : file(rt), lo(rt) {}
  frmFile file;
  frmLO lo;
};

}  // namespace qp
