#include "ui/frmCanvas.h"

#include "ui/Place.h"

namespace qp {

frmCanvas::frmCanvas(Runtime& rt)
    // The groups register in the window, which is built first. `*this` as a Form is already valid
    // here; a member function call on the window is not, until every group is built.
    : Form(rt, "frmCanvas"),
      CanvasTimers(static_cast<Form&>(*this)),
      CanvasArea(static_cast<Form&>(*this)),
      ColourBlock(static_cast<Form&>(*this)),
      ControlPanel(static_cast<Form&>(*this), fColors),
      ExplorerPanel(static_cast<Form&>(*this), fX),
      CanvasMenus(static_cast<Form&>(*this)),
      TextPanels(static_cast<Form&>(*this), static_cast<ControlPanel&>(*this)) {
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
