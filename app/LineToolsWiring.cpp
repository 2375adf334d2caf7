// The AirBrush's timer.
#include "app/Wiring.h"
#include "tools/Freehand.h"
#include "ui/frmCanvas.h"

namespace qp {

void wireLineTools(Session& s) {
  frmCanvas& f = s.f;
  f.tAir.Timer_ = [&s] { tAir_Timer(s); };
}

}  // namespace qp
