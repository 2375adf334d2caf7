// What each paint mode switches on or off when it is entered, beyond its value bars: the check
// boxes and their start values, the groups of the panel, the pixel surface, the menu items that do
// not apply, and the few odd steps some modes take. Common items are flags; the rest is a routine
// per mode.
#include <optional>
#include <vector>

#include "core/Panel.h"
#include "core/PanelRoles.h"
#include "core/ToolTable.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

enum Item : unsigned {
  ColourBar = 1u << 0,       // the colour option bar and its row
  Swap = 1u << 1,            // the colour swap button
  NoWidthLimits = 1u << 2,   // the arrow keys' width limits and Hold do not apply
  WidthLimits = 1u << 3,     // the width limits are enabled and shown
  NoPencil = 1u << 4,        // the draw width group does not apply
  Interval = 1u << 5,        // the paint timers' interval group is shown
  NoInterval = 1u << 6,
  ColourCover = 1u << 7,     // the colour block is covered
  PixelSurface = 1u << 8,    // the mode paints on pPix, which takes the canvas picture
  HideCanvas = 1u << 9,      // PicPaint hides behind pPix
  NoOpen = 1u << 10,
  NoPaste = 1u << 11,
  Axes = 1u << 12,           // the vertical and horizontal boxes, with live frames
  CanvasButton = 1u << 13,   // the whole-canvas button, with a live frame
  NoPointerBox = 1u << 14,   // ckHide and its frame go away
};

struct Entry {
  int mode;
  std::optional<int> ckVal;   // start value when shown; nullopt: not shown
  std::optional<int> ckVal2;
  unsigned items;
  void (*own)(Session&) = nullptr;
  bool ckVal2KeepsValue = false;  // the box is shown without its value being written
};

void airBrush(Session& s) {
  frmCanvas& f = s.f;
  f.vInt.Value = 1;
  f.tAir.Interval = f.vInt.Value.get();
}

void eraser(Session& s) {
  frmCanvas& f = s.f;
  f.shErSize.Visible = true;
  f.shErSize.Width = f.vVal1.Value.get();
  f.shErSize.Height = f.shErSize.Width.get();
  f.shErSize.BorderColor = static_cast<Colour>(s.m.ForeClr.value());
  f.shErSize.FillColor = static_cast<Colour>(s.m.ForeClr.value());
  f.shErSize.FillStyle = 0;
  f.shErase.BorderWidth = 1;
}

// The figure brushes' third frame is lit although the mode has only two rows.
void brushes(Session& s) { s.f.Shadow(3).BorderColor = kLiveFrame; }

void crazyLinez(Session& s) {
  s.f.vVal1.Enabled = true;
  s.f.CrazyEquation = s.f.vVal1.Value.get();
}

// Circle FX has no stepping colours: only the colour option stays of the colour block.
void circleFx(Session& s) {
  frmCanvas& f = s.f;
  for (VisualControl* c : std::initializer_list<VisualControl*>{&f.vColmode, &f.vVar, &f.lColMode, &f.lVar,
                                                                 &f.Shadow(10), &f.Shadow(36)})
    c->Visible = false;
  f.vColors.Visible = true;
  f.Shadow(33).Visible = true;
}

// Collage Mode has no picture yet: the button that opens one stays off until the user chooses one.
void collage(Session& s) {
  s.f.cCan.Enabled = false;
  s.f.cCan.ToolTipText = "Click to load a new image";
}

// The mode display is written once more at the end, after the surface has changed hands.
void floodFill(Session& s) { s.f.lMode.Caption = "FloodFill"; }

void freehandSpiralz(Session& s) { s.f.vColmode.Value = 1; }

void gradientShapes(Session& s) {
  frmCanvas& f = s.f;
  f.ckFreeTx.Visible = true;
  f.shErSize.Visible = false;
  f.lStats.Caption = "Diamond";
  f.vVal1.Value = 0;
}

void textBrush(Session& s) {
  frmCanvas& f = s.f;
  f.fText.Visible = true;
  f.fTcover.Visible = true;
  f.lstFont.ListIndex = 0;
  f.vInt.Value = 200;
  f.ckTx.Visible = true;
}

void text3D(Session& s) {
  frmCanvas& f = s.f;
  f.fText.Top = 720;  // lower than its usual place, clear of the pixel surface's corner
  f.fText.Visible = true;
  f.fTcover.Visible = false;
  f.vFont.Min = 120;
  f.lstFont.ListIndex = 0;
  if (!f.lstFont.Text().isEmpty()) f.pPix.FontName = f.lstFont.Text();
  f.pPix.FontSize = static_cast<Single>(f.vFont.Value.get());
  ShowTextSample(s);
}

void crazyPencil(Session& s) {
  frmCanvas& f = s.f;
  f.vPencil.Value = 60;
  s.m.DrawWidth = 60;
  f.lPenVal.Caption = "Draw Width : 60";
  s.rt.msgbox.MsgBox("Click the paint area once or so to initialize, then hang on 'cause this thing is NUTZ!",
                     vbOKOnly, "                                            WHO'S IDEA WAS THIS?!!");
}

void mirrorDraw(Session& s) {
  s.f.ckVal.Value = 0;  // written a second time; the box is already clear, so nothing more happens
  s.f.ckVert.Value = 1;
  s.f.ckHoriz.Value = 1;
}

void canvasGradients(Session& s) {
  frmCanvas& f = s.f;
  f.Shadow(5).BorderColor = kLiveFrame;
  f.opVert(0).Visible = true;
  f.opVert(1).Visible = true;
  f.opVert(0).Value = true;
  // A gradient has no stepping colours: only the colour option stays of the colour block.
  for (VisualControl* c : std::initializer_list<VisualControl*>{&f.vColmode, &f.vVar, &f.lColMode, &f.lVar})
    c->Visible = false;
  f.vColors.Visible = true;
  f.Shadow(33).Visible = true;
  f.lStats.Caption = "Diamonds";
  f.vVal1.Value = 0;
}

// Shadow Text picks its font and shadow offset in its own frame over the canvas, whose sample
// shows them from the start.
void shadowText(Session& s) {
  s.f.fShad.Visible = true;
  ShowShadowTextSample(s);
}

void transparentMode(Session& s) {
  frmCanvas& f = s.f;
  // A picture the Transparency Tool has made ready stays; otherwise the brush starts empty.
  if (s.m.TransparencyDone == 0) f.pT1.Picture = QImage();
  OpenTransparencyTool(s);
}

const std::vector<Entry>& entries() {
  using std::nullopt;
  static const std::vector<Entry> kEntries = {
      {0, 0, nullopt, ColourBar | WidthLimits},
      {1, 0, 0, Swap | NoWidthLimits},
      {2, 0, 0, Swap | NoWidthLimits},
      {3, nullopt, 0, Interval | ColourBar | WidthLimits, airBrush},
      {4, 0, 0, Swap | ColourBar},
      {5, 0, nullopt, Axes | NoWidthLimits},
      {6, nullopt, nullopt, ColourBar, eraser},
      {7, 1, 0, Interval | ColourBar, brushes, true},
      {8, 0, 0, Interval | NoPencil},
      {9, 0, 1, Interval | ColourBar},
      {10, nullopt, nullopt, ColourBar, crazyLinez},
      {11, nullopt, 0, ColourBar | NoPencil | Interval, circleFx},
      {12, 0, nullopt, CanvasButton | Swap | NoWidthLimits | NoPointerBox | ColourBar},
      {14, nullopt, nullopt, CanvasButton | NoPencil | ColourCover, collage},
      {15, nullopt, nullopt, NoOpen | NoPaste | PixelSurface | NoPencil, floodFill},
      {16, 1, 0, PixelSurface | HideCanvas | ColourBar | NoPaste | NoInterval, freehandSpiralz},
      {17, nullopt, nullopt, NoPencil | ColourCover, gradientShapes},
      {18, nullopt, nullopt, 0},
      {19, nullopt, nullopt, 0},
      {20, nullopt, nullopt, Interval | NoPencil | ColourBar, textBrush},
      {21, nullopt, nullopt, NoPaste | PixelSurface | HideCanvas | NoPencil | Swap, text3D},
      {23, 1, 0, 0, crazyPencil},
      {24, 0, 0, Axes | Interval | ColourBar, mirrorDraw, true},
      {25, nullopt, nullopt, CanvasButton | ColourBar | NoPointerBox | NoPencil, canvasGradients},
      {26, nullopt, 0, NoOpen | NoPencil | ColourCover | Interval | PixelSurface, transparentMode},
      {29, nullopt, nullopt, ColourBar, shadowText},
      {30, nullopt, nullopt, NoInterval | ColourBar | WidthLimits},
  };
  return kEntries;
}

void showBox(CheckBox& box, Shape& frame, std::optional<int> start, bool writeValue) {
  box.Visible = true;
  frame.Visible = true;
  frame.BorderColor = kLiveFrame;
  if (writeValue) box.Value = *start;
}

void applyItems(Session& s, unsigned items) {
  frmCanvas& f = s.f;
  if (items & ColourBar) {
    f.fBow.Visible = true;
    ShowColorOption(s);
  }
  if (items & Swap) {
    f.cSwap.Visible = true;
    f.Shadow(14).Visible = true;
  }
  if (items & NoWidthLimits) HideDrawWidthLimits(s);
  if (items & WidthLimits) {
    f.vMin.Enabled = true;
    f.vMax.Enabled = true;
    ShowDrawWidthLimits(s);
  }
  if (items & NoPencil) f.fPencil.Visible = false;
  if (items & Interval) f.fInt.Visible = true;
  if (items & NoInterval) f.fInt.Visible = false;
  if (items & ColourCover) f.fColCov.Visible = true;
  if (items & NoOpen) f.mnuOpen.Enabled = false;
  if (items & NoPaste) f.mnuPaste.Enabled = false;
  if (items & PixelSurface) {
    // The pixel modes work on a copy of the canvas that goes back at the next change of mode.
    f.pPix.Picture = f.PicPaint.Image;
    f.pPix.Visible = true;
  }
  if (items & HideCanvas) f.PicPaint.Visible = false;
  if (items & Axes) {
    f.ckVert.Visible = true;
    f.ckHoriz.Visible = true;
    for (int n : {8, 9}) {
      f.Shadow(n).Visible = true;
      f.Shadow(n).BorderColor = kLiveFrame;
    }
  }
  if (items & CanvasButton) {
    f.cCan.Visible = true;
    f.cCan.Enabled = true;
    f.Shadow(20).Visible = true;
    f.Shadow(20).BorderColor = kLiveFrame;
  }
  if (items & NoPointerBox) {
    f.ckHide.Visible = false;
    f.Shadow(38).Visible = false;
  }
}

}  // namespace

void ApplyModeEntry(Session& s) {
  frmCanvas& f = s.f;
  const int mode = s.m.PaintMode;
  for (const Entry& e : entries()) {
    if (e.mode != mode) continue;
    // The boxes first: their start values raise their clicks, whose words the entry's state word
    // then replaces.
    if (e.ckVal) showBox(f.ckVal, f.Shadow(24), e.ckVal, true);
    if (e.ckVal2) showBox(f.ckVal2, f.Shadow(34), e.ckVal2, !e.ckVal2KeepsValue);
    applyItems(s, e.items);
    if (e.own) e.own(s);
    return;
  }
}

void OpenTransparencyTool(Session& s) {
  // The window belongs to a higher layer; the mode's tool opens it.
  if (const auto& enter = s.tools.at(26).enter) enter(s);
}

void ShowTextSample(Session& s) {
  if (const PanelHook& sample = s.tools.at(21).sample) sample(s);
}

void ShowShadowTextSample(Session& s) {
  if (const PanelHook& sample = s.tools.at(29).sample) sample(s);
}

}  // namespace qp
