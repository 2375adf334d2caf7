// FloodFill paints on the pixel surface, which holds the canvas while the mode lasts and gives it
// back at the next change of mode. A fill that cannot be done (a click off the picture, a region
// already in the fill colour) changes nothing and says nothing.
#include "surface/Device.h"
#include "tools/Shapes.h"
#include "ui/frmCanvas.h"

namespace qp {

ToolHooks floodFillHooks() {
  ToolHooks h;
  h.pixPress = [](Session& s, int, Single X, Single Y) {
    PictureBox& p = s.f.pPix;
    p.ScaleWidth = p.Width / 15;
    p.ScaleHeight = p.Height / 15;
    p.FillColor = static_cast<Colour>(s.m.ForeClr.value());
    ExtFloodFill(p, CInt(X), CInt(Y), p.Point(X, Y), 1);
  };
  h.pixMove = [](Session& s, int, Single, Single) {
    s.f.lHelp.Caption =
        "Select color and click in area you want to fill (Hold Ctrl key and right-click paint area to select "
        "custom fill color) Right-click paint area to Undo";
  };
  return h;
}

}  // namespace qp
