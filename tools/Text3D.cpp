// 3D Text: a stack of copies of Text1 on pPix, from the back colour to the front colour, each copy
// shifted by the axes. Every change of a bar, the text, the font or its size draws the stack again
// at once; a plain left press on pPix sets it on the canvas. The stack's loop counter is the
// shared LastX, which this mode has no other use for.
#include "tools/TextTools.h"
#include "ui/frmCanvas.h"

namespace qp {

void Draw3DText(Session& s, PictureBox& surface, Single depth, Single& r1, Single& g1, Single& b1,
                Single r2, Single g2, Single b2, Single& xAxis, Single& yAxis, const QString& text,
                const TextRun* run) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  surface.Cls();
  xAxis = xAxis / 10;
  yAxis = yAxis / 10;
  const QString& typed = f.Text1.Text;
  m.PrintX = CInt(f.vWid.Value - (run ? surface.TextWidth(typed, *run) : surface.TextWidth(typed)) / 2);
  m.PrintY = CInt(f.vHgt.Value - (run ? surface.TextHeight(typed, *run) : surface.TextHeight(typed)) / 2);
  // Back by half the stack, so that the whole stack stays centred.
  m.PrintX = CInt(m.PrintX - depth * xAxis / 2);
  m.PrintY = CInt(m.PrintY - depth * yAxis / 2);
  const auto step = [&](Single from, Single to) { return static_cast<Single>(divide(to - from, depth)); };
  const Single dR = step(r1, r2), dG = step(g1, g2), dB = step(b1, b2);
  const Single last = depth - 1;
  for (m.LastX = 0; m.LastX <= last; m.LastX = m.LastX + 1) {
    surface.CurrentX = m.PrintX + m.LastX * xAxis;
    surface.CurrentY = m.PrintY + m.LastX * yAxis;
    // The colour steps before the layer: the first already differs from the back colour, the
    // last has the front colour.
    r1 += dR;
    g1 += dG;
    b1 += dB;
    if (Int(r1) < 0) r1 = 0;
    if (Int(g1) < 0) g1 = 0;
    if (Int(b1) < 0) b1 = 0;
    surface.ForeColor = RGB(static_cast<int>(Int(r1)), static_cast<int>(Int(g1)), static_cast<int>(Int(b1)));
    if (run) surface.PrintRun(text, *run);
    else surface.Print(text);
  }
  surface.Refresh();
}

void RedrawText3D(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    // Keys change the text at its end: the run measures only what they changed.
    TextRun& run = s.text3DRun;
    const QString& text = f.Text1.Text;
    const std::uint64_t edits = f.Text1.edits();
    const qsizetype kept = edits == s.text3DEdits ? text.size()
                           : edits == s.text3DEdits + 1 ? f.Text1.keptByLastEdit()
                                                        : 0;
    run.follow(f.pPix, text, kept);
    s.text3DEdits = edits;
    Single r1 = f.HS1(0).Value, g1 = f.HS1(1).Value, b1 = f.HS1(2).Value;
    Single xAxis = f.Px(0).Value, yAxis = f.Px(1).Value;
    Draw3DText(s, f.pPix, f.HScroll1.Value, r1, g1, b1, f.HS1(3).Value, f.HS1(4).Value, f.HS1(5).Value, xAxis,
               yAxis, text, &run);
  });
}

void Text1_Change(Session& s) { RedrawText3D(s); }

void vFont_Change(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.pPix.FontSize = static_cast<Single>(f.vFont.Value.get());
    f.lFont.Caption = QString::number(f.vFont.Value);
  });
  RedrawText3D(s);
}

void lstFont_MouseDown(Session& s, int Button) {
  frmCanvas& f = s.f;
  if (Button != vbLeftButton) return;
  trap([&] {
    if (f.lstFont.Text().isEmpty()) return;
    f.pPix.FontName = f.lstFont.Text();
    // The tip names the canvas's font, not the one just chosen: it lags behind here.
    f.lstFont.ToolTipText = "Current Font : " + f.PicPaint.FontName.get();
    RedrawText3D(s);
  });
}

void lstFont_MouseMove(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (s.m.PaintMode == 21) f.lHelp.Caption = "Click to set font (Right-click to toggle FONT OPTIONS)";
    f.lstFont.ToolTipText = "Current Font : " + f.pPix.FontName.get();
  });
}

void lstFont_MouseUp(Session& s, int Button) {
  if (Button == vbRightButton) trap([&] { NextFontOption(s, {&s.f.pPix}); });
  RedrawText3D(s);
}

void pCount_MouseMove(Session& s, int, Single, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lHelp.Caption =
        "Hold CTRL key and move your pointer over the box to set the TEXT DEPTH (Release CTRL key to set) Right-click to set to Drop Shadow";
    if (f.CtrlDown != -1) return;
    if (Y >= f.pCount.ScaleHeight) f.HScroll1.Value = 60;
    if (Y < 2) f.HScroll1.Value = 1;
    f.HScroll1.Value = CInt(Y);
    f.pCount.ToolTipText = "Text Depth : " + QString::number(f.HScroll1.Value);
  });
}

void pCount_MouseUp(Session& s, int Button) {
  if (Button == vbRightButton) trap([&] { s.f.HScroll1.Value = 2; });  // the drop shadow
}

void pCoords_MouseMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lHelp.Caption = "Hold CTRL key and move pointer to set X-Y axis - Release CTRL key to set";
    if (f.CtrlDown != -1) return;
    if (X >= 40) f.Px(0).Value = 40;
    if (X < -40) f.Px(0).Value = -40;
    if (Y >= 40) f.Px(1).Value = 40;
    if (Y < -40) f.Px(1).Value = -40;
    f.Px(0).Value = CInt(X);
    f.Px(1).Value = CInt(Y);
    f.pCoords.ToolTipText =
        "X Axis : " + QString::number(f.Px(0).Value) + "  Y Axis : " + QString::number(f.Px(1).Value);
  });
}

void Text3D_MouseMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  // Each step on its own: a value out of a bar's range must not end the rest.
  trap([&] { f.lX.Caption = "X : " + QString::number(X); });
  trap([&] { f.lY.Caption = "Y : " + QString::number(Y); });
  trap([&] { f.vWid.Max = CInt(f.pPix.Width.get()); });
  trap([&] { f.vHgt.Max = CInt(f.pPix.Height.get()); });
  if (f.CtrlDown != -1) return;
  trap([&] { if (Y >= f.vHgt.Max) f.vHgt.Value = f.vHgt.Max.get(); });
  trap([&] { if (Y < 0) f.vHgt.Value = 0; });
  trap([&] { if (X >= f.vWid.Max) f.vWid.Value = f.vWid.Max.get(); });
  trap([&] { if (X < 0) f.vWid.Value = 0; });
  trap([&] { f.vWid.Value = CInt(X); });
  trap([&] { f.vHgt.Value = CInt(Y); });
}

void Text3D_MouseDown(Session& s, int Button, Single, Single) {
  frmCanvas& f = s.f;
  if (Button != vbLeftButton || f.CtrlDown != 0) return;
  trap([&] {
    // The canvas as it was before the text goes to the clipboard, for the user to paste back.
    s.rt.clipboard.Clear();
    s.rt.clipboard.SetData(f.PicPaint.Picture);
    f.pPix.Picture = f.pPix.Image;
    f.PicPaint.Picture = f.pPix.Image;
  });
}

ToolHooks text3DHooks() {
  ToolHooks h;
  h.sample = RedrawText3D;
  h.pixPress = Text3D_MouseDown;
  h.pixMove = Text3D_MouseMove;
  return h;
}

}  // namespace qp
