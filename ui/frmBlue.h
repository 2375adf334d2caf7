#pragma once
// The Transparency Tool's window: a picture to prepare for painting with one colour transparent.
// The user erases in the key colour what is not to be painted (or picks a colour the picture
// already has with Ctrl and a click), draws a selection rectangle and clicks Done. Its routines are
// in workshops/TransparencyTool.
#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/FileControls.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "surface/PictureBox.h"
#include "ui/WorkshopExplorer.h"

namespace qp {

class frmBlue : public Form {
 public:
  explicit frmBlue(Runtime& rt);

  Menu mFile, mOpen, mPrev, mCpyInt, mStash, mSendStsh, mSave;
  Menu mEdit, mCopy, mPaste;
  Menu mZoom, mZoom1, mZoom2, mZoom3;
  Menu mSelect, mDun, mInstrct;

  Frame fMax;          // holds the picture at either zoom
  PictureBox pBlu;     // the working picture at normal zoom, in twips, taking its picture's size
  PictureBox pZoom;    // the working picture at zoom 2 or 3
  PictureBox pT1;      // the selection: what Done hands to the main window
  PictureBox pUn;      // one level of undo of pBlu
  PictureBox pZun;     // one level of undo of pZoom
  Shape DShp;          // the selection rectangle, over whichever picture is shown
  Shape shErase;       // eraser outline on pBlu
  Shape shZraser;      // eraser outline on pZoom
  VScrollBar vHigh;    // move the zoomed picture inside fMax
  HScrollBar vWidth;
  VScrollBar vRase;    // eraser size in twips
  ControlArray<OptionButton> opEr;  // 0 "Square Eraser", 1 "Round Eraser"
  Label lBlk, lWht, lBlu;  // the three ready key colours
  Label lColor;            // the key colour chosen, and what to do next
  Label lX, lY;            // pointer position in pixels
  Timer tSel;              // blinks DShp

  Frame fX;            // Explorer panel
  WorkshopExplorer explorer;

  Frame fStruct;       // the instructions
  Label Label1;

  // Values of the window.
  Byte ZoomLevel = 1;
  Integer CtrlDown = 0;
  Integer SelectMode = 0;  // -1 while the menu entry reads "Erase": a drag draws the selection
  Single StartX = 0, StartY = 0;  // the selection's first corner, twips of the picture pressed
};

}  // namespace qp
