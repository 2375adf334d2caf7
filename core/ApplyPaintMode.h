#pragma once
#include "core/Session.h"

namespace qp {

// Runs at every change of paint mode, also to the mode already in use: takes an undo snapshot,
// resets every control of the panel, then applies the mode's own settings, which come last so that
// they win.
void ApplyPaintMode(Session& s);

// The mode's own row of the panel (its bars, labels, boxes and panel height).
void ApplyModeRow(Session& s);

}  // namespace qp
