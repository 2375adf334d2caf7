#pragma once
// A whole Quillora with a folder of its own to open and save in.
#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include "Corpus.h"
#include "support/ProgramFixture.h"

namespace qp::test {

class FilesTest : public ProgramTest {
 protected:
  frmFile& dialog() { return program->w.file; }
  QString at(const QString& name) const { return QDir(folder.path()).filePath(name); }
  // Writes a picture file into the test's folder and returns its full path.
  QString writePicture(const QString& name, const QImage& picture, const char* format = "BMP") {
    picture.save(at(name), format);
    return at(name);
  }
  // The Explorer panel, pointed at the test's folder, with `name` pressed in its file list.
  void pressInExplorer(const QString& name) {
    f().Dir1.Path = folder.path();
    const int row = static_cast<int>(f().File1.items().indexOf(name));
    ASSERT_GE(row, 0) << name.toStdString();
    f().File1.ListIndex = row;
    f().File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
  }
  // File > Open, then the file pressed and taken.
  void openThroughExplorer(const QString& name) {
    choose(f().mnuOpen);
    pressInExplorer(name);
    f().cPic.raiseClick();
  }
  // The dialog's lists pointed at the test's folder, and `name` clicked in its file list.
  void chooseInDialog(const QString& name) {
    dialog().Dir1.Path = folder.path();
    const int row = static_cast<int>(dialog().File1.items().indexOf(name));
    ASSERT_GE(row, 0) << name.toStdString();
    dialog().File1.ListIndex = row;
  }
  QImage canvas() { return f().PicPaint.Image; }
  // The size of the picture in a file, or an empty size when it does not open.
  static QSize LoadPictureSize(const QString& path) { return QImage(path).size(); }

  QTemporaryDir folder;
};

}  // namespace qp::test
