#include "ui/ExplorerPanel.h"

#include "ui/Place.h"

namespace qp {

ExplorerPanel::ExplorerPanel(Form& f, Frame& fX)
    : Drive1(&f, &fX, "Drive1"),
      Dir1(&f, &fX, "Dir1"),
      File1(&f, &fX, "File1"),
      imPre(&f, &fX, "imPre"),
      cPic(&f, &fX, "cPic"),
      cPatt(&f, &fX, "cPatt"),
      cCancel(&f, &fX, "cCancel"),
      lDrive(&f, nullptr, "lDrive"),
      lDir(&f, nullptr, "lDir") {
  place(fX, 4000, 2640, 5175, 5175);
  fX.Caption = "Explorer";
  fX.BackColor = 0x404040;
  fX.ForeColor = 0xE0E0E0;
  place(Drive1, 120, 240, 2415, 315);
  place(Dir1, 120, 600, 2415, 2160);
  place(File1, 2640, 240, 2415, 2520);
  File1.Pattern = "*.bmp";
  place(imPre, 120, 2880, 2415, 2175);
  imPre.Stretch = true;
  imPre.BackColor = 0x808080;
  place(cPic, 2640, 2880, 2415, 555);
  cPic.Caption = "Open";
  place(cPatt, 2640, 3540, 2415, 555);
  cPatt.Caption = "*.bmp / *.jpg";
  place(cCancel, 2640, 4200, 2415, 555);
  cCancel.Caption = "Close";
  for (Label* l : {&lDrive, &lDir}) {
    l->Visible = false;
    place(*l, 0, 0, 1200, 255);
  }
}

}  // namespace qp
