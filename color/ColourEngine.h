#pragma once
// The Colour Mode engine: the colour of a stroke changes at every draw step (Rainbow, Glow), by
// timer (Gradient), or is shaken by the Transient Color Generator.
#include "core/Session.h"

namespace qp {

void StepRainbowColor(Session& s, int variance);
void StepGlowColor(Session& s, int variance);
void StepGradientColor(Session& s);   // each tick of tGrad
void StepTransientColor(Session& s);  // each tick of tDclrz

// Connects the colour block's controls and timers to their routines.
void wireColours(Session& s);

}  // namespace qp
