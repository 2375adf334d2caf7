// The figure and box brushes' timers.
#include "app/Wiring.h"
#include "tools/BoxesBubblez.h"
#include "tools/FigureBrush.h"
#include "ui/frmCanvas.h"

namespace qp {

void wireBrushes(Session& s) {
  s.f.tBrushTime.Timer_ = [&s] { tBrushTime_Timer(s); };
  s.f.tBrush.Timer_ = [&s] { tBrush_Timer(s); };
}

}  // namespace qp
