#pragma once
// The TileSetter's routines: loading its images, running a tiling style, taking a tile from the
// output, and sending the result on.
#include "core/Session.h"
#include "platform/Numeric.h"

namespace qp {

class frmTile;
frmTile* tileWindow(Session& s);

void mTileSet_Click(Session& s);  // the main window's menu item: opens the window
void frmTile_Load(Session& s);
void frmTile_Unload(Session& s);
void frmTile_Resize(Session& s);

void vTile_Change(Session& s);
void cTile_Click(Session& s);
void tGo_Timer(Session& s);
void DoTiling(Session& s);

void Tile_cKay_Click(Session& s);
void cBG_Click(Session& s);
void Tile_mPaste_Click(Session& s);
void Tile_mQuillora_Click(Session& s);
void mLdStash_Click(Session& s);
void mOrig_Click(Session& s);
void Tile_mNew_Click(Session& s);
void SetTileCanvas(Session& s, Single width, Single height);  // m64, m86, m76

void Tile_pLO_MouseDown(Session& s, int Button, Single X, Single Y);
void Tile_pLO_MouseMove(Session& s, int Button, Single X, Single Y);
void Tile_pLO_MouseUp(Session& s, int Button, Single X, Single Y);

void Tile_mSave_Click(Session& s);
void Tile_mCopyClip_Click(Session& s);
void mSend_Click(Session& s);
void Tile_mStash_Click(Session& s);

}  // namespace qp
