#pragma once
// The Selection Tool: a rectangle of the canvas cut (Select and Clear) or copied (Select and Copy)
// into the floating pSpire, dragged about, mirrored, inverted, tiled, saved or copied, and set
// down with a click. The floating pasted picture of pTemp moves by the same rule.
#include <QImage>

#include "core/ToolTable.h"

namespace qp {

class PictureBox;
class Shape;

// A floating picture is held near its top left corner: its corner goes a sixth of its size up and
// left of the pointer, never to the spot that was clicked.
void MoveFloat(PictureBox& box, Shape& frame, Single X, Single Y);

ToolHooks selectAndClearHooks();  // mode 18
ToolHooks selectAndCopyHooks();   // mode 19
ToolHooks floatingPasteHooks();   // mode 22

void SelectionSpire_MouseDown(Session& s, int Button, Single X, Single Y);  // sets the float
void SelectionSpire_MouseUp(Session& s, int Button, Single X, Single Y);    // right: cancels
void pTemp_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);     // right: cancels

// The commands on a floating selection; each does nothing while no selection floats.
void mIvSel_Click(Session& s);
void mMirSel_Click(Session& s);
void mCpySel_Click(Session& s);
void mSaveSel_Click(Session& s);
void TileSelection_Click(Session& s, int N);  // m22, m44, m66, m88

// Stretches the picture once to the size of a tile, then lays it on the canvas at every column and
// row from 0 to N inclusive: the last column and row fall on the canvas edge, so only N x N show.
void TilePicture(PictureBox& canvas, const QImage& picture, int N);

}  // namespace qp
