// The Edit menu's items, the canvas menu's reset and the canvas colour, each to its routine.
#include "app/Wiring.h"
#include "core/Edit.h"
#include "ui/frmCanvas.h"

namespace qp {

void wireEditCommands(Session& s) {
  frmCanvas& f = s.f;
  f.mClear.Click = [&s] { mClear_Click(s); };
  f.mnuNew.Click = [&s] { mnuNew_Click(s); };
  f.lColor.DblClick = [&s] { lColor_DblClick(s); };
  f.mCvReset.Click = [&s] { mCvReset_Click(s); };
  f.mSendStash.Click = [&s] { mSendStash_Click(s); };
  f.mGet.Click = [&s] { mGet_Click(s); };
  f.mCopy.Click = [&s] { mCopy_Click(s); };
  f.mnuPaste.Click = [&s] { mnuPaste_Click(s); };
  f.tTemp.Timer_ = [&s] { tTemp_Timer(s); };
  f.pTemp.MouseDown = [&s](int b, int sh, Single x, Single y) { pTemp_MouseDown(s, b, sh, x, y); };
}

}  // namespace qp
