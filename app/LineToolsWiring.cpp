// The events of the line and spray tools that are not strokes on the paint area: the AirBrush's
// timer, and the mouse on the pixel surface, where FloodFill paints.
#include "app/Wiring.h"
#include "core/PixPipeline.h"
#include "tools/Freehand.h"
#include "ui/frmCanvas.h"

namespace qp {

void wireLineTools(Session& s) {
  frmCanvas& f = s.f;
  f.tAir.Timer_ = [&s] { tAir_Timer(s); };
  f.pPix.MouseDown = [&s](int b, int sh, Single x, Single y) { pPix_MouseDown(s, b, sh, x, y); };
  f.pPix.MouseMove = [&s](int b, int sh, Single x, Single y) { pPix_MouseMove(s, b, sh, x, y); };
  f.pPix.MouseUp = [&s](int b, int sh, Single x, Single y) { pPix_MouseUp(s, b, sh, x, y); };
}

}  // namespace qp
