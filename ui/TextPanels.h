#pragma once
// The text tools' controls beyond the text frames of the panel: the font size and shadow size
// labels, the shadow text box, the depth and axis boxes of 3D Text, and the hidden frame of bars
// that carry the parameters of 3D Text (the user shapes them through the boxes and the colours,
// never directly).
#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "surface/PictureBox.h"
#include "ui/ControlPanel.h"

namespace qp {

struct TextPanels {
  TextPanels(Form& f, ControlPanel& panel);

  Label lFont;          // the font size of the text tools, beside vFont
  PictureBox pCount;    // 3D Text depth: 1 at the top to 60 at the bottom
  PictureBox pCoords;   // 3D Text shift per layer: -40 to 40 both ways around the centre

  VScrollBar vShad;     // Shadow Text font size
  Label lShadFnt;
  TextBox Text2;        // the text of Shadow Text

  Frame Frame2;         // hidden: the parameters of 3D Text
  HScrollBar HScroll1;  // depth, the number of layers
  ControlArray<HScrollBar> HS1;  // 0-2 red, green, blue of the deepest layer; 3-5 of the front
  ControlArray<HScrollBar> Px;   // 0 X axis, 1 Y axis: tenths of a pixel from layer to layer
  HScrollBar vWid;      // centre of the text on pPix, in pixels
  VScrollBar vHgt;
};

}  // namespace qp
