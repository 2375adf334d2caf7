// The Selection Tool's menu and floating pictures, and Paint w/Pix, each to its routine. Controls
// shared with other modes (the pixel surface, the floating box, the panel's button, the Explorer's
// button) keep whatever handler they had for the other modes: the new one passes their events on.
#include <algorithm>
#include <vector>

#include "app/Wiring.h"
#include "core/Session.h"
#include "tools/PaintWithPix.h"
#include "tools/Selection.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

using PointerEvent = std::function<void(int, int, Single, Single)>;

// Mine in the given modes, the handler before it in all others.
PointerEvent inModes(Session& s, std::initializer_list<int> modes, PointerEvent mine, PointerEvent before) {
  std::vector<int> list(modes);
  return [&s, list, mine = std::move(mine), before = std::move(before)](int b, int sh, Single x, Single y) {
    const int mode = s.m.PaintMode;
    if (std::find(list.begin(), list.end(), mode) != list.end() || !before) mine(b, sh, x, y);
    else before(b, sh, x, y);
  };
}

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

  f.pSpire.MouseDown = inModes(s, {18, 19}, [&s](int b, int sh, Single x, Single y) { pSpire_MouseDown(s, b, sh, x, y); },
                               f.pSpire.MouseDown);
  f.pSpire.MouseUp = inModes(s, {18, 19}, [&s](int b, int sh, Single x, Single y) { pSpire_MouseUp(s, b, sh, x, y); },
                             f.pSpire.MouseUp);
  f.pTemp.MouseUp = alsoRunPointer(f.pTemp.MouseUp, [&s](int b, int sh, Single x, Single y) { pTemp_MouseUp(s, b, sh, x, y); });

  f.pPix.MouseDown = inModes(s, {26}, [&s](int b, int sh, Single x, Single y) { TransparentPress(s, b, sh, x, y); },
                             f.pPix.MouseDown);
  f.pPix.MouseMove = inModes(s, {26}, [&s](int b, int sh, Single x, Single y) { TransparentMove(s, b, sh, x, y); },
                             f.pPix.MouseMove);
  f.pPix.MouseUp = inModes(s, {26}, [&s](int b, int sh, Single x, Single y) { TransparentRelease(s, b, sh, x, y); },
                           f.pPix.MouseUp);
  f.tPix.Timer_ = [&s] { tPix_Timer(s); };

  f.cPic.Click = alsoRun(f.cPic.Click, [&s] { CollageTakePicture(s); });
  f.cCan.Click = alsoRun(f.cCan.Click, [&s] { CollageOpenExplorer(s); });
}

}  // namespace qp
