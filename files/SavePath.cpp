// The save path and its one refusal.
#include "files/SavePath.h"

namespace qp {

QString folderSeparator(const QString& folder) { return folder.endsWith('/') ? QString() : QString("/"); }

QString joinPath(const QString& folder, const QString& name) { return folder + folderSeparator(folder) + name; }

SavePath ComposeSavePath(const QString& folder, const QString& typedName) {
  SavePath r;
  r.name = typedName.isEmpty() ? QString("Untitled") : typedName;
  const QString ending = r.name.right(4).toLower();
  if (ending == ".jpg") {
    r.refused = true;
    return r;
  }
  // The comparison is case-blind, so "SKY.BMP" is written as typed.
  const QString extension = ending == ".bmp" ? QString() : QString(".bmp");
  r.path = joinPath(folder, r.name + extension);
  return r;
}

QString jpgRefusalMessage() {
  return QStringLiteral("Sorry... Quillora only saves .bmp files\r\nPlease remove the .jpg file extension to save this file");
}

}  // namespace qp
