// The gradients' and spheres' own controls, each to its routine.
#include "app/Wiring.h"
#include "tools/CanvasGradients.h"
#include "tools/Spheres.h"
#include "core/Session.h"
#include "ui/frmCanvas.h"

namespace qp {

void wireGradients(Session& s) {
  frmCanvas& f = s.f;
  f.tSphere.Timer_ = [&s] { tSphere_Timer(s); };
  for (int i = 0; i <= 1; ++i) f.opVert(i).Click = [&s] { opVert_Click(s); };
}

}  // namespace qp
