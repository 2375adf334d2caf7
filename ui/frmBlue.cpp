#include "ui/frmBlue.h"

#include "ui/Place.h"

namespace qp {

frmBlue::frmBlue(Runtime& rt)
    : Form(rt, "frmBlue"),
      mFile(this, nullptr, "mFile", "File"),
      mOpen(this, &mFile, "mOpen", "Open"),
      mPrev(this, &mFile, "mPrev", "Load Previous"),
      mCpyInt(this, &mFile, "mCpyInt", "Load Selection "),
      mStash(this, &mFile, "mStash", "Load Stash"),
      mSendStsh(this, &mFile, "mSendStsh", "Send To Stash"),
      mSave(this, &mFile, "mSave", "Save As Mask"),
      mEdit(this, nullptr, "mEdit", "Edit"),
      mCopy(this, &mEdit, "mCopy", "Copy"),
      mPaste(this, &mEdit, "mPaste", "Paste"),
      mZoom(this, nullptr, "mZoom", "Zoom"),
      mZoom1(this, &mZoom, "mZoom1", "Normal"),
      mZoom2(this, &mZoom, "mZoom2", "X 2"),
      mZoom3(this, &mZoom, "mZoom3", "X 3"),
      mSelect(this, nullptr, "mSelect", "Set Selection"),
      mDun(this, nullptr, "mDun", "Done"),
      mInstrct(this, nullptr, "mInstrct", "Instructions"),
      fMax(this, nullptr, "fMax"),
      pBlu(this, &fMax, "pBlu"),
      pZoom(this, &fMax, "pZoom"),
      pT1(this, nullptr, "pT1"),
      pUn(this, nullptr, "pUn"),
      pZun(this, nullptr, "pZun"),
      DShp(this, &fMax, "DShp"),
      shErase(this, &pBlu, "shErase"),
      shZraser(this, &pZoom, "shZraser"),
      vHigh(this, nullptr, "vHigh"),
      vWidth(this, nullptr, "vWidth"),
      vRase(this, nullptr, "vRase"),
      lBlk(this, nullptr, "lBlk"),
      lWht(this, nullptr, "lWht"),
      lBlu(this, nullptr, "lBlu"),
      lColor(this, nullptr, "lColor"),
      lX(this, nullptr, "lX"),
      lY(this, nullptr, "lY"),
      tSel(this, "tSel", 200),
      fX(this, nullptr, "fX"),
      explorer(*this, fX, "iPre", {"Open", "Close", 555}),
      fStruct(this, nullptr, "fStruct"),
      Label1(this, &fStruct, "Label1") {
  Caption = "Transparency Tool";
  BackColor = 0x404040;
  KeyPreview = true;  // Ctrl reaches the window whatever control has the focus
  Move(1200, 600, 9240, 8040);

  place(fMax, 120, 120, 8400, 6000);
  fMax.BorderStyle = 0;
  fMax.BackColor = 0x202020;
  place(pBlu, 0, 0, 3000, 2250);
  pBlu.ScaleMode = 1;
  pBlu.AutoSize = true;
  pBlu.AutoRedraw = true;
  pBlu.BackColor = 0x000000;
  place(pZoom, 0, 0, 3000, 2250);
  pZoom.ScaleMode = 1;
  pZoom.AutoRedraw = true;
  pZoom.Visible = false;
  for (PictureBox* p : {&pT1, &pUn, &pZun}) {
    place(*p, 0, 0, 495, 495);
    p->Visible = false;
    p->AutoRedraw = true;
  }
  pT1.ScaleMode = 1;
  pUn.AutoSize = true;
  pZun.AutoSize = true;
  DShp.BorderStyle = 3;
  DShp.BorderColor = 0xC0C0C0;
  DShp.Visible = false;
  for (Shape* sh : {&shErase, &shZraser}) {
    sh->BorderColor = 0xC0C0C0;
    sh->FillStyle = 0;
    sh->BackStyle = 1;
    sh->Visible = false;
  }
  place(vHigh, 8580, 120, 255, 6000);
  place(vWidth, 120, 6180, 8400, 255);
  vHigh.Visible = false;
  vWidth.Visible = false;

  // The strip under the picture: the key colours, the eraser's size and kind, the pointer.
  place(lBlk, 120, 6540, 495, 375);
  lBlk.BackColor = 0x000000;
  place(lWht, 720, 6540, 495, 375);
  lWht.BackColor = 0xFFFFFF;
  place(lBlu, 1320, 6540, 495, 375);
  lBlu.BackColor = 0xFF0000;
  place(lColor, 1920, 6540, 3495, 375);
  lColor.BackColor = 0x000000;
  lColor.ForeColor = 0xFFFFFF;
  lColor.Caption = "Transparent Color : Black";
  place(vRase, 5520, 6540, 255, 735);
  vRase.Min = 120;
  vRase.Max = 3600;
  vRase.Value = 120;
  vRase.SmallChange = 20;
  vRase.LargeChange = 20;
  OptionButton& square = opEr.add(0, this, nullptr, "opEr");
  OptionButton& round = opEr.add(1, this, nullptr, "opEr");
  place(square, 5880, 6540, 1575, 255);
  square.Caption = "Square Eraser";
  square.Value = true;
  place(round, 5880, 6840, 1575, 255);
  round.Caption = "Round Eraser";
  place(lX, 7560, 6540, 1095, 255);
  place(lY, 7560, 6840, 1095, 255);
  for (Label* l : {&lX, &lY}) {
    l->BackStyle = 0;
    l->ForeColor = 0x000000;
  }
  lX.Caption = "X:";
  lY.Caption = "Y:";

  place(fX, 120, 120, 5175, 5175);

  place(fStruct, 720, 0, 7200, 5400);
  fStruct.Caption = "Instructions";
  fStruct.BackColor = 0xE0E0E0;
  place(Label1, 120, 240, 6960, 5040);
  Label1.BackColor = 0xE0E0E0;
  mDun.Enabled = false;
}

}  // namespace qp
