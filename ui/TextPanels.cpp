#include "ui/TextPanels.h"

#include "ui/Place.h"

namespace qp {

TextPanels::TextPanels(Form& f, ControlPanel& panel)
    : lFont(&f, &panel.fText, "lFont"),
      pCount(&f, &panel.fText, "pCount"),
      pCoords(&f, &panel.fText, "pCoords"),
      vShad(&f, &panel.fShad, "vShad"),
      lShadFnt(&f, &panel.fShad, "lShadFnt"),
      Text2(&f, &panel.fShad, "Text2"),
      Frame2(&f, nullptr, "Frame2"),
      HScroll1(&f, &Frame2, "HScroll1"),
      vWid(&f, &Frame2, "vWid"),
      vHgt(&f, &Frame2, "vHgt") {
  // The text options sit where the panel's check boxes sit in other modes, but for the random
  // size, whose caption is wider than the panel: it goes under the font size bar that it varies.
  place(panel.ckTx, 2640, 1320, 1800, 210);
  panel.ckTx.Caption = "Random Font Size";
  panel.ckTx.BackColor = panel.fText.BackColor;  // in the frame's colours, not the panel's
  panel.ckTx.ForeColor = panel.fText.ForeColor;
  place(panel.ckFreeTx, 60, 1020, 1300, 210);
  panel.ckFreeTx.Caption = "Paint w/Text";
  place(panel.ckTxGrad, 60, 1260, 1300, 210);
  panel.ckTxGrad.Caption = "Random       Colors";

  place(lFont, 2640, 900, 360, 225);  // up to the depth box: "120" at most
  lFont.Caption = "24";
  lFont.BackStyle = 0;
  lFont.ForeColor = panel.fText.ForeColor;  // read on the frame's own background

  place(pCount, 3000, 240, 375, 900);
  pCount.AutoRedraw = false;
  pCount.BackColor = 0x404040;
  pCount.ScaleTop = 0;
  pCount.ScaleHeight = 60;
  place(pCoords, 3480, 240, 900, 900);
  pCoords.AutoRedraw = false;
  pCoords.BackColor = 0x404040;
  pCoords.ScaleLeft = -40;
  pCoords.ScaleWidth = 80;
  pCoords.ScaleTop = -40;
  pCoords.ScaleHeight = 80;
  // Text Brush has no use for the depth and axis boxes: a cover lies over them there. Registered
  // again, so that it comes after them and is drawn above them.
  f.remove(&panel.fTcover);
  f.add(&panel.fTcover);
  place(panel.fTcover, 3000, 0, 1500, 1200);
  panel.fTcover.BorderStyle = 0;
  panel.fTcover.BackColor = panel.fText.BackColor;

  place(vShad, 3960, 120, 255, 600);
  setBar(vShad, 96, 12, 12, 2, 2);
  place(lShadFnt, 3960, 780, 450, 225);
  lShadFnt.Caption = "12";
  lShadFnt.BackStyle = 0;
  lShadFnt.ForeColor = panel.fShad.ForeColor;
  place(Text2, 120, 2640, 4200, 285);
  Text2.Text = "Quillora";

  place(Frame2, 0, 0, 1200, 1200);
  Frame2.Visible = false;
  setBar(HScroll1, 1, 60, 30);
  for (int i = 0; i <= 5; ++i) setBar(HS1.add(i, &f, &Frame2, QString("HS1")), 0, 255, i < 3 ? 55 : 255);
  for (int i = 0; i <= 1; ++i) setBar(Px.add(i, &f, &Frame2, QString("Px")), -40, 40, 4);
  setBar(vWid, 0, 615, 320, 5, 5);
  setBar(vHgt, 0, 470, 240, 5, 5);
}

}  // namespace qp
