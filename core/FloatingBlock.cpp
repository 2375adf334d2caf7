#include "core/FloatingBlock.h"

#include "core/ApplyPaintMode.h"
#include "core/ToolTable.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {
const ToolHooks& hooks(Session& s) { return s.tools.at(s.m.PaintMode); }
}  // namespace

void cCan_Click(Session& s) {
  trap([&] {
    if (const PanelHook& h = hooks(s).cCanClick) h(s);
  });
}

void cCan_MouseMove(Session& s) {
  trap([&] {
    if (const PanelHook& h = hooks(s).cCanMouseMove) h(s);
  });
}

void pSpire_MouseDown(Session& s, int Button, int, Single X, Single Y) {
  trap([&] {
    if (const StrokeHook& h = hooks(s).spirePress) h(s, Button, X, Y);
  });
}

void pSpire_MouseUp(Session& s, int Button, int, Single X, Single Y) {
  trap([&] {
    if (const StrokeHook& h = hooks(s).spireRelease) h(s, Button, X, Y);
  });
}

void SetFloatOnCanvas(Session& s, PictureBox& box, Single Left, Single Top, Single Width, Single Height) {
  frmCanvas& f = s.f;
  TakeUndoSnapshot(s);
  box.Picture = box.Image;
  f.PicPaint.PaintPicture(box.Picture, Left, Top, Width, Height);
  f.PicPaint.Picture = f.PicPaint.Image;
}

void CancelSpire(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.pSpire.Visible = false;
    f.DrawShape.BorderColor = 0xC0C0C0;
    f.tTemp.Enabled = false;
    f.DrawShape.Visible = false;
    s.m.PaintMode = f.PriorMode.value();
    // The modes that change their panel while a block floats get it back whole.
    if (s.m.PaintMode == 16 || s.m.PaintMode == 25) ApplyPaintMode(s);
    f.mCopy.Enabled = true;
  });
}

}  // namespace qp
