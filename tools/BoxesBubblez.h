#pragma once
#include "core/Session.h"
#include "core/ToolTable.h"

namespace qp {

// Boxes N Bubblez (mode 9): while the button is held, tBrush scatters boxes of random proportion
// under the pointer (Boxes) or ellipses at random spots around it (Bubblez, ckVal set).
void DrawBox(Session& s);
void tBrush_Timer(Session& s);
ToolHooks boxesBubblezHooks();

}  // namespace qp
