#pragma once
// Gradient Spheres (mode 8) and Circle FX (mode 11): stacks of rings at the pointer, once at the
// press and again on each tick of tSphere while the button is held and ckVal2 asks for it.
#include <optional>

#include "core/ToolTable.h"

namespace qp {

// The colour of a ring of ramp value V. Pure: V in the option's channels. Mixed: V in the option's
// channels and the RGB colour boxes in the others; white has no mixed colour. A negative V fails as
// the colour call does.
std::optional<Colour> RingColour(int option, int V, bool mixed, int boxRed, int boxGreen, int boxBlue);

// One sphere and one set of rings at a centre in twips, with the panel's values read ring by ring.
// A ring whose colour fails ends the drawing; the rings drawn stay.
void DrawSphere(Session& s, Single CX, Single CY);
void DrawCircleFx(Session& s, Single CX, Single CY);

void tSphere_Timer(Session& s);

ToolHooks sphereHooks();
ToolHooks circleFxHooks();

}  // namespace qp
