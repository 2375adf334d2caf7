// The main window's events, each to its routine.
#include "app/Wiring.h"
#include "color/ColourEngine.h"
#include "core/ApplyPaintMode.h"
#include "core/CanvasSize.h"
#include "core/Grid.h"
#include "core/Help.h"
#include "core/Edit.h"
#include "core/FloatingBlock.h"
#include "core/Keyboard.h"
#include "core/Layout.h"
#include "core/PaintModes.h"
#include "core/PixPipeline.h"
#include "core/Panel.h"
#include "core/PanelRoles.h"
#include "core/Pipeline.h"
#include "core/Startup.h"
#include "core/Undo.h"
#include "files/OpenSave.h"
#include "tools/AutoDraw.h"
#include "app/Program.h"

namespace qp {

namespace {

void chooseMode(Session& s, int mode) {
  s.m.PaintMode = mode;
  ApplyPaintMode(s);
}

// The selection items bake the canvas before they choose their mode.
void chooseSelection(Session& s, int mode) {
  trap([&] {
    TakeUndoSnapshot(s);
    s.m.PaintMode = mode;
    s.f.pPix.Visible = false;
    ApplyPaintMode(s);
  });
}

void wireModeMenus(Session& s) {
  frmCanvas& f = s.f;
  for (const PaintModeInfo& info : paintModes()) {
    if (!*info.menu) continue;
    auto* item = dynamic_cast<Menu*>(f.find(info.menu));
    if (!item) continue;
    const int mode = info.number;
    item->Click = [&s, mode] { chooseMode(s, mode); };
  }
  f.mSelClr.Click = [&s] { chooseSelection(s, 18); };
  f.mSelCpy.Click = [&s] { chooseSelection(s, 19); };
  f.mSelRect.Click = [&s] { chooseSelection(s, 19); };
  f.mTrans.Click = [&s] {
    frmCanvas& f = s.f;
    trap([&] {
      f.TransparencySelect = -1;
      TakeUndoSnapshot(s);
      s.m.PaintMode = 19;
      f.PicPaint.Visible = true;
      f.pPix.Visible = false;
      f.PanelRows = 0;
      SizeControlPanel(s);
    });
  };
  f.mPwp.Click = [&s] {
    chooseMode(s, 14);
    s.f.fX.Visible = true;
    s.f.PicPaint.MousePointer = s.f.PointerShape;
  };
}

void wireCanvasEvents(Session& s, const std::function<void()>& quit) {
  frmCanvas& f = s.f;
  f.Load = [&s] { Form_Load(s); };
  f.Resize = [&s] { Form_Resize(s); };
  f.Unload = [&s, quit] { Form_Unload(s, quit); };
  f.Terminate = [&s] { Form_Terminate(s); };
  f.mnuExit.Click = [&s, quit] { mnuExit_Click(s, quit); };
  f.PicPaint.MouseDown = [&s](int b, int sh, Single x, Single y) { PicPaint_MouseDown(s, b, sh, x, y); };
  f.PicPaint.MouseMove = [&s](int b, int sh, Single x, Single y) { PicPaint_MouseMove(s, b, sh, x, y); };
  f.PicPaint.MouseUp = [&s](int b, int sh, Single x, Single y) { PicPaint_MouseUp(s, b, sh, x, y); };
  f.vInt.Change = [&s] { vInt_Change(s); };
  // The canvas button and the floating block answer for the mode in use.
  f.cCan.Click = [&s] { cCan_Click(s); };
  f.cCan.MouseMove = [&s](int, int, Single, Single) { cCan_MouseMove(s); };
  f.pSpire.MouseDown = [&s](int b, int sh, Single x, Single y) { pSpire_MouseDown(s, b, sh, x, y); };
  f.pSpire.MouseUp = [&s](int b, int sh, Single x, Single y) { pSpire_MouseUp(s, b, sh, x, y); };
  // The pixel surface carries the strokes of the modes that paint in pixels.
  f.pPix.MouseDown = [&s](int b, int sh, Single x, Single y) { pPix_MouseDown(s, b, sh, x, y); };
  f.pPix.MouseMove = [&s](int b, int sh, Single x, Single y) { pPix_MouseMove(s, b, sh, x, y); };
  f.pPix.MouseUp = [&s](int b, int sh, Single x, Single y) { pPix_MouseUp(s, b, sh, x, y); };
  f.lMode.Change = [&f] { f.lModeB.Caption = f.lMode.Caption.get(); };
  f.lHelp.Change = [&f] { f.lHelpb.Caption = f.lHelp.Caption.get(); };
  f.m64x48.Click = [&s] { m64x48_Click(s); };
  f.m8x6.Click = [&s] { SetCanvasSize(s, 13760, 10785, 11995, 7200); };
  f.m768.Click = [&s] { SetCanvasSize(s, 13280, 8985, 11515, 7200); };
  // The draw width bar sets the width the tools draw with, and says it.
  auto widthBar = [&s] {
    frmCanvas& f = s.f;
    trap([&] {
      s.m.DrawWidth = f.vPencil.Value.get();
      f.PicPaint.DrawWidth = s.m.DrawWidth.value();
      f.pPix.DrawWidth = s.m.DrawWidth.value();
      f.lPenVal.Caption = "Draw Width : " + QString::number(s.m.DrawWidth);
    });
  };
  f.vPencil.Change = widthBar;
  f.vPencil.Scroll = widthBar;
  f.mnuUndo.Click = [&s] {
    StopAllTools(s);
    UndoOnce(s);
  };
}

void wireCanvasSize(Session& s) {
  frmCanvas& f = s.f;
  f.mFull.Click = [&s] { FitScreen(s); };
  f.mCustm.Click = [&s] { mCustm_Click(s); };
  f.cCustm.Click = [&s] { cCustm_Click(s); };
  f.cCanCust.Click = [&s] { cCanCust_Click(s); };
  f.hCustm.Change = [&f] { f.lWid.Caption = "Width : " + QString::number(f.hCustm.Value / 15); };
  f.vCustm.Change = [&f] { f.lHgt.Caption = "Height : " + QString::number(f.vCustm.Value / 15); };
  f.mLock.Click = [&s] { mLock_Click(s); };
  f.vWidth.Change = [&s] { vWidth_Change(s); };
  f.vWidth.Scroll = [&s] { vWidth_Change(s); };
  f.vHigh.Change = [&s] { vHigh_Change(s); };
  f.vHigh.Scroll = [&s] { vHigh_Change(s); };
  f.mCross.Click = [&s] { SetPointerShape(s, 2); };
  f.mArrow.Click = [&s] { SetPointerShape(s, 1); };
  f.mCoords.Click = [&s] { ToggleGrid(s); };
}

}  // namespace

void wireCanvas(Session& s, const std::function<void()>& quit) {
  wireModeMenus(s);
  wireCanvasEvents(s, quit);
  wireCanvasSize(s);
  wireHelp(s);
  wireColours(s);
  wirePanel(s);  // the panel's own meaning of its bars and boxes, then the tool's hooks
  wireEditCommands(s);
  wireKeyboard(s, quit);
  wireAutoDraw(s);
  wireFiles(s);
  wireTileSetter(s);
  wireImageBlender(s);
  wireImageStretcher(s);
  wireSelection(s);
  wireTransparencyTool(s);
  wireLineTools(s);
  wireSpirals(s, quit);
  wireGradients(s);
  wireBrushes(s);
  wireTextTools(s);
}

}  // namespace qp
