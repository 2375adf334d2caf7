#pragma once
// Variables of the main window that more than one routine reads, with their start values.
#include <QVariant>

#include "platform/Numeric.h"

namespace qp {

struct CanvasVars {
  Integer CtrlDown = 0;        // -1 while Ctrl is held
  Byte PriorMode = 0;          // the paint mode when ApplyPaintMode last ran
  Byte PointerShape = 2;       // 2 cross, 1 arrow
  Byte PanelRows = 0;          // height class of the control panel
  Integer PanelHeight = 2040;  // height of the control panel in twips
  Byte SwatchKey = 0;          // colour index of the last colour key
  Byte GradStepSize = 2;
  Byte BrushFigure = 0;
  Byte CrazyEquation = 1;
  Integer AirSpread = 5;
  Integer AutoDrawX = 500, AutoDrawY = 500;
  Integer AutoDrawSpeed = 4;
  // AutoDraw: the arrow keys held (-1) and the pen before its latest step.
  Integer AutoDrawUp = 0, AutoDrawRight = 0, AutoDrawDown = 0, AutoDrawLeft = 0;
  Integer AutoDrawPrevX = 0, AutoDrawPrevY = 0;
  Integer CanvasLocked = 0;
  Integer TransparencySelect = 0;
  Long ShadowOffsetX = 0, ShadowOffsetY = 0;
  Byte BoxKind = 0;         // the proportion the box brush's last tick chose
  Byte FontOptionStep = 0;  // the font option a right click on either font list takes next

  // The stroke's positions. PointerX keeps its fraction; PointerY is rounded to whole twips.
  Single PointerX = 0;
  Integer PointerY = 0;
  Integer DownX = 0, DownY = 0;              // press position, rounded twips
  Integer DownButtonX = 0, DownButtonY = 0;  // press position in pixels
  Integer ShapeRadius = 0;                   // radius of the last circle of Simple Shapes
  Integer CanvasGradDir = 0;                 // direction of the linear ramps: 0 top to bottom, -1 left to right

  // The spirals. A GeoSpiralz drawing waits on the event loop between its lines, so other events
  // come in while it runs; this says one is under way. The freehand spiral's remembered ring.
  bool SpiralDrawing = false;
  Single PixLastRadius = 0, PixLastAngle = 0;
  // Gradient drawings begun; a drawing that lets other events run stops when a newer one began.
  Long GradientDrawings = 0;
};

}  // namespace qp
