// The Transparency Tool's window: each control's event to its routine.
#include "app/Wiring.h"
#include "core/Session.h"
#include "files/Explorer.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"
#include "workshops/TransparencyTool.h"
#include "workshops/WorkshopCommon.h"

namespace qp {

void wireTransparencyTool(Session& s) {
  if (!s.windows) return;
  frmBlue& b = s.windows->blue;
  b.Load = [&s] { frmBlue_Load(s); };
  b.Unload = [&s] { frmBlue_Unload(s); };  // closed from its title bar
  b.KeyDown = [&s](int& code, int) { frmBlue_KeyDown(s, code); };
  b.KeyUp = [&s](int& code, int) { frmBlue_KeyUp(s, code); };

  b.mOpen.Click = [&s] { Blue_mOpen_Click(s); };
  b.mPrev.Click = [&s] { Blue_mPrev_Click(s); };
  b.mCpyInt.Click = [&s] { Blue_mCpyInt_Click(s); };
  b.mStash.Click = [&s] { Blue_mStash_Click(s); };
  b.mSendStsh.Click = [&s] { Blue_mSendStsh_Click(s); };
  b.mSave.Click = [&s] { Blue_mSave_Click(s); };
  b.mCopy.Click = [&s] { Blue_mCopy_Click(s); };
  b.mPaste.Click = [&s] { Blue_mPaste_Click(s); };
  b.mZoom1.Click = [&s] { Blue_mZoom1_Click(s); };
  b.mZoom2.Click = [&s] { ApplyZoom(s, 2); };
  b.mZoom3.Click = [&s] { ApplyZoom(s, 3); };
  b.mSelect.Click = [&s] { Blue_mSelect_Click(s); };
  b.mDun.Click = [&s] { Blue_mDun_Click(s); };
  b.mInstrct.Click = [&s] { Blue_mInstrct_Click(s); };
  b.Label1.Click = [&s] { Blue_Label1_Click(s); };

  wireWorkshopExplorer(b.explorer, s.f.PicPaint.BackColor);
  b.explorer.cKay.Click = [&s] { Blue_cKay_Click(s); };
  b.explorer.cCancel.Click = [&s] { Blue_cCancel_Click(s); };

  b.lBlk.Click = [&s] { Blue_KeyColour_Click(s, 0); };
  b.lWht.Click = [&s] { Blue_KeyColour_Click(s, 1); };
  b.lBlu.Click = [&s] { Blue_KeyColour_Click(s, 2); };
  b.vRase.Change = [&s] { Blue_vRase_Change(s); };
  b.vRase.Scroll = [&s] { Blue_vRase_Change(s); };
  b.vWidth.Change = [&s] { Blue_vWidth_Change(s); };
  b.vWidth.Scroll = [&s] { Blue_vWidth_Change(s); };
  b.vHigh.Change = [&s] { Blue_vHigh_Change(s); };
  b.vHigh.Scroll = [&s] { Blue_vHigh_Change(s); };
  b.tSel.Timer_ = [&s] { Blue_tSel_Timer(s); };

  for (bool zoomed : {false, true}) {
    PictureBox& box = zoomed ? b.pZoom : b.pBlu;
    box.MouseDown = [&s, zoomed](int bt, int sh, Single x, Single y) { Blue_MouseDown(s, zoomed, bt, sh, x, y); };
    box.MouseMove = [&s, zoomed](int bt, int sh, Single x, Single y) { Blue_MouseMove(s, zoomed, bt, sh, x, y); };
    box.MouseUp = [&s, zoomed](int bt, int sh, Single x, Single y) { Blue_MouseUp(s, zoomed, bt, sh, x, y); };
  }
}

}  // namespace qp
