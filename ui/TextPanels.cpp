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
  // The text options sit where the panel's check boxes sit in other modes.
  place(panel.ckTx, 60, 780, 1300, 210);
  panel.ckTx.Caption = "Random Font Size";
  place(panel.ckFreeTx, 60, 1020, 1300, 210);
  panel.ckFreeTx.Caption = "Paint w/Text";
  place(panel.ckTxGrad, 60, 1260, 1300, 210);
  panel.ckTxGrad.Caption = "Random       Colors";

  place(lFont, 2640, 900, 600, 225);
  lFont.Caption = "24";
  lFont.BackStyle = 0;
  lFont.ForeColor = 0xFFFFFF;

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

  place(vShad, 3960, 120, 255, 600);
  setBar(vShad, 96, 12, 12, 2, 2);
  place(lShadFnt, 3960, 780, 450, 225);
  lShadFnt.Caption = "12";
  lShadFnt.BackStyle = 0;
  lShadFnt.ForeColor = 0xFFFFFF;
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
