// Connects the colour block's controls and the colour timers to their routines.
#include "app/Wiring.h"
#include "color/ColourEngine.h"
#include "color/ColourPickers.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

using MouseHandler = void (*)(Session&, int, int, Single, Single);

auto mouse(Session& s, MouseHandler h) {
  return [&s, h](int b, int sh, Single x, Single y) { h(s, b, sh, x, y); };
}

// The hidden bars are the custom colour: writing them (from the strips or the colour steps)
// sets the running components, so Rainbow and Glow go on from a colour mixed by hand.
void followBar(Session& s, VScrollBar& bar, Integer ModQuillora::*component) {
  bar.Change = [&s, &bar, component] { trap([&] { s.m.*component = bar.Value.get(); }); };
}

}  // namespace

void wireColours(Session& s) {
  frmCanvas& f = s.f;
  f.vColmode.Change = [&s] { vColmode_Change(s); };
  f.vVar.Change = [&s] { vVar_Change(s); };
  f.vVar.Scroll = [&s] { vVar_Change(s); };
  f.vColors.Change = [&s] { vColors_Change(s); };
  f.tGrad.Timer_ = [&s] { StepGradientColor(s); };
  f.tDclrz.Timer_ = [&s] { StepTransientColor(s); };
  // Transient's box has no Click of its own: it only says whether a press or a key starts the
  // generator and whether their release stops it. Unticked mid-stroke, the generator runs on.

  f.pColor.MouseMove = mouse(s, pColor_MouseMove);
  f.pColor.MouseDown = mouse(s, pColor_MouseDown);
  f.pColor.MouseUp = mouse(s, pColor_MouseUp);
  f.lColor.MouseDown = mouse(s, lColor_MouseDown);
  f.lColor.MouseUp = mouse(s, lColor_MouseUp);
  f.lForclr.MouseUp = mouse(s, lForclr_MouseUp);
  f.cSwap.Click = [&s] { cSwap_Click(s); };
  f.lColor.MouseMove = mouse(s, lColor_MouseMove);
  f.lColMode.MouseMove = mouse(s, lColMode_MouseMove);
  f.lColorVal.MouseMove = mouse(s, lColorVal_MouseMove);
  f.cSwap.MouseMove = mouse(s, cSwap_MouseMove);
  f.pR.MouseMove = mouse(s, pR_MouseMove);
  f.pG.MouseMove = mouse(s, pG_MouseMove);
  f.pB.MouseMove = mouse(s, pB_MouseMove);
  followBar(s, f.vRed, &ModQuillora::ClrRed);
  followBar(s, f.vGrn, &ModQuillora::ClrGreen);
  followBar(s, f.vBlu, &ModQuillora::ClrBlue);

  PaintSwatch(s);
}

}  // namespace qp
