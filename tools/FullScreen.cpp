// The full-screen spirals. The window has no panel: its keys act on the main window's controls,
// which stay behind it, and its own timers change its own draw width.
#include "tools/FullScreen.h"

#include "color/ColourEngine.h"
#include "core/Keyboard.h"
#include "core/Layout.h"
#include "tools/FreehandSpiral.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr Single kMargin = 480;  // the surface stands this far in from every edge
constexpr int kFewestLines = 6;
constexpr int kMostLines = 24;   // the keys keep Lines per Pass narrower than the panel does
constexpr int kLinesStep = 6;

enum Key {
  kBack = 8, kDelete = 46, kNumpad0 = 96, kNumpad6 = 102, kAdd = 107, kSubtract = 109,
  kF1 = 112, kF7 = 118, kF8 = 119, kF9 = 120, kF11 = 122, kF12 = 123,
};

frmFull* window(Session& s) { return s.windows ? &s.windows->full : nullptr; }

void stopWidthTimers(frmFull& w) {
  w.tPenUp.Enabled = false;
  w.tPenDwn.Enabled = false;
}

void showInterval(Session& s, frmFull& w) {
  s.f.lStats.Caption = "Current Draw Width Interval : " + QString::number(w.tPenUp.Interval);
}

// The colour block of the main window decides the colour, with the window's own gradient timer.
void colourStep(Session& s, frmFull& w) {
  frmCanvas& f = s.f;
  switch (f.vColmode.Value) {
    case 0: s.m.ForeClr = f.lForclr.BackColor.get(); break;
    case 1: StepRainbowColor(s, f.vVar.Value); break;
    case 2: StepGlowColor(s, f.vVar.Value); break;
    case 3: w.tGrad.Enabled = true; break;
    default: break;
  }
}

}  // namespace

void OpenFullScreen(Session& s) {
  frmFull* w = window(s);
  if (!w || w->Visible) return;  // already up: a second F9 on the main window changes nothing
  w->Show();
}

void frmFull_Load(Session& s) {
  frmFull* w = window(s);
  if (!w) return;
  frmCanvas& f = s.f;
  trap([&] {
    w->FullDrawWidth = f.vPencil.Value.get();
    w->PixLastRadius = 0;
    w->PixLastAngle = 0;
    stopWidthTimers(*w);
    w->pPix.Picture = QImage();  // a fresh window: nothing of the last visit
    w->pPix.BackColor = f.pPix.BackColor.get();
    w->PicUndo.BackColor = w->pPix.BackColor.get();
    w->pPix.DrawWidth = w->FullDrawWidth.value();
    w->Move(0, 0, static_cast<Single>(s.rt.screen.Width()), static_cast<Single>(s.rt.screen.Height()));
    frmFull_Resize(s);
    w->pPix.Cls();  // the whole surface in its back colour, at its new size
  });
}

void frmFull_Resize(Session& s) {
  frmFull* w = window(s);
  if (!w) return;
  trap([&] {
    // A screen too small for the margins leaves the surface as it was.
    const Single width = w->Width - 2 * kMargin;
    const Single height = w->Height - 2 * kMargin;
    if (width <= 0 || height <= 0) return;
    w->pPix.Move(kMargin, kMargin, width, height);
  });
}

void CloseFullScreen(Session& s) {
  frmFull* w = window(s);
  if (!w) return;
  stopWidthTimers(*w);
  w->tGrad.Enabled = false;
  w->tDclrz.Enabled = false;
  s.f.Show();
  w->markUnloaded();
}

void frmFull_KeyDown(Session& s, int KeyCode, const std::function<void()>& quit) {
  frmFull* w = window(s);
  if (!w) return;
  frmCanvas& f = s.f;
  if (KeyCode == vbKeyEscape) {
    quit();  // the whole program ends, without a question
    return;
  }
  trap([&] {
    const int code = KeyCode;
    if (code == kAdd && s.m.PaintMode == 16 && f.vVal1.Value < kMostLines) f.vVal1.Value = f.vVal1.Value + kLinesStep;
    if (code == kSubtract && s.m.PaintMode == 16 && f.vVal1.Value > kFewestLines)
      f.vVal1.Value = f.vVal1.Value - kLinesStep;
    if (code == kF1) f.ckVal.Value = f.ckVal.Value == 1 ? 0 : 1;
    // The test comes before the step: the interval ends at 400 going up and at 20 going down.
    if (code == kF7) {
      if (w->tPenDwn.Interval < 391) {
        w->tPenUp.Interval = w->tPenUp.Interval + 10;
        w->tPenDwn.Interval = w->tPenDwn.Interval + 10;
      }
      showInterval(s, *w);
    }
    if (code == kF8) {
      if (w->tPenUp.Interval > 29) {
        w->tPenUp.Interval = w->tPenUp.Interval - 10;
        w->tPenDwn.Interval = w->tPenDwn.Interval - 10;
      }
      showInterval(s, *w);
    }
    if (code == kF11) ColorModeDown(s);
    if (code == kF12) ColorModeUp(s);
    if (code == kDelete) {
      w->pPix.Picture = QImage();
      w->pPix.Picture = w->pPix.Image;
      SetTitle(s);
    }
    if (code == kBack) w->pPix.Picture = w->PicUndo.Picture;
    if (code >= kNumpad0 && code <= kNumpad6) s.m.ColorOption = code - kNumpad0;
    if (code == vbKeyUp || code == vbKeyRight) w->tPenUp.Enabled = true;
    if (code == vbKeyLeft || code == vbKeyDown) w->tPenDwn.Enabled = true;
  });
  // Last, since the window is gone after it.
  if (KeyCode == kF9) CloseFullScreen(s);
}

void frmFull_KeyUp(Session& s, int) {
  frmFull* w = window(s);
  if (!w) return;
  if (s.f.ckHold.Value != 1) stopWidthTimers(*w);
}

void frmFull_tPenUp(Session& s) {
  frmFull* w = window(s);
  if (!w) return;
  trap([&] {
    if (w->FullDrawWidth >= s.f.vMax.Value) {
      stopWidthTimers(*w);
      return;
    }
    w->FullDrawWidth += 1;
    w->pPix.DrawWidth = w->FullDrawWidth.value();
  });
}

// Only the downward step touches the offset.
void frmFull_tPenDwn(Session& s) {
  frmFull* w = window(s);
  if (!w) return;
  trap([&] {
    if (w->FullDrawWidth <= s.f.vMin.Value) {
      stopWidthTimers(*w);
      return;
    }
    w->FullDrawWidth -= 1;
    s.m.StepSize -= 10;
    w->pPix.DrawWidth = w->FullDrawWidth.value();
  });
}

void frmFull_tGrad(Session& s) { StepGradientColor(s); }

void frmFull_pPix_MouseDown(Session& s, int Button, Single X, Single Y) {
  frmFull* w = window(s);
  if (!w) return;
  frmCanvas& f = s.f;
  trap([&] {
    if (f.ckHide.Value == 1) {
      w->pPix.MousePointer = 99;
      w->pPix.MouseIcon = f.iPnt.Picture;
    }
    if (Button != vbLeftButton) return;
    w->PicUndo.Picture = w->pPix.Image;
    if (f.ckDcolz.Value == 1) w->tDclrz.Enabled = true;
    colourStep(s, *w);
    SpiralPressOn(s, w->pPix, w->FullDrawWidth.value(), X, Y, w->PixLastRadius, w->PixLastAngle);
  });
}

void frmFull_pPix_MouseMove(Session& s, int Button, Single X, Single Y) {
  frmFull* w = window(s);
  if (!w || Button != vbLeftButton) return;
  trap([&] {
    colourStep(s, *w);
    SpiralMoveOn(s, w->pPix, X, Y, w->PixLastRadius, w->PixLastAngle);
  });
}

void frmFull_pPix_MouseUp(Session& s, int Button, Single, Single) {
  frmFull* w = window(s);
  if (!w) return;
  trap([&] {
    w->tDclrz.Enabled = false;
    w->pPix.MousePointer = 0;
    w->tGrad.Enabled = false;
    if (Button == vbRightButton) {
      w->pPix.Picture = w->PicUndo.Image;
      w->pPix.Refresh();
    }
  });
}

}  // namespace qp
