// The Text Brush: a press picks the font from the list and either starts tGrdTx, which stamps at
// the standing pointer, or (Paint w/Text) stamps at once; each move stamps again at the pointer.
// Each stamp leaves the print position behind its text, so the timer's stamps run on to the right.
#include "color/ColourEngine.h"
#include "tools/TextTools.h"
#include "ui/frmCanvas.h"

namespace qp {

void TextBrushStamp(Session& s) {
  frmCanvas& f = s.f;
  Random& rnd = s.rt.rnd;
  StepDrawColor(s);
  f.PicPaint.ForeColor = s.m.ForeClr.value();
  if (f.ckTx.Value == 0) {
    f.PicPaint.FontSize = static_cast<Single>(f.vFont.Value.get());
    f.PicPaint.PrintOnLine(f.Text1.Text);
  } else {
    f.PicPaint.FontSize = static_cast<Single>(Int(9 * rnd.Rnd() + f.vFont.Value - 4));
    // At the very left edge the random-size stamp prints nothing and leaves the colours alone.
    if (f.PicPaint.CurrentX == 0) return;
    f.PicPaint.PrintOnLine(f.Text1.Text);
  }
  if (f.ckTxGrad.Value == 1) {
    s.m.ColorOption = Int(rnd.Rnd() * 6 + 1);
    f.tGrad.Enabled = true;
  }
}

void tGrdTx_Timer(Session& s) {
  trap([&] { TextBrushStamp(s); });
}

namespace {

// The press and the move differ only in the font: the press takes it from the list, or stops
// when the list has none.
void stampAt(Session& s, Single X, Single Y, bool press) {
  frmCanvas& f = s.f;
  f.PicPaint.CurrentX = X - 100;  // the text cursor's lead
  f.PicPaint.CurrentY = Y;
  if (press) {
    if (f.lstFont.Text().isEmpty()) return;
    f.PicPaint.FontName = f.lstFont.Text();
  }
  if (f.ckFreeTx.Value == 0) {
    f.tGrdTx.Enabled = true;
    return;
  }
  TextBrushStamp(s);
}

void press(Session& s, int, Single X, Single Y) { stampAt(s, X, Y, true); }
void move(Session& s, int, Single X, Single Y) { stampAt(s, X, Y, false); }
void release(Session& s, int, Single, Single) { s.f.tGrdTx.Enabled = false; }

}  // namespace

ToolHooks textBrushHooks() {
  ToolHooks h;
  h.press = press;
  h.move = move;
  h.release = release;
  return h;
}

}  // namespace qp
