#pragma once
// The Image Blender: Blend Pix mixes two pictures at a percentage; BlueScreen lays the second
// over the first with one colour left out, after the user has erased with that colour what is
// not to be kept. Its routines are in workshops/ImageBlender and workshops/BlueScreen.
#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "surface/PictureBox.h"
#include "ui/WorkshopExplorer.h"

namespace qp {

class frmBlend : public Form {
 public:
  explicit frmBlend(Runtime& rt);

  static constexpr const char* kCaption = " Quillora Image Blender";

  PictureBox pMain;   // the two sources side by side, halved, before the operation (twips)
  Shape DShp;         // where a source is drawn on pMain
  PictureBox pT1;     // first image; the BlueScreen result (pixels)
  PictureBox pT2;     // second image; the eraser works on it (pixels)
  Shape shErase;      // the eraser's outline, over pT2
  PictureBox pTemp;   // the Blend Pix result (pixels)
  PictureBox pTemp1, pTemp2, pUn;  // hidden: the source pictures, the eraser's undo
  Image iPre1, iPre2;
  Label lPic1, lPic2, lPath1, lPath2;
  Label lValB, lVal;
  VScrollBar vVal;
  CommandButton cGo;
  Timer tGo;
  Frame fRase;        // the eraser's controls, shown in BlueScreen
  ControlArray<OptionButton> opEr;
  CheckBox ckHide;
  Label lBlk, lWht, lBlu, lColor;
  ControlArray<Shape> Shadw;  // Shadw(5) frames the transparency colours
  Image iPnt;         // the picking pointer's picture
  Frame fStruct;      // the instructions
  Label Label1;
  Frame fHelp;
  Label lHelp;
  Frame fX;
  WorkshopExplorer explorer;

  Menu mBlend, mBlue;
  Menu mFile, mLd1, mLd2, mQuillora, mNew, mSave;
  Menu mEdit, mCopyClip, mPaste;
  Menu mCanvas, m64, m8x6, m768;
  Menu mIns;

  Integer BlueMode = 0;
  Integer CtrlDown = 0;
  int loadingImage = 1;  // which image the Explorer's OK loads: 1 or 2
};

}  // namespace qp
