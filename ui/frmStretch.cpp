#include "ui/frmStretch.h"

#include "ui/Place.h"

namespace qp {

frmStretch::frmStretch(Runtime& rt)
    : Form(rt, "frmStretch"),
      pTemp(this, nullptr, "pTemp"),
      shLO(this, nullptr, "shLO"),
      pLO(this, nullptr, "pLO"),
      DShp(this, &pLO, "DShp"),
      pT1(this, nullptr, "pT1"),
      DrawShape(this, nullptr, "DrawShape"),
      tSel(this, "tSel", 200),
      lDrive(this, nullptr, "lDrive"),
      lDir(this, nullptr, "lDir"),
      fStruct(this, nullptr, "fStruct"),
      Shape1(this, &fStruct, "Shape1"),
      lInst(this, &fStruct, "lInst"),
      mFile(this, nullptr, "mFile", "File"),
      mLoad(this, &mFile, "mLoad", "Load Image"),
      mStash(this, &mFile, "mStash", "Load Stash"),
      mLdQuillora(this, &mFile, "mLdQuillora", "Load Quillora"),
      mSave(this, &mFile, "mSave", "Save Image"),
      mSaveSel(this, &mFile, "mSaveSel", "Save Selection"),
      mEdit(this, nullptr, "mEdit", "Edit"),
      mCopyClip(this, &mEdit, "mCopyClip", "Copy"),
      mClip(this, &mEdit, "mClip", "Paste"),
      mInst(this, nullptr, "mInst", "Instructions") {
  Caption = kCaption;
  BackColor = 0x404040;
  Move(1200, 1200, 7200, 5760);
  pTemp.Visible = false;
  pTemp.AutoSize = true;
  place(pLO, 120, 0, 6840, 5040);
  pLO.BackColor = 0x000000;
  pLO.OLEDropEnabled = true;
  pLO.AutoSize = true;
  DShp.Visible = false;
  DShp.BorderStyle = 3;
  DShp.BorderColor = 0xC0C0C0;
  pT1.Visible = false;
  pT1.AutoSize = true;  // takes the size of the crop
  DrawShape.Visible = false;
  shLO.BackStyle = 1;
  shLO.BackColor = 0x202020;
  shLO.BorderColor = 0x202020;
  for (Label* l : {&lDrive, &lDir}) l->Visible = false;
  place(fStruct, 240, 240, 5400, 1200);
  fStruct.BackColor = 0xC0FFFF;
  place(Shape1, 0, 0, 5400, 1200);
  Shape1.BorderColor = 0x808080;
  place(lInst, 60, 60, 5280, 1080);
  lInst.BackColor = 0xC0FFFF;
  lInst.Caption = QString("Load image with Explorer or drag file into window") + "\r\n" +
                  "Resize window to stretch image, then click SAVE" + "\r\n" +
                  "Click and drag on stretched imaged to crop and save a selection (Click to close)";
  mSave.Enabled = false;
  mSaveSel.Enabled = false;
}

}  // namespace qp
