// The Explorer panel: browse, preview, take the previewed picture onto the canvas.
#include "files/Explorer.h"

#include "core/Layout.h"
#include "core/Undo.h"
#include "files/PictureFiles.h"
#include "files/SavePath.h"
#include "ui/frmCanvas.h"

namespace qp {

void Explorer_Drive1_Change(Session& s) {
  trap([&] { s.f.Dir1.Path = s.f.Drive1.Drive.get(); });
}

void Explorer_Dir1_Change(Session& s) {
  trap([&] { s.f.File1.Path = s.f.Dir1.Path.get(); });
}

void Explorer_File1_MouseDown(Session& s, int Button) {
  if (Button != vbLeftButton) return;
  frmCanvas& f = s.f;
  trap([&] {
    const QString name = f.File1.FileName();
    if (name.isEmpty()) return;
    f.imPre.Picture = LoadPicture(joinPath(f.File1.Path, name), f.PicPaint.BackColor);
    f.imPre.touch();
  });
}

void cPatt_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    if (f.File1.Pattern == QString("*.bmp")) f.File1.Pattern = "*.jpg";
    else if (f.File1.Pattern == QString("*.jpg")) f.File1.Pattern = "*.bmp";
  });
}

// The picture that goes onto the canvas is the one the preview shows, not a new read of the file:
// a name chosen with the keyboard previews nothing and brings the picture last previewed.
void cPic_Click(Session& s) {
  frmCanvas& f = s.f;
  if (s.m.PaintMode == 14) return;  // painting with pictures takes the picture its own way
  trap([&] {
    const QString name = f.File1.FileName();
    if (name.isEmpty()) return;
    s.m.CurrentFile = joinPath(f.File1.Path, name);
    SetTitle(s);
    f.lPic.Caption = s.m.CurrentFile;
  });
}

void cCancel_Click(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    f.fX.Visible = false;
    f.PicPaint.MousePointer = f.PointerShape.value();
  });
}

// The trigger fires on every write; only a path loads, and the handler empties it again.
void lPic_Change(Session& s) {
  frmCanvas& f = s.f;
  if (f.lPic.Caption.get().isEmpty()) return;
  trap([&] {
    TakeUndoSnapshot(s);
    f.PicPaint.Picture = f.imPre.Picture;  // the canvas takes the picture's size
    f.PicPaint.Picture = f.PicPaint.Image;
    f.pPix.Picture = f.PicPaint.Image;
    f.fX.Visible = false;
    f.PicPaint.MousePointer = f.PointerShape.value();
    s.m.CurrentFile = f.lPic.Caption;
    Form_Resize(s);
    f.lPic.Caption = "";
  });
}

void wireExplorer(Session& s) {
  frmCanvas& f = s.f;
  f.Drive1.Change = [&s] { Explorer_Drive1_Change(s); };
  f.Dir1.Change = [&s] { Explorer_Dir1_Change(s); };
  f.File1.MouseDown = [&s](int b, int, Single, Single) { Explorer_File1_MouseDown(s, b); };
  f.cPatt.Click = [&s] { cPatt_Click(s); };
  f.cPic.Click = [&s] { cPic_Click(s); };
  f.cCancel.Click = [&s] { cCancel_Click(s); };
  f.lPic.Change = [&s] { lPic_Change(s); };
  // The help line tells what the pointer is over.
  auto tell = [&f](VisualControl& c, const char* text) {
    c.MouseMove = [&f, text](int, int, Single, Single) { f.lHelp.Caption = text; };
  };
  tell(f.File1, "Click to preview image file");
  tell(f.cPatt, "Click to toggle image file filter (*.bmp or *.jpg files)");
  // The two jokes belong to one mode each and are chosen as the pointer passes, so that a mode
  // reached without a mode change (a floating picture, a selection) shows neither.
  f.cPatt.MouseMove = [&s, help = f.cPatt.MouseMove](int b, int sh, Single x, Single y) {
    help(b, sh, x, y);
    s.f.cPatt.ToolTipText = s.m.PaintMode == 14 ? kFilterJoke : "";
  };
  f.Dir1.MouseMove = [&s](int, int, Single, Single) {
    s.f.Dir1.ToolTipText = s.m.PaintMode == 0 ? kFolderJoke : "";
  };
  tell(f.cPic, "Click to select current image");
  tell(f.cCancel, "Click to close Explorer");
}

}  // namespace qp
