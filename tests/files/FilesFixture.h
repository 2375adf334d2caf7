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
  // `name` chosen in a file list whose folder list is pointed at the test's folder.
  void chooseIn(DirListBox& folders, FileListBox& files, const QString& name) {
    folders.Path = folder.path();
    const int row = static_cast<int>(files.items().indexOf(name));
    ASSERT_GE(row, 0) << name.toStdString();
    files.ListIndex = row;
  }
  // The Explorer panel with `name` pressed in its file list.
  void pressInExplorer(const QString& name) {
    chooseIn(f().Dir1, f().File1, name);
    f().File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
  }
  // File > Open, then the file pressed and taken.
  void openThroughExplorer(const QString& name) {
    choose(f().mnuOpen);
    pressInExplorer(name);
    f().cPic.raiseClick();
  }
  void chooseInDialog(const QString& name) { chooseIn(dialog().Dir1, dialog().File1, name); }
  QImage canvas() { return f().PicPaint.Image; }

  QTemporaryDir folder;
};

}  // namespace qp::test
