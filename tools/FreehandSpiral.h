#pragma once
// Freehand Spiralz (modes 16 and 28): the pointer's radius and angle around the centre of a
// 500 x 500 square stamp a ring of SpiralStep points, each joined to a ring remembered earlier, so
// that one stroke repeats with rotational symmetry. Full-screen spirals draw with the same rings.
#include "core/ToolTable.h"

namespace qp {

class PictureBox;

// The angle of (X, Y) seen from (X0, Y0), by the runtime's cases: the verticals and horizontals
// through the centre take fixed values, and the centre itself leaves Angle as it was.
void PointAngle(Single X0, Single Y0, Single X, Single Y, Single& Angle);

// The square every spiral surface draws in, and its centre.
constexpr Single kSpiralSquare = 500;
constexpr Single kSpiralCentre = 250;

// The pointer in the square: its distance from the centre into SpiralRadius and its angle into
// SpiralAngle.
void FindSpiralPoint(Session& s, Single X, Single Y);
// A ring of dots at the present radius and angle, in the surface's pen colour.
void SpiralRing(Session& s, PictureBox& T);
// The same ring, each dot joined by a line to its place on the remembered ring.
void SpiralRingJoined(Session& s, PictureBox& T, Single lastRadius, Single lastAngle);

// A press on a spiral surface: the square, the pen width, the first ring where the pointer is,
// remembered as the ring the next moves join.
void SpiralPressOn(Session& s, PictureBox& T, int drawWidth, Single X, Single Y, Single& lastRadius,
                   Single& lastAngle);
// A move: the ring in the fore colour, joined to the remembered one. Radial Mode (ckVal clear)
// remembers every ring, so the stroke becomes a ribbon, and answers true; Orbital Mode keeps the
// press's ring, so every ring fans out of it.
bool SpiralMoveOn(Session& s, PictureBox& T, Single X, Single Y, Single& lastRadius, Single& lastAngle);

// The pixel surface's hooks (mode 16 paints on pPix; mode 28 drags the MiniSpirals box there).
ToolHooks freehandSpiralzHooks();
ToolHooks miniSpiralsHooks();
// The top box's words while the pointer is over it.
void ckVal_MouseMoveSpiral(Session& s);
// The MiniSpirals box pPX, mode 28.
void pPX_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void pPX_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void pPX_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);

}  // namespace qp
