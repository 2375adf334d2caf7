#include "ui/frmFull.h"

#include "ui/Place.h"

namespace qp {

// The surfaces and timers take the main window's design values where they are the same things:
// the pixel surface's unit and colour, the colour timers' and the width timers' intervals.
frmFull::frmFull(Runtime& rt)
    : Form(rt, "frmFull"),
      pPix(this, nullptr, "pPix"),
      PicUndo(this, nullptr, "PicUndo"),
      tGrad(this, "tGrad", 1),
      tDclrz(this, "tDclrz", 10),
      tPenUp(this, "tPenUp", 120),
      tPenDwn(this, "tPenDwn", 120) {
  Caption = "Quillora Pro";
  BackColor = 0x000000;
  BorderStyle = 0;
  WindowState = 2;
  KeyPreview = true;
  Move(0, 0, 19200, 15360);
  place(pPix, 480, 480, 18240, 14400);
  pPix.ScaleMode = 3;
  pPix.AutoRedraw = true;
  pPix.BackColor = 0x404040;
  pPix.MousePointer = 2;
  place(PicUndo, 0, 0, 495, 495);
  PicUndo.AutoRedraw = true;
  PicUndo.Visible = false;
}

}  // namespace qp
