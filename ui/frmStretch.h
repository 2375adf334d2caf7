#pragma once
// The Image Stretcher: stretches one picture to whatever size the window is given, and lets a
// crop be dragged on the stretched picture. Its routines are in workshops/ImageStretcher.
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "surface/PictureBox.h"

namespace qp {

class frmStretch : public Form {
 public:
  explicit frmStretch(Runtime& rt);

  static constexpr const char* kCaption = " Quillora Image Stretcher";

  PictureBox pTemp;     // the source picture, never changed by a stretch
  Shape shLO;           // the drop shadow, beneath the picture
  PictureBox pLO;       // the stretched picture
  Shape DShp;           // the crop rectangle, over pLO
  PictureBox pT1;       // the crop
  Shape DrawShape;      // the stretch's target rectangle: always pLO's size
  Timer tSel;
  Label lDrive, lDir;   // the file window's folder memory for this window
  Frame fStruct;
  Shape Shape1;
  Label lInst;

  Menu mFile, mLoad, mStash, mLdQuillora, mSave, mSaveSel;
  Menu mEdit, mCopyClip, mClip;
  Menu mInst;

  Single StartX = 0, StartY = 0;  // where the crop began, in twips of pLO
};

}  // namespace qp
