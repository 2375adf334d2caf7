// The text tools' controls: the text boxes, the font lists and sizes, the boxes that shape 3D Text,
// the hidden bars that redraw it, and the shadow sample.
#include "app/Wiring.h"
#include "tools/TextTools.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

void wireText3D(Session& s) {
  frmCanvas& f = s.f;
  f.Text1.Change = [&s] { Text1_Change(s); };
  f.Text1.DblClick = [&f] { f.Text1.Text = ""; };
  f.Text1.MouseMove = [&f](int, int, Single, Single) {
    f.lHelp.Caption = "Type your text into the box (Double-click to clear current text)";
  };
  f.vFont.Change = [&s] { vFont_Change(s); };
  // Each bar that shapes the stack redraws it, while dragged as well as at the drop.
  auto redraw = [&s] { RedrawText3D(s); };
  for (ScrollBar* bar : {static_cast<ScrollBar*>(&f.HScroll1), static_cast<ScrollBar*>(&f.Px(0)),
                         static_cast<ScrollBar*>(&f.Px(1)), static_cast<ScrollBar*>(&f.vWid),
                         static_cast<ScrollBar*>(&f.vHgt)}) {
    bar->Change = redraw;
    bar->Scroll = redraw;
  }
  f.lstFont.MouseDown = [&s](int b, int, Single, Single) { lstFont_MouseDown(s, b); };
  f.lstFont.MouseMove = [&s](int, int, Single, Single) { lstFont_MouseMove(s); };
  f.lstFont.MouseUp = [&s](int b, int, Single, Single) { lstFont_MouseUp(s, b); };
  f.pCount.MouseMove = [&s](int b, int, Single x, Single y) { pCount_MouseMove(s, b, x, y); };
  f.pCount.MouseUp = [&s](int b, int, Single, Single) { pCount_MouseUp(s, b); };
  f.pCoords.MouseMove = [&s](int b, int, Single x, Single y) { pCoords_MouseMove(s, b, x, y); };
}

void wireShadowText(Session& s) {
  frmCanvas& f = s.f;
  f.pShadTest.MouseMove = [&s](int b, int, Single x, Single y) { pShadTest_MouseMove(s, b, x, y); };
  f.lstShad.MouseDown = [&s](int b, int, Single, Single) { lstShad_MouseDown(s, b); };
  f.lstShad.MouseUp = [&s](int b, int, Single, Single) { lstShad_MouseUp(s, b); };
  f.vShad.Change = [&s] { vShad_Change(s); };
  f.vShad.Scroll = [&s] { vShad_Scroll(s); };
}

}  // namespace

void wireTextTools(Session& s) {
  s.f.tGrdTx.Timer_ = [&s] { tGrdTx_Timer(s); };
  wireText3D(s);
  wireShadowText(s);
}

}  // namespace qp
