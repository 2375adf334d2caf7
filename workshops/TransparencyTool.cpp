// The Transparency Tool's window: its opening and closing (the last picture waits in the stash
// window under the "Temp" mark), the pictures it takes in, the key colours, Done, and the mask.
#include "workshops/TransparencyTool.h"

#include "core/Keyboard.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "files/SavePath.h"
#include "tools/PaintWithPix.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

frmBlue* window(Session& s) { return s.windows ? &s.windows->blue : nullptr; }

// Runs a routine of the window under the error trap, when the window exists.
template <class F>
void withWindow(Session& s, F&& f) {
  frmBlue* b = window(s);
  if (!b) return;
  trap([&] { f(*b); });
}

// A picture taken in becomes the working picture, flattened, at normal zoom.
void takePicture(frmBlue& b, const QImage& picture) {
  if (picture.isNull()) raiseError(RuntimeError::InvalidPicture, "Invalid picture");
  b.pBlu.Picture = picture;
  b.pBlu.Picture = b.pBlu.Image;
  b.pBlu.Move(0, 0);
  b.pBlu.Visible = true;
  b.pZoom.Visible = false;
  b.ZoomLevel = 1;
  b.vHigh.Visible = false;
  b.vWidth.Visible = false;
}

void sizeErasers(frmBlue& b) {
  for (Shape* e : {&b.shErase, &b.shZraser}) {
    e->Width = static_cast<Single>(b.vRase.Value.get());
    e->Height = static_cast<Single>(b.vRase.Value.get());
  }
}

}  // namespace

QString TransparencyInstructions() {
  return QString(
      "First, load an image OR copy an image or selection - Load .bmp or .jpg files with the Explorer "
      "(To remove a solid background or a large area of the same color, hold Ctrl key and click on that color "
      "- If this is the case the following step is unnessecary) Set the size of the transparency eraser with the arrows"
      " (You can select a portion of the image, so erasing the entire image isn't required - "
      "Erasing the area surrounding the portion of the image you wish to paint "
      "with will suffice unless you plan on painting with most of the image (Note : Large images take longer to process) - Release the left mouse "
      "button as you're erasing or Undo will revert back to initial starting point) If you erase too much, "
      "right-click the image to Undo - When finished erasing, click the Set Selection menu item - "
      "Click the top, left corner to be included in your selection and drag to set the "
      "size of the rectangle (If your selection is unsatisfactory, repeat the Select process) The window's caption will display that the image is prepared, then click Done "
      "- The window will close, the main window will be restored - Then click where you want to paint the transparent "
      "image - Click this caption to close Instructions");
}

void frmBlue_Load(Session& s) {
  withWindow(s, [&](frmBlue& b) {
    frmStash& stash = s.windows->stash;
    // A fresh start: nothing selected, normal zoom, erasing.
    b.SelectMode = 0;
    b.CtrlDown = 0;
    b.mSelect.Caption = "Set Selection";
    b.mDun.Enabled = false;
    b.tSel.Enabled = false;
    b.DShp.Visible = false;
    b.pZoom.Visible = false;
    b.pBlu.Visible = true;
    b.pT1.Picture = QImage();
    if (stash.lBlu.Caption.get() == "Temp") b.pBlu.Picture = stash.pBlu.Picture;
    b.pBlu.Picture = b.pBlu.Image;
    b.ZoomLevel = 1;
    b.fStruct.Move(720, 0);
    b.fStruct.Visible = true;
    b.fX.Move(120, 120);
    b.fX.Visible = false;
    b.Label1.Caption = TransparencyInstructions();
    b.pBlu.Picture = b.pBlu.Image;
    b.pBlu.BackColor = s.m.TransparentClr.value();
    sizeErasers(b);
  });
}

// The working picture waits in the stash window for the next opening; the main window comes back.
void frmBlue_Unload(Session& s) {
  withWindow(s, [&](frmBlue& b) {
    frmStash& stash = s.windows->stash;
    b.tSel.Enabled = false;
    trap([&] {
      b.pBlu.Picture = b.pBlu.Image;
      stash.pBlu.Picture = b.pBlu.Picture;
      stash.lBlu.Caption = "Temp";
    });
    b.fX.Visible = false;
    b.fStruct.Visible = false;
    b.markUnloaded();
    s.f.Show();
  });
}

void frmBlue_KeyDown(Session& s, int KeyCode) {
  withWindow(s, [&](frmBlue& b) {
    if (KeyCode == vbKeyControl) b.CtrlDown = -1;
  });
}

void frmBlue_KeyUp(Session& s, int KeyCode) {
  withWindow(s, [&](frmBlue& b) {
    if (KeyCode == vbKeyControl) b.CtrlDown = 0;
  });
}

void Blue_mOpen_Click(Session& s) {
  withWindow(s, [](frmBlue& b) {
    b.File1.Refresh();
    b.fX.Visible = true;
    b.fStruct.Visible = false;
  });
}

void Blue_File1_MouseDown(Session& s, int Button) {
  if (Button != vbLeftButton) return;
  withWindow(s, [&s](frmBlue& b) {
    const QString name = b.File1.FileName();
    if (name.isEmpty()) return;
    b.iPre.Picture = LoadPicture(joinPath(b.File1.Path, name), s.f.PicPaint.BackColor);  // a broken file keeps the old preview
    b.iPre.touch();
  });
}

void Blue_cKay_Click(Session& s) {
  withWindow(s, [](frmBlue& b) {
    if (b.File1.FileName().isEmpty()) return;
    takePicture(b, b.iPre.Picture);
    b.fX.Visible = false;
  });
}

void Blue_cPatt_Click(Session& s) {
  withWindow(s, [](frmBlue& b) {
    if (b.File1.Pattern == QString("*.bmp")) b.File1.Pattern = "*.jpg";
    else if (b.File1.Pattern == QString("*.jpg")) b.File1.Pattern = "*.bmp";
  });
}

void Blue_cCancel_Click(Session& s) {
  withWindow(s, [](frmBlue& b) { b.fX.Visible = false; });
}

void Blue_mPrev_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) { takePicture(b, s.windows->stash.pBlu.Picture); });
}

void Blue_mCpyInt_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) { takePicture(b, s.f.pSpire.Picture); });
}

void Blue_mStash_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) { takePicture(b, s.f.pStash.Picture); });
}

void Blue_mPaste_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) { takePicture(b, s.rt.clipboard.GetData()); });
}

void Blue_mSendStsh_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) {
    b.pBlu.Picture = b.pBlu.Image;
    s.f.pStash.Picture = QImage();
    s.f.pStash.Picture = b.pBlu.Picture;
    s.f.mGet.Enabled = true;  // the stash holds a picture now, as after the main window's send
  });
}

void Blue_mCopy_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) {
    b.pBlu.Picture = b.pBlu.Image;
    s.rt.clipboard.Clear();
    s.rt.clipboard.SetData(b.pBlu.Picture);
  });
}

void Blue_mSave_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) {
    if (fileWindowShown(s)) return;
    b.pBlu.Picture = b.pBlu.Image;
    ShowFileDialog(s, FileMode::SaveMask);
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
  });
}

void Blue_KeyColour_Click(Session& s, int which) {
  withWindow(s, [&](frmBlue& b) {
    static const char* const kNames[] = {"Black", "White", "Blue"};
    Label* labels[] = {&b.lBlk, &b.lWht, &b.lBlu};
    if (which < 0 || which > 2) return;
    s.m.TransparentClr = labels[which]->BackColor.get();
    b.lColor.BackColor = labels[which]->BackColor.get();
    b.lColor.Caption = QString("Transparent Color : ") + kNames[which];
  });
}

void Blue_vRase_Change(Session& s) {
  withWindow(s, [](frmBlue& b) { sizeErasers(b); });
}

// Done: the selection becomes the main window's brush, Transparent Mode starts there, and this
// window closes. With nothing selected there is nothing to hand over, and nothing happens.
void Blue_mDun_Click(Session& s) {
  withWindow(s, [&](frmBlue& b) {
    if (s.m.TransparencyDone == 0 || b.pT1.Picture.isNull()) return;
    b.tSel.Enabled = false;
    b.pT1.Picture = b.pT1.Image;
    frmCanvas& f = s.f;
    const QImage brush = b.pT1.Picture;
    // The brush keeps its own size: the stamp copies the whole of pT1.
    f.pT1.Width = brush.width() * 15.0f;
    f.pT1.Height = brush.height() * 15.0f;
    f.pT1.Picture = brush;
    EnterTransparentMode(s);
    f.Show();
    frmBlue_Unload(s);
  });
}

void Blue_mInstrct_Click(Session& s) {
  withWindow(s, [](frmBlue& b) {
    b.fStruct.Visible = true;
    b.fX.Visible = false;
  });
}

void Blue_Label1_Click(Session& s) {
  withWindow(s, [](frmBlue& b) { b.fStruct.Visible = false; });
}

}  // namespace qp
