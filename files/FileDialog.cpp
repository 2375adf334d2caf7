// The file window: its lists, its folder memory in the main window's labels, and OK, which opens or
// saves according to the caption the opener gave the window.
#include "files/FileDialog.h"

#include "core/Layout.h"
#include "files/ExportPng.h"
#include "files/PictureFiles.h"
#include "files/SavePath.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

frmFile* fileWindow(Session& s) { return s.windows ? &s.windows->file : nullptr; }

bool fileWindowShown(Session& s) {
  frmFile* d = fileWindow(s);
  return d && d->Visible;
}

void ShowFileDialog(Session& s, const QString& caption) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  d->Caption = caption;
  d->Show(false);
}

namespace {

// What each save caption writes. A caption whose window is not part of the program writes
// nothing; OK then only closes, as it does for a caption it does not know.
struct SaveKind {
  const QString& caption;
  QImage (*picture)(Session&);  // null: nothing to write
  bool namesCanvas;             // the saved file becomes the canvas's file
};

QImage canvasImage(Session& s) { return s.f.PicPaint.Image; }
QImage selectionImage(Session& s) { return s.f.pSpire.Image; }
// The workshops' pictures, each flattened by the menu item that opened the dialog.
QImage tiledImage(Session& s) { return s.windows->tile.pLO.Picture; }
QImage stretchedImage(Session& s) { return s.windows->stretch.pLO.Picture; }
QImage croppedImage(Session& s) { return s.windows->stretch.pT1.Picture; }
QImage blendedImage(Session& s) { return s.windows->blend.pTemp.Picture; }
QImage blueScreenImage(Session& s) { return s.windows->blend.pT1.Picture; }

const SaveKind kSaveKinds[] = {
    {FileMode::SaveImage, canvasImage, true},
    // The Transparency Tool's working picture, when the session has that window.
    {FileMode::SaveMask, [](Session& s) { return s.windows ? s.windows->blue.pBlu.Picture.get() : QImage(); }, false},
    {FileMode::SaveSelection, selectionImage, false},
    {FileMode::SaveTiled, tiledImage, false},
    {FileMode::SaveStretched, stretchedImage, false},
    {FileMode::SaveCropped, croppedImage, false},
    {FileMode::SaveBlended, blendedImage, false},
    {FileMode::SaveBlueScreen, blueScreenImage, false},
};

const SaveKind* saveKindOf(const QString& caption) {
  for (const SaveKind& k : kSaveKinds)
    if (k.caption == caption) return &k;
  return nullptr;
}

// The Image Stretcher's source: shown as it came until the window's next resize stretches it.
void loadForStretcher(Session& s, const QString& path) {
  if (!s.windows) return;
  frmStretch& w = s.windows->stretch;
  w.pTemp.Picture = LoadPicture(path, s.f.PicPaint.BackColor);
  w.mSave.Enabled = true;
  w.pTemp.Move(w.pLO.Left, w.pLO.Top);
  w.pTemp.Visible = true;
  w.pLO.Picture = w.pTemp.Picture;
}

// Runs one statement of a routine whose errors are stepped over, one by one.
template <class F>
void stepOver(F&& f) {
  trap(std::forward<F>(f));
}

// Returns false when OK must stop with the window left as it is.
bool saveBranch(Session& s, frmFile& d, const SaveKind& kind) {
  const SavePath target = ComposeSavePath(d.Dir1.Path, d.TxtFile.Text);
  d.TxtFile.Text = target.name;
  if (target.refused) {
    s.rt.msgbox.MsgBox(jpgRefusalMessage(), vbOKOnly, QString());
    return false;
  }
  if (!kind.picture) return true;
  SavePicture(kind.picture(s), target.path);
  if (kind.namesCanvas) s.m.CurrentFile = target.path;
  return true;
}

bool loadBranch(Session& s, frmFile& d, const QString& caption) {
  frmCanvas& f = s.f;
  // A looser filter than the type list's: "*jpg" also lists names that merely end in those letters.
  d.File1.Pattern = d.CmbType.ListIndex == 0 ? QString("*.bmp") : QString("*jpg");
  const QString path = joinPath(d.Dir1.Path, d.TxtFile.Text);
  s.m.CurrentFile = "";
  if (d.File1.FileName().isEmpty()) return false;  // a typed name alone opens nothing
  if (caption == FileMode::OpenImage) {
    const QImage picture = LoadPicture(path, f.PicPaint.BackColor);
    f.PicPaint.Picture = picture;
    f.pPix.Picture = picture;
    s.m.CurrentFile = path;
    // The canvas trigger places the Explorer's preview; here that preview is this very picture.
    f.imPre.Picture = picture;
    f.imPre.touch();
    f.lPic.Caption = s.m.CurrentFile;
    f.lDir.Caption = d.Dir1.Path.get();
  } else {
    loadForStretcher(s, path);
  }
  return true;
}

}  // namespace

void frmFile_Load(Session& s) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  frmCanvas& f = s.f;
  trap([&] {
    d->File1.Refresh();
    const QString caption = d->Caption;
    // Both remembered places are read first: choosing the drive writes the folder memory.
    const QString drive = f.lDrive.Caption, folder = f.lDir.Caption;
    const bool canvasFolder = caption == FileMode::OpenImage || caption == FileMode::SaveImage || caption == FileMode::ExportPng;
    if (canvasFolder && !folder.isEmpty()) {
      d->Drive1.Drive = drive;
      d->Dir1.Path = folder;
    }
    frmStretch& stretch = s.windows->stretch;
    const QString stretchDrive = stretch.lDrive.Caption, stretchFolder = stretch.lDir.Caption;
    if (caption == FileMode::LoadStretch && !stretchFolder.isEmpty()) {
      d->Drive1.Drive = stretchDrive;
      d->Dir1.Path = stretchFolder;
    }
    d->CmbType.ListIndex = 0;
  });
}

void CmbType_Click(Session& s) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  trap([&] {
    if (d->CmbType.ListIndex == 0) d->File1.Pattern = "*.bmp";
    else if (d->CmbType.ListIndex == 1) d->File1.Pattern = "*.jpg";
  });
}

void frmFile_Drive1_Change(Session& s) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  trap([&] {
    d->Dir1.Path = d->Drive1.Drive.get();
    s.f.lDrive.Caption = d->Drive1.Drive.get();
    s.windows->stretch.lDrive.Caption = d->Drive1.Drive.get();
  });
}

void frmFile_Dir1_Change(Session& s) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  stepOver([&] { d->File1.Path = d->Dir1.Path.get(); });
  stepOver([&] { s.f.lDrive.Caption = d->Drive1.Drive.get(); });
  stepOver([&] { s.windows->stretch.lDrive.Caption = d->Drive1.Drive.get(); });
  stepOver([&] { s.f.lDir.Caption = d->Dir1.Path.get(); });
  stepOver([&] { s.windows->stretch.lDir.Caption = d->Dir1.Path.get(); });
}

void frmFile_File1_Click(Session& s) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  trap([&] {
    const QString name = d->File1.FileName();
    if (name.isEmpty()) return;
    d->TxtFile.Text = name;
    // A file that cannot be decoded keeps the old preview; the name stays chosen all the same.
    d->imPreview.Picture = LoadPicture(joinPath(d->File1.Path, name), s.f.PicPaint.BackColor);
    d->imPreview.touch();
  });
}

void cmdOK_Click(Session& s) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  trap([&] {
    const QString caption = d->Caption;
    bool close = true;
    if (caption == FileMode::OpenImage || caption == FileMode::LoadStretch) close = loadBranch(s, *d, caption);
    else if (const SaveKind* kind = saveKindOf(caption)) close = saveBranch(s, *d, *kind);
    else if (caption == FileMode::ExportPng) close = exportBranch(s, *d);
    if (!close) return;
    SetTitle(s);
    d->Hide();
  });
}

void CmdCancel_Click(Session& s) {
  if (frmFile* d = fileWindow(s)) d->unload();
}

void wireFileDialog(Session& s) {
  frmFile* d = fileWindow(s);
  if (!d) return;
  d->Load = [&s] { frmFile_Load(s); };
  d->Unload = [d] { d->unload(); };  // closed from its title bar: the same as Cancel
  d->CmbType.Click = [&s] { CmbType_Click(s); };
  d->Drive1.Change = [&s] { frmFile_Drive1_Change(s); };
  d->Dir1.Change = [&s] { frmFile_Dir1_Change(s); };
  d->File1.Click = [&s] { frmFile_File1_Click(s); };
  d->File1.DblClick = [&s] { cmdOK_Click(s); };
  d->cmdOK.Click = [&s] { cmdOK_Click(s); };
  d->CmdCancel.Click = [&s] { CmdCancel_Click(s); };
}

}  // namespace qp
