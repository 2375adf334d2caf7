// The canvas to and from the clipboard. A paste does not land on the canvas at once: it floats in
// pTemp under a blinking frame, and a click on it sets it down.
#include "core/FloatingBlock.h"
#include "core/Edit.h"
#include "core/Layout.h"
#include "core/Panel.h"
#include "core/Undo.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {
constexpr Colour kFrameDark = 0xC0C0C0;
constexpr Colour kFrameLight = 0xE0E0E0;
constexpr int kFloatPaintMode = 22;
}  // namespace

void mCopy_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    Clipboard& clipboard = s.rt.clipboard;
    clipboard.Clear();
    FlattenCanvas(s);
    clipboard.SetData(f.PicPaint.Picture);  // the canvas keeps its picture too
  });
}

void PasteToFloat(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.pTemp.Cls();
    const QImage picture = s.rt.clipboard.GetData();
    // No picture on the clipboard: the paste fails here, the float stays hidden, the mode stays.
    if (picture.isNull()) raiseError(RuntimeError::ClipboardEmpty, "Can't open Clipboard");
    // The float takes the picture's own size, so the frame fits the picture.
    f.pTemp.Width = picture.width() * 15.0f;
    f.pTemp.Height = picture.height() * 15.0f;
    f.pTemp.Picture = picture;
    f.pTemp.Left = 480;
    f.pTemp.Top = 480;
    f.DrawShape.Width = f.pTemp.Width.get();
    f.DrawShape.Height = f.pTemp.Height.get();
    f.DrawShape.Left = f.pTemp.Left.get();
    f.DrawShape.Top = f.pTemp.Top.get();
    f.DrawShape.Visible = true;
    f.pTemp.Visible = true;
    f.DrawShape.BorderColor = kFrameDark;
    f.tTemp.Enabled = true;
    // The float is a mode of its own, entered without ApplyPaintMode so that the panel stays and
    // the mode before comes back when the picture is set down.
    s.m.PaintMode = kFloatPaintMode;
  });
}

void mnuPaste_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    StopAllTools(s);
    PasteToFloat(s);
    if (f.fMax.Width > f.PicPaint.Width) Form_Resize(s);
    if (f.fMax.Height > f.PicPaint.Height) Form_Resize(s);
  });
}

// The frame of a floating picture blinks, on the canvas and on the pixel twin alike.
void tTemp_Timer(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    for (Shape* frame : {&f.DrawShape, &f.Dshp})
      frame->BorderColor = frame->BorderColor == kFrameDark ? kFrameLight : kFrameDark;
  });
}

// A left press on the float paints it into the canvas within its frame, so a resized frame
// stretches it; the mode before the paste comes back.
void pTemp_MouseDown(Session& s, int Button, int Shift, Single X, Single Y) {
  frmCanvas& f = s.f;
  if (Button != vbLeftButton) return;
  trap([&] {
    SetFloatOnCanvas(s, f.pTemp, f.DrawShape.Left, f.DrawShape.Top, f.DrawShape.Width.get(), f.DrawShape.Height.get());
    f.pTemp.Visible = false;
    f.DrawShape.Visible = false;
    f.DrawShape.BorderColor = kFrameDark;
    f.tTemp.Enabled = false;
    s.m.PaintMode = f.PriorMode;
  });
}

}  // namespace qp
