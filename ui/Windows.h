#pragma once
// The program's windows beside the main one. Each is built once and shown when asked for; frmStash
// is never shown.
#include "ui/frmBlue.h"
#include "ui/frmFile.h"
#include "ui/frmFull.h"
#include "ui/frmLO.h"
#include "ui/frmStash.h"
#include "ui/frmBlend.h"
#include "ui/frmStretch.h"
#include "ui/frmTile.h"

namespace qp {

struct Windows {
  explicit Windows(Runtime& rt) : file(rt), lo(rt), stash(rt), full(rt) {}
  frmFile file;
  frmLO lo;
  frmStash stash;
  // The image workshops, built on the same runtime as the windows above.
  frmTile tile{stash.runtime()};
  frmBlend blend{stash.runtime()};
  frmStretch stretch{stash.runtime()};
  frmBlue blue{stash.runtime()};  // the Transparency Tool
  frmFull full;  // the full-screen spirals
};

}  // namespace qp
