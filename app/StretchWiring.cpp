// The Image Stretcher's events, each to its routine.
#include "app/Wiring.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "workshops/ImageStretcher.h"

namespace qp {

void wireImageStretcher(Session& s) {
  s.f.mStretch.Click = [&s] { mStretchWindow_Click(s); };
  frmStretch* win = stretchWindow(s);
  if (!win) return;
  frmStretch& w = *win;
  w.Load = [&s] { frmStretch_Load(s); };
  w.Resize = [&s] { frmStretch_Resize(s); };
  w.Unload = [&s, &w] {
    frmStretch_Unload(s);
    w.markUnloaded();
  };
  w.mLoad.Click = [&s] { Stretch_mLoad_Click(s); };
  w.mStash.Click = [&s] { Stretch_mStash_Click(s); };
  w.mLdQuillora.Click = [&s] { Stretch_mLdQuillora_Click(s); };
  w.mSave.Click = [&s] { Stretch_mSave_Click(s); };
  w.mSaveSel.Click = [&s] { Stretch_mSaveSel_Click(s); };
  w.mCopyClip.Click = [&s] { Stretch_mCopyClip_Click(s); };
  w.mClip.Click = [&s] { mClip_Click(s); };
  w.mInst.Click = [&w] { w.fStruct.Visible = true; };
  w.lInst.Click = [&w] { w.fStruct.Visible = false; };
  w.pLO.OLEDragDrop = [&s](const QStringList& files, int, int, Single, Single) { Stretch_pLO_OLEDragDrop(s, files); };
  w.pLO.MouseDown = [&s](int b, int, Single x, Single y) { Stretch_pLO_MouseDown(s, b, x, y); };
  w.pLO.MouseMove = [&s](int b, int, Single x, Single y) { Stretch_pLO_MouseMove(s, b, x, y); };
  w.pLO.MouseUp = [&s](int b, int, Single x, Single y) { Stretch_pLO_MouseUp(s, b, x, y); };
  w.tSel.Timer_ = [&s] { Stretch_tSel_Timer(s); };
}

}  // namespace qp
