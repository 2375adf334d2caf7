#pragma once
// The text tools: Text Brush (mode 20) stamps Text1 along the stroke or by timer; 3D Text (21)
// builds a stack of coloured copies of Text1 on pPix, shaped live, until a click sets it; Shadow
// Text (29) prints Text2 over a shifted copy of itself in the back colour.
#include <QString>
#include <initializer_list>

#include "core/Session.h"
#include "core/ToolTable.h"

namespace qp {

class PictureBox;
class TextRun;

// ---- Text Brush ----
// One stamp of Text1 at the canvas's print position, which it leaves behind the printed text.
void TextBrushStamp(Session& s);
void tGrdTx_Timer(Session& s);
ToolHooks textBrushHooks();

// ---- 3D Text ----
// The stack of `depth` layers of `text` on `surface`, centred on vWid, vHgt, from the back colour
// (r1, g1, b1) to the front colour (r2, g2, b2), each layer shifted by the axes in tenths of a
// unit. The colour and axis arguments are the caller's and are changed by the drawing. With a
// `run` that follows the text, each layer draws only what lands on the surface.
void Draw3DText(Session& s, PictureBox& surface, Single depth, Single& r1, Single& g1, Single& b1,
                Single r2, Single g2, Single b2, Single& xAxis, Single& yAxis, const QString& text,
                const TextRun* run = nullptr);
// Draw3DText on pPix with the values of the hidden bars and Text1.
void RedrawText3D(Session& s);
void Text1_Change(Session& s);
void vFont_Change(Session& s);
void lstFont_MouseDown(Session& s, int Button);
void lstFont_MouseMove(Session& s);
void lstFont_MouseUp(Session& s, int Button);
void pCount_MouseMove(Session& s, int Button, Single X, Single Y);
void pCount_MouseUp(Session& s, int Button);
void pCoords_MouseMove(Session& s, int Button, Single X, Single Y);
// The pointer on pPix in 3D Text: with Ctrl the text follows it; a plain left press sets it.
void Text3D_MouseMove(Session& s, int Button, Single X, Single Y);
void Text3D_MouseDown(Session& s, int Button, Single X, Single Y);
ToolHooks text3DHooks();

// ---- Shadow Text ----
void ShowShadowSample(Session& s);
void pShadTest_MouseMove(Session& s, int Button, Single X, Single Y);
void lstShad_MouseDown(Session& s, int Button);
void lstShad_MouseUp(Session& s, int Button);
void vShad_Change(Session& s);
void vShad_Scroll(Session& s);
ToolHooks shadowTextHooks();

// ---- Fonts ----
// A right click on either font list takes the next font option: Bold on, off, Italic on, off,
// Underline on, off, round again. The one counter serves both lists.
void NextFontOption(Session& s, std::initializer_list<PictureBox*> surfaces);

}  // namespace qp
