#include "ui/ColourBlock.h"

#include "ui/Place.h"

namespace qp {

ColourBlock::ColourBlock(Form& f)
    : fColors(&f, nullptr, "fColors"),
      pColor(&f, &fColors, "pColor"),
      lBg(&f, &fColors, "lBg"),
      lBkclr(&f, &fColors, "lBkclr"),
      lForclr(&f, &fColors, "lForclr"),
      lColor(&f, &fColors, "lColor"),
      pR(&f, &fColors, "pR"),
      pG(&f, &fColors, "pG"),
      pB(&f, &fColors, "pB"),
      fBow(&f, &fColors, "fBow"),
      vColmode(&f, &fBow, "vColmode"),
      lColMode(&f, &fBow, "lColMode"),
      vVar(&f, &fBow, "vVar"),
      lVar(&f, &fBow, "lVar"),
      vColors(&f, &fBow, "vColors"),
      lColorVal(&f, &fBow, "lColorVal"),
      ckDcolz(&f, &fBow, "ckDcolz"),
      vRed(&f, &fColors, "vRed"),
      vGrn(&f, &fColors, "vGrn"),
      vBlu(&f, &fColors, "vBlu"),
      fColCov(&f, &fColors, "fColCov") {
  place(fColors, 0, 9000, 13440, 900);
  fColors.BackColor = 0x404040;
  fColors.BorderStyle = 0;

  place(pColor, 0, 0, 3600, 720);
  pColor.AutoRedraw = false;
  // Canvas colour behind, fore and back colour swatches over it, the colour in waiting beside.
  place(lBg, 3660, 0, 720, 720);
  lBg.BackColor = 0x000000;
  place(lBkclr, 3960, 300, 360, 360);
  lBkclr.BackColor = 0x808080;
  place(lForclr, 3720, 60, 360, 360);
  lForclr.BackColor = 0xFFFFFF;
  place(lColor, 4440, 0, 600, 720);
  lColor.BackColor = 0xFF0000;
  auto strip = [](PictureBox& p, Single left, Colour c) {
    place(p, left, 90, 135, 540);
    p.AutoRedraw = false;
    p.BackColor = c;
    p.ScaleHeight = 255;  // a component grows downward, 0 at the top
  };
  strip(pR, 5100, 0x0000FF);
  strip(pG, 5280, 0x00FF00);
  strip(pB, 5460, 0xFF0000);

  place(fBow, 5640, 0, 2000, 870);
  fBow.BackColor = 0x404040;
  fBow.BorderStyle = 0;
  auto row = [](VScrollBar& bar, Label& label, Single top) {
    place(bar, 0, top, 255, 270);
    place(label, 285, top + 30, 1700, 225);
    label.BackStyle = 0;
    label.ForeColor = 0xFFFFFF;
  };
  row(vColmode, lColMode, 0);
  setBar(vColmode, 3, 0, 0);
  lColMode.Caption = "Color Mode : Standard";
  row(vVar, lVar, 285);
  setBar(vVar, 80, 4, 30);
  lVar.Caption = "Variance";
  row(vColors, lColorVal, 570);
  setBar(vColors, 6, 0, 0);
  lColorVal.Caption = "Color Option";
  place(ckDcolz, 300, 285, 1700, 210);
  ckDcolz.Caption = "Transient";
  ckDcolz.Visible = false;
  for (VScrollBar* b : {&vRed, &vGrn, &vBlu}) {
    setBar(*b, 0, 255, 0);
    b->Visible = false;
  }
  vBlu.Value = 255;
  place(fColCov, 5640, 0, 2000, 870);
  fColCov.BackColor = 0x404040;
  fColCov.Visible = false;
}

}  // namespace qp
