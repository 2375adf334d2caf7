#pragma once
// The Image Blender's routines: its two modes, loading the two pictures, Blend Pix after its
// short wait, and the BlueScreen eraser and overlay.
#include "core/Session.h"
#include "platform/Numeric.h"

namespace qp {

class frmBlend;
frmBlend* blendWindow(Session& s);

void mBlendWindow_Click(Session& s);  // the main window's menu item: opens the window
void frmBlend_Load(Session& s);
void frmBlend_Unload(Session& s);

void Blend_mBlend_Click(Session& s);  // "Blend Pix"
void Blend_mBlue_Click(Session& s);   // "BlueScreen"
void Blend_mNew_Click(Session& s);
void Blend_vVal_Change(Session& s);
void Blend_mLoad_Click(Session& s, int image);  // mLd1, mLd2
void Blend_cKay_Click(Session& s);
void Blend_mPaste_Click(Session& s);
void Blend_mQuillora_Click(Session& s);
void SetBlendCanvas(Session& s, Single width, Single height);  // m64, m8x6, m768

void cGo_Click(Session& s);
void Blend_tGo_Timer(Session& s);
void BlendPix(Session& s);

void SetTransparentColour(Session& s, Colour colour, const QString& name);  // lBlk, lWht, lBlu
void pT2_MouseDown(Session& s, int Button, int Shift, Single X, Single Y);
void pT2_MouseMove(Session& s, int Button, int Shift, Single X, Single Y);
void pT2_MouseUp(Session& s, int Button, int Shift, Single X, Single Y);

void Blend_mSave_Click(Session& s);
void Blend_mCopyClip_Click(Session& s);

}  // namespace qp
