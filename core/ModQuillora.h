#pragma once
// The session variables shared by the whole program, with their start values. One ModQuillora
// exists per session; it is passed by reference to whatever needs it. Nothing else is global.
#include <QString>

#include "platform/Numeric.h"

namespace qp {

struct ModQuillora {
  Byte PaintMode = 16;        // the current paint mode; the session starts in Freehand Spiralz
  Byte ColorOption = 0;       // colour option of the Colour Mode engine, from vColors
  Long ForeClr = 0;           // the colour the tools draw with (its truth is lForclr.BackColor)
  Long BackClr = 0;           // second colour of the tools (lBkclr.BackColor)
  Integer ClrRed = 0, ClrGreen = 0, ClrBlue = 0;  // running components of the colour engine
  Long TransientClr = 0;      // last colour of the Transient Color Generator
  Byte GradPhase = 0;         // phase of the Gradient colour mode
  Long GradClr = 0;           // last colour of the Gradient colour mode
  Byte DrawWidth = 1;         // pen width in pixels, from vPencil
  Integer StepSize = 40;      // spacing in twips of tools that place marks along a stroke
  Single LastX = 0, LastY = 0;    // last stroke position, in the unit of the surface drawn on
  Single StartX = 0, StartY = 0;  // second stored stroke position
  QString CurrentFile;        // full path of the open image; "" is Untitled
  Integer SpiralRadius = 0;   // running radius of the freehand spiral
  double SpiralAngle = 0;     // running angle of the freehand spiral
  Byte SpiralStep = 12;       // angle step of the freehand spiral
  Long PixDrawX = 0, PixDrawY = 0;  // pixel position for StampTransparent
  Long TransparentClr = 0;    // key colour shared by the transparency tools
  Integer TransparencyDone = 0;     // -1 once the Transparency Tool has an image ready
  Integer PrintX = 0, PrintY = 0;   // start of the 3D text's stack of layers
};

}  // namespace qp
