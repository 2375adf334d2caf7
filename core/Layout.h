#pragma once
// The main window's layout: the canvas frame, the view bars, the pixel twin, the title.
#include "core/Session.h"

namespace qp {

void Form_Resize(Session& s);
void MatchPixSurface(Session& s);
void SetTitle(Session& s);

}  // namespace qp
