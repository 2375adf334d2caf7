#pragma once
// The colour block under the canvas: the swatch, the three colour labels, the RGB strips and the
// bars of the Colour Mode engine.
#include "platform/Controls.h"
#include "platform/Form.h"
#include "surface/PictureBox.h"

namespace qp {

struct ColourBlock {
  explicit ColourBlock(Form& f);

  Frame fColors;
  PictureBox pColor;   // the swatch
  Label lBg;           // canvas colour, behind the fore and back colours
  Label lBkclr;        // back colour
  Label lForclr;       // fore colour: the truth of ForeClr
  Label lColor;        // third colour of the tools
  PictureBox pR, pG, pB;  // one-colour value strips
  Frame fBow;          // colour option bar
  VScrollBar vColmode; // Colour Mode: Standard, Rainbow, Glow, Gradient
  Label lColMode;
  VScrollBar vVar;     // variance of the colour steps
  Label lVar;
  VScrollBar vColors;  // colour option
  Label lColorVal;
  CheckBox ckDcolz;    // Transient Color Generator
  VScrollBar vRed, vGrn, vBlu;  // hidden holders of the custom colour, 0 to 255
  Frame fColCov;       // covers the colour block in modes that do not use it
};

}  // namespace qp
