// Crazy Pencil sets single pixels through a changing mixing mode. Without the panel's choice each
// press takes the next even mode, 2, 4, ... 16 and round again; the mode stays after the stroke
// until the next change of paint mode resets it. Fast moves leave gaps: that is its look.
#include <memory>

#include "tools/Freehand.h"
#include "ui/frmCanvas.h"

namespace qp {

ToolHooks crazyPencilHooks() {
  // The running mixing mode belongs to the press and lives as long as the session's tool table.
  auto CrazyDrawStep = std::make_shared<Byte>(0);
  ToolHooks h;
  h.press = [CrazyDrawStep](Session& s, int, Single X, Single Y) {
    frmCanvas& f = s.f;
    if (f.ckVal.Value == 0) f.PicPaint.ForeColor = static_cast<Colour>(s.m.ForeClr.value());
    else f.PicPaint.ForeColor = QBColor(CInt(s.rt.rnd.Rnd() * 15));
    if (f.ckVal2.Value == 0) {
      *CrazyDrawStep = ((*CrazyDrawStep + 1) & 15) + 1;
      f.PicPaint.DrawMode = static_cast<int>(*CrazyDrawStep);
    }
    f.PicPaint.PSet(X, Y);
  };
  h.move = [](Session& s, int, Single X, Single Y) { s.f.PicPaint.PSet(X, Y); };
  return h;
}

}  // namespace qp
