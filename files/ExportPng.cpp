// Export as PNG: the same safe save as Save (a temporary file that replaces the target only when
// complete), in another format, without renaming the canvas.
#include "files/ExportPng.h"

#include "core/Panel.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "files/SavePath.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

QString ComposePngPath(const QString& folder, const QString& typedName) {
  const QString name = typedName.isEmpty() ? QString("Untitled") : typedName;
  return joinPath(folder, name.right(4).toLower() == ".png" ? name : name + ".png");
}

void mExportPng_Click(Session& s) {
  trap([&] {
    StopAllTools(s);
    if (fileWindowShown(s)) return;
    if (frmFile* d = fileWindow(s)) d->Width = frmFile::kSaveWidth;
    ShowFileDialog(s, FileMode::ExportPng);
  });
}

bool exportBranch(Session& s, frmFile& d) {
  const QString path = ComposePngPath(d.Dir1.Path, d.TxtFile.Text);
  // The export is a copy: the canvas keeps its own file name, and Save still writes that.
  const bool written = trap([&] { SavePicture(s.f.PicPaint.Image, path, "png"); });
  if (!written) s.rt.msgbox.MsgBox("Could not write " + path, vbOKOnly, "Export as PNG...");
  return written;
}

}  // namespace qp
