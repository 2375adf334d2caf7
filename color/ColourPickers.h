#pragma once
// The three colours of a session and their pickers: the swatch, the colour in waiting (lColor), the
// RGB strips, the swap, the number keys and the canvas pick.
#include <QString>

#include "core/Session.h"

namespace qp {

void ApplyColors(Session& s);
void SwapColors(Session& s);
// The hidden bars of 3D Text take the parts of the front and back colours; BackClr takes back.
void SetTextColourBars(Session& s, Colour fore, Colour back);
// One byte of a colour: 0 red, 1 green, 2 blue. Stores the red byte in ClrRed on every call.
int ColorPart(Session& s, Colour colour, int part);
void SetSwatchColor(Session& s);
// A colour key: index 0 to 7 of the key colours; setsOption also makes it the Colour Option.
void ColourKey(Session& s, int index, bool setsOption);
// Paints the colour chart of the swatch.
void PaintSwatch(Session& s);

// The colour of a colour key (0 white ... 6 magenta, 7 gray); -1 for an index outside 0 to 7.
Colour keyColour(int index);

// The swatch pColor.
void pColor_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void pColor_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void pColor_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);
// The colour in waiting, lColor, and the fore colour swatch.
void lColor_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void lColor_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);
void lForclr_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);
void cSwap_Click(Session& s);
// Help line and tool tip as the pointer passes.
void lColor_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void lColMode_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void lColorVal_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void cSwap_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);

// The strips pR, pG, pB; Y is in the strip's scale, 0 at the top to 255 at the bottom.
void pR_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void pG_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void pB_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
// Ctrl on a strip: all three components take PointerY, cut to 0 .. 255.
void SetGrayLevel(Session& s);

}  // namespace qp
