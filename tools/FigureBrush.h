#pragma once
#include "core/Session.h"
#include "core/ToolTable.h"
#include "tools/FigureShapes.h"

namespace qp {

class PictureBox;

// Draws the parts of a figure around (x, y), scaled by size, in one colour. Coordinates are in the
// surface's unit; the vertical sums are 16-bit, as the canvas's positions are, so a figure far past
// the last whole twip stops at the part that overflows.
void DrawParts(PictureBox& surface, const std::vector<FigurePart>& parts, Single x, Integer y, int size,
               Colour colour);

// The figure brushes (mode 7): BrushFigure at the pointer, at the size of vVal2, in ForeClr.
void DrawFigure(Session& s);
// A tick of tBrushTime: the colour step, the random size when ckVal2 is set, then one figure.
void tBrushTime_Timer(Session& s);
ToolHooks figureBrushHooks();

}  // namespace qp
