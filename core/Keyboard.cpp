// The window's global keys and the paint area's arrow keys.
#include "core/Keyboard.h"

#include "color/ColourEngine.h"
#include "color/ColourPickers.h"
#include "core/Edit.h"
#include "core/Help.h"
#include "core/Grid.h"
#include "core/Startup.h"
#include "core/ToolTable.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// The help window (F2) and the key list (K) come with the help texts. Each key runs its menu
// item's handler, once that item is wired; until then the key does nothing.
void runMenuHandler(Menu& item) {
  if (item.Click) item.Click();
}
// The full-screen spirals (F9) belong to the mode's tool.
void runFullScreenKey(Session& s) {
  if (const PanelHook& open = s.tools.at(s.m.PaintMode).fullScreenKey) open(s);
}

void showDrawWidth(frmCanvas& f, int width) { f.lPenVal.Caption = "Draw Width : " + QString::number(width); }

// Enter and Shift jump the width to one of its on-the-fly limits.
void jumpWidthTo(Session& s, int width) {
  s.m.DrawWidth = width;
  showDrawWidth(s.f, s.m.DrawWidth);
  s.f.vPencil.Value = s.m.DrawWidth.value();
}

bool isArrow(int code) { return code >= vbKeyLeft && code <= vbKeyDown; }

// The modes in which the arrow keys change the draw width while the key is held.
bool arrowsDriveWidth(Session& s) {
  frmCanvas& f = s.f;
  const int mode = s.m.PaintMode;
  switch (mode) {
    case 0:
    case 24: return f.ckVal.Value == 0;
    case 2: return f.vVal3.Value == 3;
    case 3: case 4: case 5: case 6: case 7: case 8: case 9: case 10: case 11: case 12: case 15:
    case 16: case 20: case 23: case 30: return true;
    default: return false;
  }
}

Integer& autoDrawFlag(frmCanvas& f, int code) {
  switch (code) {
    case vbKeyLeft: return f.AutoDrawLeft;
    case vbKeyUp: return f.AutoDrawUp;
    case vbKeyRight: return f.AutoDrawRight;
    default: return f.AutoDrawDown;
  }
}

// The keys that type into the text tools' boxes when one of those panels is open.
void textFreeKeys(Session& s, int code) {
  frmCanvas& f = s.f;
  if (code == vbKeyBack) {
    if (f.CtrlDown == -1) UndoTwice(s);
    else UndoOnce(s);
  }
  if (code == vbKeyCapital) ToggleGrid(s);
  if (code == vbKeyZ) PopupToolz(s);
  if (code == vbKeyC) SetGridColors(s);
  if (code == vbKeyK) runMenuHandler(f.mKeys);  // the list of keys
  if (code == vbKeySpace) {
    // The snapshot makes the Spacebar the way to set a return point, in AutoDraw say.
    TakeUndoSnapshot(s);
    mCopy_Click(s);
  }
  if (code >= vbKey1 && code <= vbKey7) ColourKey(s, code - vbKey1, true);
  if (code == vbKey8) ColourKey(s, 7, false);  // gray, which is no Colour Option
  if (code == vbKeyShift) jumpWidthTo(s, f.vMin.Value);
  if (code == vbKeyF9 && s.m.PaintMode == 16) runFullScreenKey(s);
}

}  // namespace

void Form_KeyDown(Session& s, int& KeyCode, int Shift, const std::function<void()>& quit) {
  frmCanvas& f = s.f;
  const int code = KeyCode;
  if (code == vbKeyEscape) {
    mnuExit_Click(s, quit);
    return;  // nothing runs after the end of the program
  }
  trap([&] {
    if (code == vbKeyControl) f.CtrlDown = -1;
    if (code == vbKeyInsert) PasteToFloat(s);
    if (code == vbKeyDelete) ClearWithSnapshot(s);
    if (code == vbKeyF2) runMenuHandler(f.mHelp);
    if (code == vbKeyF7) IntervalDown(s);
    if (code == vbKeyF8) IntervalUp(s);
    if (code == vbKeyF11) ColorModeDown(s);
    if (code == vbKeyF12) ColorModeUp(s);
    if (code == vbKeyReturn) jumpWidthTo(s, f.vMax.Value);
    if (code >= vbKeyNumpad0 && code <= vbKeyNumpad6) ColourKey(s, code - vbKeyNumpad0, true);
    // With a text panel open these keys belong to its text box.
    if (!f.fText.Visible && !f.fShad.Visible) textFreeKeys(s, code);
  });
}

void Form_KeyUp(Session& s, int& KeyCode, int Shift) {
  frmCanvas& f = s.f;
  trap([&] {
    if (KeyCode == vbKeyControl) f.CtrlDown = 0;
    showDrawWidth(f, f.vPencil.Value);
  });
}

void PicPaint_KeyDown(Session& s, int& KeyCode, int Shift) {
  frmCanvas& f = s.f;
  const int code = KeyCode;
  trap([&] {
    if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = true;
    f.tTemp2.Enabled = false;
    f.lMode.ForeColor = 0xFFC0C0;
    f.AutoDrawPrevX = f.AutoDrawX;
    f.AutoDrawPrevY = f.AutoDrawY;
    const int mode = s.m.PaintMode;
    if (arrowsDriveWidth(s) && isArrow(code)) {
      if (code == vbKeyLeft || code == vbKeyDown) f.tPenDwn.Enabled = true;
      else f.tPenUp.Enabled = true;
    }
    if ((mode == 0 || mode == 24) && f.ckVal.Value == 1) {
      // AutoDraw. Mirrors N More steers the same pen but takes no colour step at the key.
      if (mode == 0) StepDrawColor(s);
      f.tDraw.Enabled = true;
      if (isArrow(code)) {
        Integer& flag = autoDrawFlag(f, code);
        if (flag != -1) flag = -1;
      }
    }
  });
}

void PicPaint_KeyUp(Session& s, int& KeyCode, int Shift) {
  frmCanvas& f = s.f;
  const int code = KeyCode;
  trap([&] {
    // Any key up stops the pen; a second key still held moves it again at its next repeat.
    f.tDraw.Enabled = false;
    if (isArrow(code)) autoDrawFlag(f, code) = 0;
    f.AutoDrawPrevX = f.AutoDrawX;
    f.AutoDrawPrevY = f.AutoDrawY;
    f.lHelp.ForeColor = 0xC0C0C0;
    f.lTell.Caption = "";
    // With Hold the width keeps moving after the key is up, until it meets its limit.
    if (f.ckHold.Value != 1) {
      f.tPenDwn.Enabled = false;
      f.tPenUp.Enabled = false;
    }
    if (f.ckDcolz.Value == 1) f.tDclrz.Enabled = false;
  });
}

void wireKeyboard(Session& s, const std::function<void()>& quit) {
  frmCanvas& f = s.f;
  f.KeyPreview = true;  // the global keys work whichever control has the focus
  f.KeyDown = [&s, quit](int& code, int shift) { Form_KeyDown(s, code, shift, quit); };
  f.KeyUp = [&s](int& code, int shift) { Form_KeyUp(s, code, shift); };
  f.PicPaint.KeyDown = [&s](int& code, int shift) { PicPaint_KeyDown(s, code, shift); };
  f.PicPaint.KeyUp = [&s](int& code, int shift) { PicPaint_KeyUp(s, code, shift); };
  f.tPenUp.Timer_ = [&s] { WidthUp(s); };
  f.tPenDwn.Timer_ = [&s] { WidthDown(s); };
}

}  // namespace qp
