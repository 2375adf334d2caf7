#pragma once
// The Image Stretcher's routines: the window's size drives the stretch, always drawn afresh from
// the source; a crop is dragged on the stretched picture.
#include <QStringList>

#include "core/Session.h"
#include "platform/Numeric.h"

namespace qp {

class frmStretch;
frmStretch* stretchWindow(Session& s);

void mStretchWindow_Click(Session& s);  // the main window's menu item: opens the window
void frmStretch_Load(Session& s);
void frmStretch_Unload(Session& s);
void frmStretch_Resize(Session& s);

// The file window's "Load Image To Be Strecthed..." lands here with the picture it read.
void LoadStretchSource(Session& s, const QImage& picture);
void Stretch_mLoad_Click(Session& s);
void Stretch_pLO_OLEDragDrop(Session& s, const QStringList& Files);
void mClip_Click(Session& s);
void Stretch_mLdQuillora_Click(Session& s);
void Stretch_mStash_Click(Session& s);

void Stretch_pLO_MouseDown(Session& s, int Button, Single X, Single Y);
void Stretch_pLO_MouseMove(Session& s, int Button, Single X, Single Y);
void Stretch_pLO_MouseUp(Session& s, int Button, Single X, Single Y);
void Stretch_tSel_Timer(Session& s);

void Stretch_mSave_Click(Session& s);
void Stretch_mSaveSel_Click(Session& s);
void Stretch_mCopyClip_Click(Session& s);

}  // namespace qp
