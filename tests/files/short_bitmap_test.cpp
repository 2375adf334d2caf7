// Bitmaps that hold less than their header promises, on every way a picture comes in: what the
// file gives shows, the rest is black, and never the memory of a picture open before.
#include <QFile>
#include <map>
#include <set>

#include "FilesFixture.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"

// Fresh memory comes filled with a byte no picture here holds, so a pixel nobody wrote shows.
extern "C" const char* __asan_default_options() {
  return "max_malloc_fill_size=268435456:malloc_fill_byte=190";
}

namespace qp::test {
namespace {

enum class Path { Drop, Explorer, FileWindow, Clipboard };

class ShortBitmapTest : public FilesTest {
 protected:
  void SetUp() override {
    FilesTest::SetUp();
    choose(f().mPencil);
    QImage red(1000, 1000, QImage::Format_RGB32);
    red.fill(qRgb(255, 0, 0));
    redFile = writePicture("red.bmp", red);
  }
  // The picture the path brings in, or a null image when the path refused the file.
  QImage load(Path path, const QString& name) {
    f().PicPaint.OLEDragDrop({redFile}, vbLeftButton, 0, 0, 0);  // a red picture open before
    m().CurrentFile = "";
    switch (path) {
      case Path::Drop:
        f().PicPaint.OLEDragDrop({at(name)}, vbLeftButton, 0, 0, 0);
        break;
      case Path::Explorer:
        f().imPre.Picture = QImage();
        choose(f().mnuOpen);
        pressInExplorer(name);
        if (QImage(f().imPre.Picture).isNull()) return QImage();  // the preview refused it
        f().cPic.raiseClick();
        break;
      case Path::FileWindow:
        if (!dialog().Visible) ShowFileDialog(s(), FileMode::OpenImage);
        chooseInDialog(name);
        dialog().cmdOK.raiseClick();
        break;
      case Path::Clipboard: {
        QImage picture;
        trap([&] { picture = LoadAnyPicture(at(name)); });
        if (picture.isNull()) return picture;
        headless.clipboard.SetData(picture);
        choose(f().mnuPaste);
        return QImage(f().pTemp.Image).convertToFormat(QImage::Format_RGB32);
      }
    }
    if (m().CurrentFile != at(name)) return QImage();
    return canvas().convertToFormat(QImage::Format_RGB32);
  }
  QString redFile;
};

TEST_F(ShortBitmapTest, WhatTheFileDoesNotGiveIsBlackOnEveryPath) {
  const QList<ShortBitmap> cases = shortBitmaps();
  for (const ShortBitmap& c : cases) {
    QFile out(at(c.name));
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(c.bytes);
  }
  const std::pair<Path, const char*> paths[] = {{Path::Drop, "drop"},
                                                {Path::Explorer, "Explorer"},
                                                {Path::FileWindow, "file window"},
                                                {Path::Clipboard, "clipboard"}};
  std::map<QString, std::set<Path>> refusedOn;
  for (const auto& [path, pathName] : paths) {
    for (const ShortBitmap& c : cases) {
      SCOPED_TRACE(std::string(pathName) + " " + c.name.toStdString());
      const QImage got = load(path, c.name);
      if (got.isNull()) {  // refused with the load's usual failure: allowed, on every path alike
        refusedOn[c.name].insert(path);
        continue;
      }
      ASSERT_EQ(got.size(), c.expected.size());
      int wrong = 0;
      for (int y = 0; y < got.height(); ++y)
        for (int x = 0; x < got.width(); ++x) wrong += got.pixel(x, y) != c.expected.pixel(x, y);
      EXPECT_EQ(wrong, 0) << std::hex << "top left " << got.pixel(0, 0) << ", bottom left "
                          << got.pixel(0, got.height() - 1);
    }
  }
  for (const auto& [name, on] : refusedOn) EXPECT_EQ(on.size(), std::size(paths)) << name.toStdString();
  EXPECT_LE(refusedOn.size(), 1u);  // the decoders read the short files, they do not refuse them
}

}  // namespace
}  // namespace qp::test
