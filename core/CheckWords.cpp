// The panel's two check boxes: the word each writes to the state line in each paint mode, and what
// else a click switches. A mode without words leaves the state line alone.
#include <vector>

#include "core/Panel.h"
#include "core/PanelRoles.h"
#include "core/ToolTable.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

using Effect = void (*)(Session&, bool on);

struct BoxWords {
  int mode;
  const char* on;   // written at Value 1
  const char* off;  // written at Value 0
  Effect effect;
};

// Lines and shapes: the offset row matters only once a shadow or a third copy is drawn.
void offsetRowFollowsBoxes(Session& s, bool) {
  const bool used = s.f.ckVal.Value == 1 || s.f.ckVal2.Value == 1;
  s.f.Shadow(1).BorderColor = used ? kLiveFrame : kDimFrame;
}

// Bubblez use the size and aspect rows; Boxes do not, and their bars are held still.
void bubbleRows(Session& s, bool on) {
  for (int n : {2, 3}) {
    s.f.Shadow(n).BorderColor = on ? kLiveFrame : kDimFrame;
    s.f.valueBar(n).Enabled = on;
  }
}

// A mini spiral is drawn where the user drags, so the full-canvas button goes away and the pointer
// box comes back; the full spiral needs the button.
void miniSpiral(Session& s, bool on) {
  frmCanvas& f = s.f;
  f.cCan.Visible = !on;
  f.Shadow(20).Visible = !on;
  f.ckHide.Visible = on;
  f.Shadow(38).Visible = on;
}

// The Fullscreen option of Freehand Spiralz is a paint mode of its own.
void miniSpirals(Session& s, bool on) {
  frmCanvas& f = s.f;
  if (on) {
    if (s.m.PaintMode == 16) s.m.PaintMode = 28;
  } else if (s.m.PaintMode == 28) {
    s.m.PaintMode = 16;
    f.Dshp.Visible = false;
    f.tTemp.Enabled = false;
    f.pPX.Visible = false;
  }
}

// AutoDraw in the mirrors: the arrow keys steer the pen, so the speed row and the interval come up
// and the mirror axes and the line option go away while it is on.
void mirrorAutoDraw(Session& s, bool on) {
  frmCanvas& f = s.f;
  f.ckVal2.Enabled = !on;
  if (on) {
    ShowValueRow1(s);
  } else {
    f.vVal1.Visible = false;
    f.lVal1.Visible = false;
    f.Shadow(1).Visible = false;
  }
  f.fInt.Visible = on;
  for (VisualControl* c : std::initializer_list<VisualControl*>{&f.ckVert, &f.ckHoriz, &f.Shadow(8), &f.Shadow(9)})
    c->Visible = !on;
}

// Mode 0's box is AutoDraw, which the pencil's own hook switches; it has no entry here.
const std::vector<BoxWords>& firstBox() {
  static const std::vector<BoxWords> kWords = {
      {1, "Shadow Mode", "Single Mode", offsetRowFollowsBoxes},
      {2, "Shadow Mode", "Single Mode", offsetRowFollowsBoxes},
      {4, "Shadow Mode", "Single Mode", nullptr},
      {5, "Shadow Mode", "Single Mode", nullptr},
      // A set box draws while the pointer moves; a clear one stamps once per click.
      {7, "Draw", "Click", nullptr},
      {8, "Mixing Enabled", "Mixing Disabled", nullptr},
      {9, "Bubblez", "Boxes", bubbleRows},
      {12, "Mini Mode", "Full Screen", miniSpiral},
      {16, "Orbital Mode", "Radial Mode", nullptr},
      {28, "Orbital Mode", "Radial Mode", nullptr},
      {24, "AutoDraw Enabled", "AutoDraw Disabled", mirrorAutoDraw},
  };
  return kWords;
}

const std::vector<BoxWords>& secondBox() {
  static const std::vector<BoxWords> kWords = {
      {1, "3rd Line", "Two Lines", offsetRowFollowsBoxes},
      {2, "Third Enabled", "Third Disabled", offsetRowFollowsBoxes},
      {4, "Third Enabled", "Third Disabled", nullptr},
      {16, "MiniMode", "Fullscreen", miniSpirals},
      {28, "MiniMode", "Fullscreen", miniSpirals},
      {24, "Freehand", "Linez", nullptr},
      {26, "Paint enabled", "Paint disabled", nullptr},
  };
  return kWords;
}

void clicked(Session& s, const std::vector<BoxWords>& table, CheckBox& box, PanelHook ToolHooks::*hook) {
  trap([&] {
    const int mode = s.m.PaintMode;
    const bool on = box.Value == 1;
    for (const BoxWords& w : table) {
      if (w.mode != mode) continue;
      s.f.lStats.Caption = on ? w.on : w.off;
      if (w.effect) w.effect(s, on);
      break;
    }
    // The tool of the mode in use reacts after the panel (the mode may just have changed).
    if (const PanelHook& h = s.tools.at(mode).*hook) h(s);
  });
}

}  // namespace

const char* checkBoxWord(int mode, int box) {
  for (const BoxWords& w : box == 1 ? firstBox() : secondBox())
    if (w.mode == mode) return w.on;
  return nullptr;
}

void ckVal_Click(Session& s) { clicked(s, firstBox(), s.f.ckVal, &ToolHooks::ckValClick); }
void ckVal2_Click(Session& s) { clicked(s, secondBox(), s.f.ckVal2, &ToolHooks::ckVal2Click); }

void wirePanel(Session& s) {
  frmCanvas& f = s.f;
  f.ckVal.Click = [&s] { ckVal_Click(s); };
  f.ckVal2.Click = [&s] { ckVal2_Click(s); };
  for (int n = 1; n <= 5; ++n) {
    f.valueBar(n).Change = [&s, n] { vVal_Change(s, n); };
    f.valueBar(n).Scroll = [&s, n] { vVal_Change(s, n); };
  }
}

}  // namespace qp
