#pragma once
// The program's windows beside the main one. Each is built once and shown when asked for; frmStash
// is never shown.
#include "ui/frmFile.h"
#include "ui/frmFull.h"
#include "ui/frmLO.h"
#include "ui/frmStash.h"

namespace qp {

struct Windows {
  explicit Windows(Runtime& rt) : file(rt), lo(rt), stash(rt), full(rt) {}
  frmFile file;
  frmLO lo;
  frmStash stash;
  frmFull full;  // the full-screen spirals
};

}  // namespace qp
