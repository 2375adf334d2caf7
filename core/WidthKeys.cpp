// The draw width on the fly: while an arrow key is held (or Hold is set) tPenUp or tPenDwn steps
// the width, the spacing and the spray, and the tool reads the new values at its next step.
#include "core/Keyboard.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr Colour kAtMaximum = 0xC0C0FF;
constexpr Colour kAtMinimum = 0x00FFFF;

// A step that cannot be made (the font bar at its end, a width the surface refuses) is passed
// over and the next one still runs.
template <class F>
void passOver(F&& step) {
  trap(std::forward<F>(step));
}

void reachedLimit(frmCanvas& f, Colour colour, const char* word, Timer& timer) {
  f.lHelp.ForeColor = colour;
  f.lTell.Caption = word;
  timer.Enabled = false;
}

void showWidth(Session& s) {
  frmCanvas& f = s.f;
  const int width = s.m.DrawWidth;
  passOver([&] { f.pPix.DrawWidth = width; });
  passOver([&] { f.pPX.DrawWidth = width; });
  passOver([&] { f.PicPaint.DrawWidth = width; });
  passOver([&] { f.vPencil.Value = width; });
  passOver([&] { f.lPenVal.Caption = "Draw Width : " + QString::number(width); });
}

}  // namespace

void WidthUp(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  trap([&] {
    f.tPenDwn.Enabled = false;  // the two never run together
    if (m.PaintMode == 20) {    // the Text Brush grows its font instead of the width
      if (f.vFont.Value == 110) reachedLimit(f, kAtMaximum, "Maximum", f.tPenUp);
      else f.vFont.Value = f.vFont.Value + 1;
      return;
    }
    // Only equality stops: a width already past the limit keeps growing, up to 160.
    if (f.vMax.Value == m.DrawWidth) {
      reachedLimit(f, kAtMaximum, "Maximum", f.tPenUp);
      return;
    }
    passOver([&] { if (m.DrawWidth < 160) m.DrawWidth += 1; });
    passOver([&] { if (m.StepSize < 951) m.StepSize += 10; });
    passOver([&] { if (f.ckVal2.Value == 1 && f.AirSpread < 151) f.AirSpread += 2; });
    showWidth(s);
  });
}

void WidthDown(Session& s) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  trap([&] {
    f.tPenUp.Enabled = false;
    if (m.PaintMode == 20) {
      if (f.vFont.Value == 12) reachedLimit(f, kAtMinimum, "Minimum", f.tPenDwn);
      else f.vFont.Value = f.vFont.Value - 1;
      return;
    }
    if (f.vMin.Value == m.DrawWidth) {
      reachedLimit(f, kAtMinimum, "Minimum", f.tPenDwn);
      return;
    }
    passOver([&] { if (m.DrawWidth > 1) m.DrawWidth -= 1; });
    passOver([&] { if (m.StepSize > 50) m.StepSize -= 10; });
    passOver([&] { if (f.ckVal2.Value == 1 && f.AirSpread > 11) f.AirSpread -= 2; });
    showWidth(s);
  });
}

namespace {
void showInterval(frmCanvas& f) {
  f.lStats.Caption = "Current Draw Width Interval : " + QString::number(f.tPenUp.Interval);
}
}  // namespace

void IntervalUp(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.tPenUp.Interval > 29) {
      f.tPenUp.Interval = f.tPenUp.Interval - 10;
      f.tPenDwn.Interval = f.tPenDwn.Interval - 10;
    }
    showInterval(f);
  });
}

void IntervalDown(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.tPenDwn.Interval < 391) {
      f.tPenUp.Interval = f.tPenUp.Interval + 10;
      f.tPenDwn.Interval = f.tPenDwn.Interval + 10;
    }
    showInterval(f);
  });
}

// One Colour Mode a key press, within the bar, which runs with Min 3 (Gradient) above Max 0
// (Standard). The bar's change handler switches the engine.
void ColorModeUp(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.vColmode.Value < f.vColmode.Min) f.vColmode.Value = f.vColmode.Value + 1;
  });
}

void ColorModeDown(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.vColmode.Value > f.vColmode.Max) f.vColmode.Value = f.vColmode.Value - 1;
  });
}

}  // namespace qp
