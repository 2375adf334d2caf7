#pragma once
// GeoSpiralz: polar figures of line segments, swept around the centre of a surface by an angle step
// that is not a whole fraction of a turn, so that the passes precess into a rosette.
#include "core/ToolTable.h"

namespace qp {

class PictureBox;

// The radius of equation 0 to 15 at step i; any other equation leaves R as it was.
// T = Symmetry * Angle. Raises DivisionByZero or Overflow where the equation has a pole or leaves
// the numbers the runtime holds.
double SpiralEquation(int Equation, double R, double Radius, int Symmetry, int i, double Angle);

// The settings a drawing reads once at its start.
struct SpiralFigure {
  int Equation = 0;
  int Symmetry = 3;  // S
  int Density = 3;   // D
};

// How a drawing paces itself: one line per 10 ms of the clock, waiting on the event loop so that
// the window stays alive. Off, it draws as fast as it can (for measuring the drawing alone).
enum class SpiralPace { Paced, Unpaced };

// DrawGeoSpiral draws on the canvas, DrawMiniSpiral on the floating pSpire; Angle is the caller's,
// started at 0.01 and left advanced. Returns false when the drawing stopped before its end (a
// numeric failure, or the user left the mode, set or cancelled the float, or ended the program).
bool DrawGeoSpiral(Session& s, double& Angle, SpiralPace pace = SpiralPace::Paced);
bool DrawMiniSpiral(Session& s, double& Angle, SpiralPace pace = SpiralPace::Paced);

// The lines of one drawing on any surface with the given figure: what both routines share. `mini`
// keeps BackClr as the session has it (the canvas drawing copies the stepped colour into it).
bool DrawSpiral(Session& s, PictureBox& target, const SpiralFigure& figure, double& Angle, bool mini,
                SpiralPace pace);

}  // namespace qp
