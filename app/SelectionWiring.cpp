// The Selection Tool's menu and floating pictures, and Paint w/Pix, each to its routine. The
// floating box, the pixel surface and the panel's button reach the selection and Paint w/Pix
// through their tool hooks; the Explorer's button and pTemp keep the handler they had and this
// one runs after it.
#include "app/Wiring.h"
#include "core/Session.h"
#include "tools/PaintWithPix.h"
#include "tools/Selection.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

using PointerEvent = std::function<void(int, int, Single, Single)>;

std::function<void()> alsoRun(std::function<void()> before, std::function<void()> mine) {
  return [before = std::move(before), mine = std::move(mine)] {
    if (before) before();
    mine();
  };
}

PointerEvent alsoRunPointer(PointerEvent before, PointerEvent mine) {
  return [before = std::move(before), mine = std::move(mine)](int b, int sh, Single x, Single y) {
    if (before) before(b, sh, x, y);
    mine(b, sh, x, y);
  };
}

}  // namespace

void wireSelection(Session& s) {
  frmCanvas& f = s.f;
  f.mIvSel.Click = [&s] { mIvSel_Click(s); };
  f.mMirSel.Click = [&s] { mMirSel_Click(s); };
  f.mCpySel.Click = [&s] { mCpySel_Click(s); };
  f.mSaveSel.Click = [&s] { mSaveSel_Click(s); };
  f.m22.Click = [&s] { TileSelection_Click(s, 2); };
  f.m44.Click = [&s] { TileSelection_Click(s, 4); };
  f.m66.Click = [&s] { TileSelection_Click(s, 6); };
  f.m88.Click = [&s] { TileSelection_Click(s, 8); };
  f.mBluScrn.Click = [&s] { EnterTransparentMode(s); };

  f.pTemp.MouseUp = alsoRunPointer(f.pTemp.MouseUp, [&s](int b, int sh, Single x, Single y) { pTemp_MouseUp(s, b, sh, x, y); });

  f.tPix.Timer_ = [&s] { tPix_Timer(s); };

  f.cPic.Click = alsoRun(f.cPic.Click, [&s] { CollageTakePicture(s); });
}

}  // namespace qp
