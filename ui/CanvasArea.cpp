#include "ui/CanvasArea.h"

#include "ui/Place.h"

namespace qp {

CanvasArea::CanvasArea(Form& f)
    : fMax(&f, nullptr, "fMax"),
      fHide(&f, nullptr, "fHide"),
      PicPaint(&f, &fMax, "PicPaint"),
      pPix(&f, &fMax, "pPix"),
      pPX(&f, &pPix, "pPX"),
      PicUndo(&f, &fMax, "PicUndo"),
      pUn2(&f, &fHide, "pUn2"),
      pStash(&f, &PicPaint, "pStash"),
      pTemp(&f, &PicPaint, "pTemp"),
      pSpire(&f, &PicPaint, "pSpire"),
      pT1(&f, nullptr, "pT1"),
      vHigh(&f, nullptr, "vHigh"),
      vWidth(&f, nullptr, "vWidth"),
      lnDraw(&f, &PicPaint, "lnDraw"),
      DrawShape(&f, &PicPaint, "DrawShape"),
      shErase(&f, &PicPaint, "shErase"),
      Dshp(&f, &pPix, "Dshp"),
      lnX(&f, &PicPaint, "lnX"),
      lnY(&f, &PicPaint, "lnY"),
      lLnX(&f, &PicPaint, "lLnX"),
      lLnY(&f, &PicPaint, "lLnY"),
      lnPX(&f, &pPix, "lnPX"),
      lnPY(&f, &pPix, "lnPY"),
      lLnPX(&f, &pPix, "lLnPX"),
      lLnPY(&f, &pPix, "lLnPY"),
      iPnt(&f, nullptr, "iPnt") {
  place(fMax, 1440, 0, 11295, 8295);
  fMax.BorderStyle = 0;
  place(fHide, 0, 20000, 3000, 3000);

  // The surfaces, as the window is designed: position, size, unit, persistence, colour.
  auto surface = [](PictureBox& p, Single l, Single t, Single w, Single h, int scaleMode, bool autoRedraw,
                    bool visible, Colour back) {
    place(p, l, t, w, h);
    p.ScaleMode = scaleMode;
    p.AutoRedraw = autoRedraw;
    p.Visible = visible;
    p.BackColor = back;
  };
  surface(PicPaint, 0, 0, 11295, 8295, 1, true, true, 0x000000);
  PicPaint.MousePointer = 2;
  PicPaint.OLEDropEnabled = true;
  surface(PicUndo, 0, 1080, 615, 615, 1, true, false, 0xE0E0E0);
  surface(pUn2, 1920, 1440, 495, 495, 1, true, false, 0xC0FFFF);
  surface(pStash, 120, 2160, 495, 495, 1, true, false, 0x808080);
  surface(pTemp, 0, 0, 1215, 1215, 1, true, false, 0xC0C0C0);
  surface(pSpire, 0, 0, 1335, 1335, 1, false, false, 0x808080);
  surface(pPix, 0, 0, 765, 900, 3, true, false, 0x404040);
  pPix.OLEDropEnabled = true;
  pPix.FillStyle = 0;  // the flood fill paints solid in FillColor
  // The canvas, its twin and the holders take the size of the picture they are given.
  for (PictureBox* p : {&PicPaint, &pPix, &PicUndo, &pStash, &pTemp}) p->AutoSize = true;
  // The second undo level holds the whole canvas as the first does, at the canvas's size.
  pUn2.AutoSize = true;
  surface(pPX, 0, 0, 33, 33, 3, false, false, 0xE0E0E0);  // 495 twips, in pPix's pixels
  surface(pT1, 1560, 2760, 495, 495, 3, true, true, 0x808080);

  vHigh.Visible = false;
  vWidth.Visible = false;

  lnDraw.BorderColor = 0xC0C0C0;
  lnDraw.Visible = false;
  DrawShape.BorderColor = 0xC0C0C0;
  DrawShape.Shape_ = 3;
  DrawShape.BorderStyle = 3;
  DrawShape.Visible = false;
  shErase.BorderColor = 0xFFFFFF;
  shErase.Visible = false;
  Dshp.BorderColor = 0xC0C0C0;
  Dshp.Visible = false;
  pSpire.ToolTipText = "Click to set image (Right-click to cancel)";
  pTemp.ToolTipText = "Click to set image - Right-click to cancel";
  for (Line* l : {&lnX, &lnY, &lnPX, &lnPY}) {
    l->Visible = false;
    l->BorderColor = 0xC0C0C0;
  }
  for (Label* l : {&lLnX, &lLnY, &lLnPX, &lLnPY}) {
    l->Visible = false;
    l->BackStyle = 0;
    l->ForeColor = 0xC0C0C0;
    l->Width = 900;
    l->Height = 225;
  }
  iPnt.Visible = false;
  // A small dot of our own for the pointer while a stroke lasts with the pointer hidden.
  QImage dot(8, 8, QImage::Format_ARGB32);
  dot.fill(Qt::transparent);
  for (int y = 2; y < 6; ++y)
    for (int x = 2; x < 6; ++x) dot.setPixel(x, y, 0xFFFFFFFF);
  iPnt.Picture = dot;
}

}  // namespace qp
