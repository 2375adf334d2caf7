// Shadow Text: Text2 printed in the fore colour over a copy of itself in the back colour, shifted
// by the offset the user picks in the sample box.
#include "color/ColourEngine.h"
#include "tools/TextTools.h"
#include "ui/frmCanvas.h"

namespace qp {

void ShowShadowSample(Session& s) {
  frmCanvas& f = s.f;
  PictureBox& p = f.pShadTest;
  trap([&] {
    p.Cls();
    p.FontSize = static_cast<Single>(f.vShad.Value.get());
    p.FontName = f.PicPaint.FontName.get();
    p.CurrentX = p.Width / 4 + f.ShadowOffsetX;
    p.CurrentY = p.Height / 4 + f.ShadowOffsetY;
    p.ForeColor = s.m.BackClr.value();
    p.Print("AaBbCc");
    p.ForeColor = s.m.ForeClr.value();
    p.CurrentX = p.Width / 4;
    p.CurrentY = p.Height / 4;
    p.Print("AaBbCc");
  });
}

void pShadTest_MouseMove(Session& s, int Button, Single X, Single Y) {
  frmCanvas& f = s.f;
  trap([&] {
    f.lHelp.Caption = "Set Shadow Offset by holding left mouse button and moving over picture box";
    if (Button != vbLeftButton) return;
    f.ShadowOffsetX = CLng(X);
    f.ShadowOffsetY = CLng(Y);
  });
  if (Button == vbLeftButton) ShowShadowSample(s);
}

void lstShad_MouseDown(Session& s, int Button) {
  frmCanvas& f = s.f;
  if (Button != vbLeftButton) return;
  trap([&] {
    if (f.lstShad.Text().isEmpty()) return;
    f.PicPaint.FontName = f.lstShad.Text();
    f.pShadTest.FontName = f.PicPaint.FontName.get();
    ShowShadowSample(s);
  });
}

void lstShad_MouseUp(Session& s, int Button) {
  if (Button != vbRightButton) return;
  trap([&] { NextFontOption(s, {&s.f.PicPaint, &s.f.pShadTest}); });
  ShowShadowSample(s);
}

// The bar's Change sets the canvas's font size too; while the thumb is dragged (Scroll) only the
// sample follows, and the canvas takes the size when the drag ends.
void vShad_Change(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    const int v = f.vShad.Value;
    f.pShadTest.FontSize = static_cast<Single>(v);
    f.PicPaint.FontSize = static_cast<Single>(v);
    f.lShadFnt.Caption = QString::number(v);
  });
  ShowShadowSample(s);
}

void vShad_Scroll(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.pShadTest.FontSize = static_cast<Single>(f.vShad.Value.get());
    f.lShadFnt.Caption = QString::number(f.vShad.Value);
  });
  ShowShadowSample(s);
}

namespace {

void stamp(Session& s, Single X, Single Y) {
  frmCanvas& f = s.f;
  StepDrawColor(s);
  f.PicPaint.CurrentX = X;
  f.PicPaint.CurrentY = Y;
  f.PicPaint.CurrentX = static_cast<Single>(CLng(X + f.ShadowOffsetX));
  f.PicPaint.CurrentY = static_cast<Single>(CLng(Y + f.ShadowOffsetY));
  f.PicPaint.ForeColor = s.m.BackClr.value();
  f.PicPaint.Print(f.Text2.Text);
  f.PicPaint.ForeColor = s.m.ForeClr.value();
  f.PicPaint.CurrentX = X;
  f.PicPaint.CurrentY = Y;
  f.PicPaint.Print(f.Text2.Text);
}

void press(Session& s, int, Single X, Single Y) { stamp(s, X, Y); }
void move(Session& s, int, Single X, Single Y) {
  if (s.f.ckShaDraw.Value != 0) stamp(s, X, Y);
}

}  // namespace

ToolHooks shadowTextHooks() {
  ToolHooks h;
  h.press = press;
  h.move = move;
  h.sample = ShowShadowSample;
  return h;
}

}  // namespace qp
