#include "ui/frmBlend.h"

#include "ui/Place.h"

namespace qp {

namespace {
const char* const kBlendInstructions[] = {
    "First, select either Blend Pix or BlueScreen Mode - Load first and second image with the Explorer ",
    "- To blend two images, simply set the percentage with the arrows and press the OK button (The percentage ",
    "determines the amount of opacity of the second image - Higher values will show more of the second image than the first) ",
    "The default setting of 50% will blend the two images to the same level - After pressing the OK button, just wait while ",
    "the blend operation is performed - To save the image, click the Save menu item - To perform a BlueScreen overlay, ",
    "first load the image you want to place the second image over - Then load the second image - ",
    "If the image has a solid background OR a large quantity of any given color, you can simply hold the Control key ",
    "on your keyboard and click on that color - The color you clicked on will be completely removed from the image - ",
    "(By keeping that in mind while creating an image with Quillora, you can create some truly amazing effects) ",
    "If you need to remove all but a portion of the overlay image, select a color and use the eraser to erase everything except the ",
    " that part of the image - The eraser can be set to as much as 240 pixels so erasing large areas of the image should take just ",
    "a few seconds - The eraser can be either square or round and set to any size you need ",
    "(Remember to release the left mouse button after erasing a section so as not to have to start from the beginning, should you erase too much - ",
    "If you make a mistake, just right-click the image to Undo - When finished preparing the image, click the OK button to perform the overlay - ",
    "If you're satisfied with the results, just click the Save menu item - Click this caption to close instructions",
};
}  // namespace

frmBlend::frmBlend(Runtime& rt)
    : Form(rt, "frmBlend"),
      pMain(this, nullptr, "pMain"),
      DShp(this, &pMain, "DShp"),
      pT1(this, nullptr, "pT1"),
      pT2(this, nullptr, "pT2"),
      shErase(this, &pT2, "shErase"),
      pTemp(this, nullptr, "pTemp"),
      pTemp1(this, nullptr, "pTemp1"),
      pTemp2(this, nullptr, "pTemp2"),
      pUn(this, nullptr, "pUn"),
      iPre1(this, nullptr, "iPre1"),
      iPre2(this, nullptr, "iPre2"),
      lPic1(this, nullptr, "lPic1"),
      lPic2(this, nullptr, "lPic2"),
      lPath1(this, nullptr, "lPath1"),
      lPath2(this, nullptr, "lPath2"),
      lValB(this, nullptr, "lValB"),
      lVal(this, nullptr, "lVal"),
      vVal(this, nullptr, "vVal"),
      cGo(this, nullptr, "cGo"),
      tGo(this, "tGo", 500),
      fRase(this, nullptr, "fRase"),
      ckHide(this, &fRase, "ckHide"),
      lBlk(this, &fRase, "lBlk"),
      lWht(this, &fRase, "lWht"),
      lBlu(this, &fRase, "lBlu"),
      lColor(this, &fRase, "lColor"),
      iPnt(this, nullptr, "iPnt"),
      fStruct(this, nullptr, "fStruct"),
      Label1(this, &fStruct, "Label1"),
      fHelp(this, nullptr, "fHelp"),
      lHelp(this, &fHelp, "lHelp"),
      fX(this, nullptr, "fX"),
      explorer(*this, fX, "imPre"),
      mBlend(this, nullptr, "mBlend", "Blend Pix"),
      mBlue(this, nullptr, "mBlue", "BlueScreen"),
      mFile(this, nullptr, "mFile", "File"),
      mLd1(this, &mFile, "mLd1", "Load Image One"),
      mLd2(this, &mFile, "mLd2", "Load Image Two"),
      mQuillora(this, &mFile, "mQuillora", "Load Quillora"),
      mNew(this, &mFile, "mNew", "New"),
      mSave(this, &mFile, "mSave", "Save"),
      mEdit(this, nullptr, "mEdit", "Edit"),
      mCopyClip(this, &mEdit, "mCopyClip", "Copy"),
      mPaste(this, &mEdit, "mPaste", "Paste"),
      mCanvas(this, nullptr, "mCanvas", "Canvas"),
      m64(this, &mCanvas, "m64", "640 x 480"),
      m8x6(this, &mCanvas, "m8x6", "800 x 600"),
      m768(this, &mCanvas, "m768", "768 x 480"),
      mIns(this, nullptr, "mIns", "Instructions") {
  Caption = kCaption;
  BackColor = 0x404040;
  KeyPreview = true;
  Move(600, 600, 12600, 8400);
  // The working area: 640 x 480 pixels until a Canvas item says otherwise.
  place(pMain, 2760, 120, 9600, 7200);
  pMain.BackColor = 0x000000;
  pMain.ToolTipText = "";
  DShp.Visible = false;
  for (PictureBox* p : {&pT1, &pT2, &pTemp}) {
    place(*p, 2760, 120, 9600, 7200);
    p->ScaleMode = 3;
    p->AutoSize = true;
    p->Visible = false;
    p->BackColor = 0x000000;
  }
  for (PictureBox* p : {&pTemp1, &pTemp2, &pUn}) {
    p->ScaleMode = 3;
    p->AutoSize = true;
    p->Visible = false;
  }
  shErase.Visible = false;
  shErase.BackStyle = 1;
  shErase.BorderColor = 0xC0C0C0;
  place(shErase, 0, 0, 30, 30);

  place(iPre1, 120, 120, 1200, 1200);
  place(iPre2, 1440, 120, 1200, 1200);
  for (Image* i : {&iPre1, &iPre2}) {
    i->Stretch = true;
    i->Visible = false;
  }
  place(lPic1, 120, 1380, 1200, 255);
  place(lPic2, 1440, 1380, 1200, 255);
  for (Label* l : {&lPath1, &lPath2}) l->Visible = false;
  place(lValB, 120, 1800, 1800, 255);
  lValB.Caption = "Blend Percentage";
  place(lVal, 120, 2100, 1800, 375);
  lVal.Caption = "50%";
  place(vVal, 2040, 1800, 360, 675);
  // Blend Pix at start: 10 to 90 percent in steps of 10, the arrow up raising it.
  setBar(vVal, 90, 10, 50, 10, 10);
  place(cGo, 120, 2640, 2520, 495);
  cGo.Caption = "OK";
  cGo.Enabled = false;

  place(fRase, 120, 3240, 2520, 2400);
  fRase.Caption = "Eraser";
  fRase.Visible = false;
  const char* erasers[] = {"Square Eraser", "Round Eraser"};
  for (int i = 0; i <= 1; ++i) {
    OptionButton& o = opEr.add(i, this, &fRase, "opEr");
    place(o, 120, 240 + i * 300, 2280, 255);
    o.Caption = erasers[i];
  }
  opEr(0).Value = true;
  place(ckHide, 120, 840, 2280, 255);
  ckHide.Caption = "Hide Eraser";
  place(lBlk, 120, 1200, 480, 375);
  lBlk.BackColor = 0x000000;
  place(lWht, 720, 1200, 480, 375);
  lWht.BackColor = 0xFFFFFF;
  place(lBlu, 1320, 1200, 480, 375);
  lBlu.BackColor = 0xFF0000;
  place(lColor, 120, 1680, 2280, 615);
  lColor.BackColor = 0x000000;  // the session's transparent colour starts black
  lColor.ForeColor = 0x808080;
  lColor.Caption = "Transparent Color : Black";
  Shape& frame = Shadw.add(5, this, &fRase, "Shadw");
  place(frame, 60, 1140, 1800, 495);
  frame.BorderColor = 0x808080;
  iPnt.Visible = false;

  place(fStruct, 240, 240, 12000, 3600);
  fStruct.Caption = "Instructions";
  fStruct.Visible = false;
  place(Label1, 120, 240, 11760, 3240);
  QString instructions;
  for (const char* part : kBlendInstructions) instructions += part;
  Label1.Caption = instructions;
  place(fHelp, 120, 5760, 2520, 1560);
  fHelp.Caption = "Help";
  place(lHelp, 60, 240, 2400, 1260);
  lHelp.Caption = "Instant Help...";
  place(fX, 1940, 240, 5175, 5175);
}

}  // namespace qp
