// The command line's picture goes through the canvas's own drop routine, so that a picture opened
// from a file manager and one dropped on the window behave alike. The drop itself stays silent
// about a file it cannot read; here the user named the file before the window even showed, so
// silence would leave them wondering, and the file is tried first to say what is wrong.
#include "app/OpenFiles.h"

#include <QFileInfo>

#include "app/Program.h"
#include "files/OpenSave.h"
#include "files/PictureFiles.h"
#include "platform/Errors.h"

namespace qp {

namespace {

const char* const kTitle = "Quillora Pro";

// Why the picture cannot be opened, or an empty text when it can.
QString whyNotOpened(const QString& path) {
  const QFileInfo info(path);
  if (!info.exists()) return QString("Cannot open \"%1\": there is no such file.").arg(path);
  if (info.isDir()) return QString("Cannot open \"%1\": it is a folder, not a picture.").arg(path);
  try {
    LoadPicture(path);
    return QString();
  } catch (const RuntimeError&) {
  } catch (const std::bad_alloc&) {
  }
  return QString("Cannot open \"%1\": it is not a picture Quillora Pro can read, or it is damaged, "
                 "too large or not readable.")
      .arg(path);
}

}  // namespace

QString openCommandLineFiles(Program& program, const QStringList& files, QTextStream& err) {
  if (files.isEmpty()) return QString();
  QString why;
  if (files.size() > 1) {
    why = QString("Quillora Pro opens one picture at a time and was given %1, so it starts with a "
                  "blank canvas. Drop the picture you want on the canvas.")
              .arg(files.size());
  } else {
    // The drop gives whole paths; so does the title then, wherever the program was started.
    const QString path = QFileInfo(files.front()).absoluteFilePath();
    why = whyNotOpened(path);
    if (why.isEmpty()) {
      PicPaint_OLEDragDrop(program.s, QStringList{path});
      return QString();
    }
  }
  err << "quillora: " << why << Qt::endl;
  program.s.rt.msgbox.MsgBox(why, vbOKOnly | vbExclamation, kTitle);
  return why;
}

}  // namespace qp
