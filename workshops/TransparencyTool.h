#pragma once
// The Transparency Tool's routines: loading a picture, erasing in the key colour, picking the key
// colour with Ctrl, the selection, zoom, Done, and the hand-over to and from the stash.
#include "core/Session.h"

namespace qp {

class frmBlue;

void frmBlue_Load(Session& s);
void frmBlue_Unload(Session& s);
void frmBlue_KeyDown(Session& s, int KeyCode);
void frmBlue_KeyUp(Session& s, int KeyCode);

// Loading and the Edit menu.
void Blue_mOpen_Click(Session& s);
void Blue_cKay_Click(Session& s);
void Blue_cCancel_Click(Session& s);
void Blue_mPrev_Click(Session& s);
void Blue_mCpyInt_Click(Session& s);
void Blue_mStash_Click(Session& s);
void Blue_mPaste_Click(Session& s);
void Blue_mSendStsh_Click(Session& s);
void Blue_mCopy_Click(Session& s);
void Blue_mSave_Click(Session& s);

// The three ready key colours: 0 black, 1 white, 2 blue.
void Blue_KeyColour_Click(Session& s, int which);
void Blue_vRase_Change(Session& s);

// The picture at normal zoom (zoomed false: pBlu, shErase, pUn) or at zoom 2 and 3 (pZoom,
// shZraser, pZun). X and Y are twips of that picture.
void Blue_MouseDown(Session& s, bool zoomed, int Button, int Shift, Single X, Single Y);
void Blue_MouseMove(Session& s, bool zoomed, int Button, int Shift, Single X, Single Y);
void Blue_MouseUp(Session& s, bool zoomed, int Button, int Shift, Single X, Single Y);

void Blue_mSelect_Click(Session& s);
void Blue_tSel_Timer(Session& s);
void Blue_mZoom1_Click(Session& s);
void ApplyZoom(Session& s, int level);  // mZoom2, mZoom3
void Blue_vWidth_Change(Session& s);
void Blue_vHigh_Change(Session& s);
void Blue_mDun_Click(Session& s);
void Blue_mInstrct_Click(Session& s);
void Blue_Label1_Click(Session& s);

// The instructions shown in the window, in their order.
QString TransparencyInstructions();

}  // namespace qp
