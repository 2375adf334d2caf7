#pragma once
// The three colours of a session and their pickers: the swatch, the colour in waiting (lColor), the
// RGB strips, the swap, the number keys and the canvas pick.
#include "core/Session.h"

namespace qp {

void ApplyColors(Session& s);
void SwapColors(Session& s);
// One byte of a colour: 0 red, 1 green, 2 blue. Stores the red byte in ClrRed on every call.
int ColorPart(Session& s, Colour colour, int part);
void SetSwatchColor(Session& s);
// A colour key: index 0 to 7 of the key colours; setsOption also makes it the Colour Option.
void ColourKey(Session& s, int index, bool setsOption);
// Paints the colour chart of the swatch.
void PaintSwatch(Session& s);

}  // namespace qp
