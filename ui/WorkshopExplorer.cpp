#include "ui/WorkshopExplorer.h"

#include "ui/Place.h"

namespace qp {

WorkshopExplorer::WorkshopExplorer(Form& f, Frame& fX, const char* previewName, ExplorerButtons buttons)
    : Drive1(&f, &fX, "Drive1"),
      Dir1(&f, &fX, "Dir1"),
      File1(&f, &fX, "File1"),
      preview(&f, &fX, previewName),
      cKay(&f, &fX, "cKay"),
      cPatt(&f, &fX, "cPatt"),
      cCancel(&f, &fX, "cCancel") {
  fX.Caption = "Explorer";
  fX.BackColor = 0x404040;
  fX.ForeColor = 0xE0E0E0;
  fX.Visible = false;
  place(Drive1, 120, 240, 2415, 315);
  place(Dir1, 120, 600, 2415, 2160);
  place(File1, 2640, 240, 2415, 2520);
  File1.Pattern = "*.bmp";
  place(preview, 120, 2880, 2415, 2175);
  preview.Stretch = true;
  preview.BackColor = 0x808080;
  const int pitch = buttons.height + 105;
  place(cKay, 2640, 2880, 2415, buttons.height);
  cKay.Caption = buttons.ok;
  place(cPatt, 2640, 2880 + pitch, 2415, buttons.height);
  cPatt.Caption = "*.bmp / *.jpg";
  place(cCancel, 2640, 2880 + 2 * pitch, 2415, buttons.height);
  cCancel.Caption = buttons.cancel;
}

}  // namespace qp
