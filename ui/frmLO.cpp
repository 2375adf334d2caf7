#include "ui/frmLO.h"

#include "ui/Place.h"

namespace qp {

frmLO::frmLO(Runtime& rt)
    : Form(rt, "frmLO"), shLO(this, nullptr, "shLO"), pLO(this, nullptr, "pLO"), iLO(this, &pLO, "iLO") {
  Caption = "Layout";
  BackColor = 0x404040;
  BorderStyle = 4;
  Move(0, 0, 3600, 3000);
  place(pLO, 120, 120, 3000, 2250);
  pLO.BackColor = 0x808080;
  place(iLO, 0, 0, 3000, 2250);
  iLO.Stretch = true;
  shLO.BackStyle = 1;
  shLO.BackColor = 0x202020;
  shLO.BorderColor = 0x202020;
}

}  // namespace qp
