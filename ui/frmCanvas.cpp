#include "ui/frmCanvas.h"

#include "ui/Place.h"

namespace qp {

frmCanvas::frmCanvas(Runtime& rt)
    : Form(rt, "frmCanvas"),
      CanvasTimers(form()),
      CanvasArea(form()),
      ColourBlock(form()),
      ControlPanel(form(), fColors),
      CanvasMenus(form()) {
  Caption = " Quillora Pro";
  KeyPreview = true;
  BackColor = 0x404040;
  Width = 13760;
  Height = 10545;
  // The frames of the colour bars sit around them in the colour block.
  place(Shadow(10), 5625, 0, 285, 285);
  place(Shadow(36), 5625, 285, 285, 285);
  place(Shadow(33), 5625, 570, 285, 285);
  place(Shadow(21), 1500, 60, 11175, 8175);
}

}  // namespace qp
