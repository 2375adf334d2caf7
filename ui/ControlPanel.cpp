#include "ui/ControlPanel.h"

#include "ui/Place.h"

namespace qp {

namespace {
constexpr Colour kPanelBack = 0x404040;
constexpr Colour kDimFrame = 0x808080;
constexpr int kRowTop = 1260;   // top of value row 1 in the panel
constexpr int kRowPitch = 390;  // distance between rows
}  // namespace

ControlPanel::ControlPanel(Form& f, Frame& strip)
    : fVal(&f, nullptr, "fVal"),
      lModeB(&f, &fVal, "lModeB"),
      lMode(&f, &fVal, "lMode"),
      lStats(&f, &fVal, "lStats"),
      lTell(&f, nullptr, "lTell"),
      lHelpb(&f, nullptr, "lHelpb"),
      lHelp(&f, nullptr, "lHelp"),
      lX(&f, nullptr, "lX"),
      lY(&f, nullptr, "lY"),
      lXb(&f, nullptr, "lXb"),
      lYb(&f, nullptr, "lYb"),
      lPic(&f, nullptr, "lPic"),
      vVal1(&f, &fVal, "vVal1"), vVal2(&f, &fVal, "vVal2"), vVal3(&f, &fVal, "vVal3"),
      vVal4(&f, &fVal, "vVal4"), vVal5(&f, &fVal, "vVal5"),
      lVal1(&f, &fVal, "lVal1"), lVal2(&f, &fVal, "lVal2"), lVal3(&f, &fVal, "lVal3"),
      lVal4(&f, &fVal, "lVal4"), lVal5(&f, &fVal, "lVal5"),
      ckVal(&f, &fVal, "ckVal"),
      ckVal2(&f, &fVal, "ckVal2"),
      ckVert(&f, &strip, "ckVert"),
      ckHoriz(&f, &strip, "ckHoriz"),
      cCan(&f, &strip, "cCan"),
      cSwap(&f, &strip, "cSwap"),
      ckHold(&f, &strip, "ckHold"),
      ckHide(&f, &strip, "ckHide"),
      fPencil(&f, &strip, "fPencil"),
      vPencil(&f, &fPencil, "vPencil"),
      lPenVal(&f, &fPencil, "lPenVal"),
      vMax(&f, &strip, "vMax"),
      vMin(&f, &strip, "vMin"),
      fInt(&f, &strip, "fInt"),
      vInt(&f, &fInt, "vInt"),
      shErSize(&f, &strip, "shErSize"),
      fText(&f, nullptr, "fText"),
      fTcover(&f, &fText, "fTcover"),
      lstFont(&f, &fText, "lstFont"),
      vFont(&f, &fText, "vFont"),
      Text1(&f, &fText, "Text1"),
      ckFreeTx(&f, &fVal, "ckFreeTx"),
      ckTx(&f, &fText, "ckTx"),
      ckTxGrad(&f, &fVal, "ckTxGrad"),
      fShad(&f, nullptr, "fShad"),
      pShadTest(&f, &fShad, "pShadTest"),
      lstShad(&f, &fShad, "lstShad"),
      ckShaDraw(&f, &fShad, "ckShaDraw"),
      fX(&f, nullptr, "fX"),
      fHelp(&f, nullptr, "fHelp"),
      txHelp(&f, &fHelp, "txHelp"),
      cXhelp(&f, &fHelp, "cXhelp"),
      fCust(&f, nullptr, "fCust"),
      hCustm(&f, &fCust, "hCustm"),
      vCustm(&f, &fCust, "vCustm"),
      lWid(&f, &fCust, "lWid"),
      lHgt(&f, &fCust, "lHgt"),
      cCustm(&f, &fCust, "cCustm"),
      cCanCust(&f, &fCust, "cCanCust") {
  place(fVal, 0, 0, 1425, 2040);
  fVal.BackColor = kPanelBack;
  fVal.BorderStyle = 0;

  place(lModeB, 45, 45, 1350, 255);
  place(lMode, 30, 30, 1350, 255);
  for (Label* l : {&lMode, &lModeB}) {
    l->BackStyle = 0;
    l->Alignment = 2;
    l->FontBold = true;
  }
  lMode.ForeColor = 0xFFC0C0;
  lModeB.ForeColor = 0x000000;
  place(lStats, 30, 300, 1350, 225);
  lStats.BackStyle = 0;
  lStats.ForeColor = 0xC0C0C0;
  lStats.Alignment = 2;
  // The state line carries whole sentences ("Click arrows to set Aspect ratio   Current Aspect : 5"),
  // which the panel has no room for: it wraps them at the foot of the left column, under the help
  // text, in a colour that reads on the window's own background there.
  place(lTell, 0, 7920, 1425, 1020);
  lTell.BackStyle = 0;
  lTell.ForeColor = 0x800000;
  lTell.Alignment = 2;

  // Row n: a short bar with its label, in a frame whose colour says whether the row is live.
  VScrollBar* bars[] = {&vVal1, &vVal2, &vVal3, &vVal4, &vVal5};
  Label* labels[] = {&lVal1, &lVal2, &lVal3, &lVal4, &lVal5};
  for (int n = 1; n <= 38; ++n) {
    Shape& s = Shadow.add(n, &f, &fVal, QString("Shadow"));
    s.BorderColor = kDimFrame;
    s.Visible = false;
  }
  for (int n = 1; n <= 5; ++n) {
    const int top = kRowTop + (n - 1) * kRowPitch;
    place(Shadow(n), 30, top, 1365, 375);
    place(*bars[n - 1], 60, top + 15, 255, 345);
    place(*labels[n - 1], 345, top + 75, 1035, 225);  // as wide as the frame allows: "Lines/Pass : 72"
    labels[n - 1]->BackStyle = 0;
    labels[n - 1]->ForeColor = 0xFFFFFF;
    bars[n - 1]->Visible = false;
    labels[n - 1]->Visible = false;
  }
  Shadow(21).setParent(nullptr);  // the frame around the canvas
  Shadow(21).Visible = true;
  for (int n : {8, 9, 10, 14, 20, 32, 33, 35, 36, 38}) Shadow(n).setParent(&strip);

  place(ckVal, 60, 780, 1300, 210);
  place(Shadow(24), 30, 765, 1365, 240);
  place(ckVal2, 60, 1020, 1300, 210);
  place(Shadow(34), 30, 1005, 1365, 240);
  for (CheckBox* c : {&ckVal, &ckVal2, &ckVert, &ckHoriz, &ckHold, &ckHide, &ckFreeTx, &ckTx, &ckTxGrad}) {
    c->BackColor = kPanelBack;
    c->ForeColor = 0xFFFFFF;
    c->Visible = false;
  }
  place(ckVert, 12120, 60, 640, 210);
  ckVert.Caption = "Vert";
  place(Shadow(8), 12090, 45, 680, 240);
  place(ckHoriz, 12795, 60, 640, 210);
  ckHoriz.Caption = "Horiz";
  place(Shadow(9), 12765, 45, 680, 240);
  ckVert.Value = 1;  // both mirrors are on until the user clears them
  ckHoriz.Value = 1;
  for (int i = 0; i <= 1; ++i) {
    OptionButton& o = opVert.add(i, &f, &strip, QString("opVert"));
    // One above the other, wide enough for their captions: Vert and Horiz never show with them.
    place(o, 12120, 60 + i * 270, 1300, 210);
    o.Caption = i == 0 ? "Vertical" : "Horizontal";
    o.BackColor = kPanelBack;
    o.ForeColor = 0xFFFFFF;
    o.Visible = false;
  }
  place(cCan, 12120, 600, 1300, 285);
  cCan.Caption = "Draw";
  cCan.Visible = false;
  place(Shadow(20), 12090, 585, 1350, 315);  // to the strip's right edge, not past it
  place(cSwap, 10960, 600, 1100, 255);
  cSwap.Caption = "Swap Colors";
  cSwap.Visible = false;
  place(Shadow(14), 10930, 585, 1160, 285);

  place(fPencil, 7700, 30, 1800, 420);
  fPencil.BackColor = kPanelBack;
  place(vPencil, 0, 0, 255, 405);
  setBar(vPencil, 160, 1, 1, 1, 10);
  place(lPenVal, 285, 105, 1500, 225);
  lPenVal.Caption = "Draw Width : 1";
  lPenVal.BackStyle = 0;
  lPenVal.ForeColor = 0xFFFFFF;
  place(vMax, 9560, 45, 255, 345);
  setBar(vMax, 160, 24, 24, 2, 2);
  place(Shadow(35), 9530, 30, 315, 375);
  place(vMin, 9875, 45, 255, 345);
  setBar(vMin, 36, 1, 4, 1, 1);
  place(Shadow(32), 9845, 30, 315, 375);
  place(ckHold, 10220, 120, 690, 210);
  ckHold.Caption = "Hold";
  ckHold.Visible = true;
  place(ckHide, 10960, 120, 1100, 210);
  ckHide.Caption = "Hide Pointer";
  ckHide.Visible = true;
  place(Shadow(38), 10930, 105, 1160, 240);

  place(fInt, 7700, 480, 1800, 390);
  fInt.BackColor = kPanelBack;
  fInt.Visible = false;
  place(vInt, 0, 0, 255, 375);
  // Away from the 20 that every mode change writes, so that the change at the end of start-up
  // reaches vInt_Change and puts the paint timers on the shared interval.
  setBar(vInt, 500, 1, 100, 1, 10);

  place(shErSize, 9560, 480, 120, 120);
  shErSize.Shape_ = 0;
  shErSize.FillStyle = 0;
  shErSize.Visible = false;

  // Floating frames over the canvas; start-up places them.
  place(fText, 60, 960, 4500, 3000);
  fText.Visible = false;
  place(lstFont, 120, 240, 2400, 2400);
  place(vFont, 2640, 240, 255, 600);
  setBar(vFont, 120, 8, 24, 1, 1);
  place(Text1, 120, 2700, 4200, 285);
  Text1.Text = "Quillora";
  place(fShad, 60, 960, 4500, 3000);
  fShad.Visible = false;
  place(pShadTest, 120, 0, 1215, 975);
  pShadTest.AutoRedraw = false;
  pShadTest.BackColor = 0x000000;
  place(lstShad, 1440, 120, 2400, 2400);
  place(ckShaDraw, 120, 1080, 1300, 210);
  ckShaDraw.Caption = "Draw";
  place(fX, 2400, 1020, 6000, 5000);
  fX.Visible = false;
  place(fHelp, 2400, 1020, 6000, 5000);
  fHelp.Visible = false;
  place(txHelp, 120, 240, 5760, 4200);
  txHelp.MultiLine = true;
  place(cXhelp, 4680, 4500, 1200, 375);
  cXhelp.Caption = "Close";
  place(fCust, 1920, 480, 4800, 1800);
  fCust.Visible = false;
  place(hCustm, 120, 300, 4500, 255);
  setBar(hCustm, 1500, 30000, 11295, 15, 1500);
  place(lWid, 120, 60, 2000, 225);
  place(vCustm, 120, 840, 4500, 255);  // a value bar drawn across, like its twin
  setBar(vCustm, 1500, 30000, 8295, 15, 1500);
  place(lHgt, 120, 600, 2000, 225);
  place(cCustm, 120, 1260, 1200, 375);
  cCustm.Caption = "OK";
  place(cCanCust, 1440, 1260, 1200, 375);
  cCanCust.Caption = "Cancel";

  // The help line under the panel, with its shadow.
  place(lHelpb, 15, 3600, 1425, 2400);
  place(lHelp, 0, 3615, 1425, 2400);
  lHelpb.BackStyle = 0;
  lHelpb.ForeColor = 0x000000;
  lHelp.BackStyle = 0;
  lHelp.ForeColor = 0xC0C0C0;
  // Pointer position, below the canvas.
  place(lXb, 1440, 8340, 1200, 240);
  place(lX, 1440, 8340, 1200, 240);
  place(lYb, 2700, 8340, 1200, 240);
  place(lY, 2700, 8340, 1200, 240);
  for (Label* l : {&lX, &lY}) l->BackStyle = 0;
  lPic.Visible = false;
}

VScrollBar& ControlPanel::valueBar(int n) {
  switch (n) {
    case 1: return vVal1;
    case 2: return vVal2;
    case 3: return vVal3;
    case 4: return vVal4;
    case 5: return vVal5;
    default: raiseError(RuntimeError::SubscriptOutOfRange, "no such value row");
  }
}

Label& ControlPanel::valueLabel(int n) {
  switch (n) {
    case 1: return lVal1;
    case 2: return lVal2;
    case 3: return lVal3;
    case 4: return lVal4;
    case 5: return lVal5;
    default: raiseError(RuntimeError::SubscriptOutOfRange, "no such value row");
  }
}

}  // namespace qp
