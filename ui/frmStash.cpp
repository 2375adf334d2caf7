#include "ui/frmStash.h"

#include "ui/Place.h"

namespace qp {

frmStash::frmStash(Runtime& rt)
    : Form(rt, "frmStash"),
      pTile(this, nullptr, "pTile"),
      pTrans(this, nullptr, "pTrans"),
      pBlu(this, nullptr, "pBlu"),
      pStretch(this, nullptr, "pStretch"),
      pPro1(this, nullptr, "pPro1"),
      pPro2(this, nullptr, "pPro2"),
      lTile(this, nullptr, "lTile"),
      lTrans(this, nullptr, "lTrans"),
      lBlu(this, nullptr, "lBlu"),
      lStretch(this, nullptr, "lStretch") {
  Caption = "Stash";
  Move(0, 0, 3000, 2000);
  int left = 120;
  for (PictureBox* p : {&pTile, &pTrans, &pBlu, &pStretch, &pPro1, &pPro2}) {
    place(*p, left, 120, 375, 375);
    p->AutoRedraw = true;
    p->AutoSize = true;
    left += 480;
  }
  left = 120;
  for (Label* l : {&lTile, &lTrans, &lBlu, &lStretch}) {
    place(*l, left, 600, 375, 255);
    left += 480;
  }
}

}  // namespace qp
