#pragma once
// The Colour Mode engine: the colour of a stroke changes at every draw step (Rainbow, Glow), by
// timer (Gradient), or is shaken by the Transient Color Generator.
#include <QString>

#include "core/Session.h"

namespace qp {

void StepRainbowColor(Session& s, int variance);
void StepGlowColor(Session& s, int variance);
void StepGradientColor(Session& s);   // each tick of tGrad
void StepTransientColor(Session& s);  // each tick of tDclrz
// The draw step of a tool, by Color Mode: Standard takes lForclr, Rainbow and Glow step, Gradient
// starts tGrad.
void StepDrawColor(Session& s);

// The bars of the colour block and their texts.
void vColmode_Change(Session& s);
void vVar_Change(Session& s);
void vColors_Change(Session& s);
// The name of a Colour Option ("White" ... "Magenta"); "" outside 0 to 6.
QString ColourOptionName(int option);
// Writes the name of the present ColorOption to lStats and to the tool tip of lColorVal.
void ShowColorName(Session& s);

}  // namespace qp
