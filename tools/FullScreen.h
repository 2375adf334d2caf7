#pragma once
// The full-screen spirals: Freehand Spiralz on a window over the whole screen, set by keys alone.
#include <functional>

#include "core/Session.h"

namespace qp {

// F9 in Freehand Spiralz: the window comes up over the main one.
void OpenFullScreen(Session& s);
void frmFull_Load(Session& s);
void frmFull_Resize(Session& s);
// F9 on the full screen: back to the main window; what was painted here stays here.
void CloseFullScreen(Session& s);
void frmFull_KeyDown(Session& s, int KeyCode, const std::function<void()>& quit);
void frmFull_KeyUp(Session& s, int KeyCode);
void frmFull_tPenUp(Session& s);
void frmFull_tPenDwn(Session& s);
void frmFull_tGrad(Session& s);
void frmFull_pPix_MouseDown(Session& s, int Button, Single X, Single Y);
void frmFull_pPix_MouseMove(Session& s, int Button, Single X, Single Y);
void frmFull_pPix_MouseUp(Session& s, int Button, Single X, Single Y);

}  // namespace qp
