#pragma once
#include "core/Session.h"
#include "core/ToolTable.h"

namespace qp {

// The mirrored copies of a segment around the middle of the canvas's present scale, in ForeClr.
// Axis 0 reflects left to right, axis 1 top to bottom; with both mirror boxes set each call also
// draws the copy reflected through the centre.
void MirrorStroke(Session& s, Single X, Single Y, Single FromX, Single FromY, int Axis);

// Mirrors N More (mode 24): freehand segments or a fan of spokes, with their mirrored copies.
ToolHooks mirrorDrawHooks();

}  // namespace qp
