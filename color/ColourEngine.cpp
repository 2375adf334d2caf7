// The colour steps. Rainbow and Glow walk the running components ClrRed, ClrGreen, ClrBlue by the
// Color Variance at each draw step; the Transient Color Generator shakes them between steps;
// Gradient runs a ramp by timer. The components never step below 20 (so a stroke never walks into
// near-black) nor above 255; a component may still start lower, at 0.
#include <algorithm>
#include <cmath>

#include "color/ColourEngine.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr int kFloor = 20;
constexpr int kCeiling = 255;

// One draw of Rnd cut to 0 .. n-1. Every draw comes from the session's generator, so a seeded
// session replays the same colours.
int draw(Session& s, int n) {
  int v = static_cast<int>(std::floor(s.rt.rnd.Rnd() * n));
  return std::clamp(v, 0, n - 1);
}

// The hidden bars hold 0 to 255; what they hold is the colour, whatever the sum was.
void holdInBar(VScrollBar& bar, int v) { bar.Value = std::clamp(v, 0, 255); }

// Rainbow and the Transient generator share this walk: one channel up or down by `amount`.
// Blue, red, green are tested in that order; at most one of them moves.
void walkOneChannel(ModQuillora& m, int channel, int direction, int amount) {
  auto walk = [&](Integer& c, int which) {
    if (channel == which && direction == 0 && c + amount <= kCeiling) c = c + amount;
    if (channel == which && direction == 1 && c - amount >= kFloor) c = c - amount;
  };
  walk(m.ClrBlue, 2);
  walk(m.ClrRed, 0);
  walk(m.ClrGreen, 1);
}

// The bars take the components; ForeClr and the two colour boxes take what the bars hold.
void showRunningColour(Session& s) {
  frmCanvas& f = s.f;
  holdInBar(f.vRed, s.m.ClrRed);
  holdInBar(f.vGrn, s.m.ClrGreen);
  holdInBar(f.vBlu, s.m.ClrBlue);
  s.m.ForeClr = RGB(f.vRed.Value, f.vGrn.Value, f.vBlu.Value);
  f.lColor.BackColor = s.m.ForeClr.value();
  f.lForclr.BackColor = s.m.ForeClr.value();
}

// Glow: the component that drives the hue family of a Colour Option.
Integer& glowDriver(ModQuillora& m, int option) {
  switch (option) {
    case 1:
    case 4: return m.ClrRed;
    case 2: return m.ClrGreen;
    default: return m.ClrBlue;  // white, blue, cyan, magenta
  }
}

// Glow: every component of the family takes the driver's value, the others 0.
void setGlowFamily(ModQuillora& m, int option, int d) {
  const bool red = option == 0 || option == 1 || option == 4 || option == 6;
  const bool green = option == 0 || option == 2 || option == 4 || option == 5;
  const bool blue = option == 0 || option == 3 || option == 5 || option == 6;
  m.ClrRed = red ? d : 0;
  m.ClrGreen = green ? d : 0;
  m.ClrBlue = blue ? d : 0;
}

// Gradient: the ramp colour of a Colour Option at phase p; -1 when the option is unknown.
Colour rampColour(int option, int p) {
  switch (option) {
    case 0: return RGB(p, p, p);
    case 1: return RGB(p, 0, 0);
    case 2: return RGB(0, p, 0);
    case 3: return RGB(0, 0, p);
    case 4: return RGB(p, p, 0);
    case 5: return RGB(0, p, p);
    case 6: return RGB(p, 0, p);
    default: return -1;
  }
}

}  // namespace

void StepRainbowColor(Session& s, int variance) {
  const int channel = draw(s, 3);
  const int direction = draw(s, 2);
  walkOneChannel(s.m, channel, direction, variance);
  showRunningColour(s);
}

void StepGlowColor(Session& s, int variance) {
  const int option = s.m.ColorOption;
  if (option < 0 || option > 6) return;
  const int direction = draw(s, 2);
  int d = glowDriver(s.m, option);
  // A refused step writes nothing, so components outside the family keep their values until
  // the first step that succeeds.
  if (d + variance <= kCeiling && direction == 0) {
    d += variance;
    setGlowFamily(s.m, option, d);
  }
  if (d - variance >= kFloor && direction == 1) {
    d -= variance;
    setGlowFamily(s.m, option, d);
  }
  showRunningColour(s);
}

void StepTransientColor(Session& s) {
  trap([&] {
    const int channel = draw(s, 3);
    const int direction = draw(s, 2);
    const int amount = draw(s, 90);
    walkOneChannel(s.m, channel, direction, amount);
    s.m.TransientClr = RGB(s.m.ClrRed, s.m.ClrGreen, s.m.ClrBlue);
  });
}

void StepGradientColor(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    // 5, 10, ... 250, 255, then 5 again: phase 0 never colours a ramp.
    if (s.m.GradPhase == 255) s.m.GradPhase = 0;
    s.m.GradPhase = s.m.GradPhase + 5;
    const Colour c = rampColour(s.m.ColorOption, s.m.GradPhase);
    if (c >= 0) s.m.GradClr = c;
    s.m.ForeClr = s.m.GradClr;
    s.m.BackClr = s.m.GradClr;  // in every paint mode: both colours run the ramp together
    if (f.ckVal.Value == 1) f.lColor.BackColor = s.m.GradClr.value();
  });
}

void StepDrawColor(Session& s) {
  frmCanvas& f = s.f;
  switch (f.vColmode.Value) {
    case 0: s.m.ForeClr = f.lForclr.BackColor.get(); break;
    case 1: StepRainbowColor(s, f.vVar.Value); break;
    case 2: StepGlowColor(s, f.vVar.Value); break;
    case 3: f.tGrad.Enabled = true; break;
    default: break;
  }
}

}  // namespace qp
