#pragma once
// The control panel on the left of the canvas: the mode display, five value rows whose meaning
// changes with the paint mode, the check boxes, the draw width and interval groups, the help line,
// and the floating frames that some modes open over the canvas.
#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "surface/PictureBox.h"

namespace qp {

struct ControlPanel {
  // The tool options that apply to every mode sit in a strip under the canvas.
  ControlPanel(Form& f, Frame& strip);

  Frame fVal;
  Label lModeB, lMode;   // the mode display and its shadow behind it
  Label lStats;          // short state word of the mode
  Label lTell;           // a one-line message of the present action
  Label lHelpb, lHelp;   // the help line and its shadow
  Label lX, lY;          // pointer position
  Label lXb, lYb;        // backgrounds of the position, with the press position in their tool tips
  Label lPic;            // hidden trigger: writing its caption loads the picture it names

  // Frames around the panel's controls; a row's frame colour tells whether the row is live.
  ControlArray<Shape> Shadow;

  VScrollBar vVal1, vVal2, vVal3, vVal4, vVal5;
  Label lVal1, lVal2, lVal3, lVal4, lVal5;
  CheckBox ckVal, ckVal2;
  CheckBox ckVert, ckHoriz;
  ControlArray<OptionButton> opVert;
  CommandButton cCan, cSwap;
  CheckBox ckHold, ckHide;

  Frame fPencil;         // draw width
  VScrollBar vPencil;
  Label lPenVal;
  VScrollBar vMax, vMin; // width limits of the arrow keys

  Frame fInt;            // interval of the paint timers
  VScrollBar vInt;

  Shape shErSize;        // eraser size preview

  Frame fText;           // text tools
  Frame fTcover;
  ListBox lstFont;
  VScrollBar vFont;
  TextBox Text1;
  CheckBox ckFreeTx, ckTx, ckTxGrad;

  Frame fShad;           // shadow text
  PictureBox pShadTest;
  ListBox lstShad;
  CheckBox ckShaDraw;

  Frame fX;              // Explorer panel
  Frame fHelp;           // the help panel
  TextBox txHelp;
  CommandButton cXhelp;
  Frame fCust;           // custom canvas size
  HScrollBar hCustm;
  VScrollBar vCustm;
  Label lWid, lHgt;
  CommandButton cCustm, cCanCust;

  // The value bar of row n (1 to 5), its label and frame.
  VScrollBar& valueBar(int n);
  Label& valueLabel(int n);
};

}  // namespace qp
