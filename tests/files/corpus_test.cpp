// Every way a picture comes in, tried with the broken corpus, odd file names, pipes and devices,
// and bitmaps shorter than their headers promise.
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <map>
#include <set>
#include <sys/stat.h>
#include <unistd.h>

#include "FilesFixture.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "platform/FileNames.h"

// Fresh memory comes filled with a byte no picture here holds, so a pixel nobody wrote shows.
extern "C" const char* __asan_default_options() {
  return "max_malloc_fill_size=268435456:malloc_fill_byte=190";
}

namespace qp::test {
namespace {

// The resident memory high-water mark of this process, in MiB.
long peakMiB() {
  QFile status("/proc/self/status");
  if (!status.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmHWM:")) return line.mid(6).trimmed().split(' ').front().toLong() / 1024;
  return 0;
}

class CorpusTest : public FilesTest {
 protected:
  void SetUp() override {
    FilesTest::SetUp();
    choose(f().mPencil);  // the canvas itself is shown, not its pixel twin
    corpus = makeCorpus(folder.path());
    ASSERT_GT(corpus.files.size(), 400);
    marker = patternPicture(7, 5);
  }
  QString nameOf(const QString& path) { return QFileInfo(path).fileName(); }
  bool listed(const QStringList& items, const QString& path) { return items.contains(nameOf(path)); }
  // The vanishing file is listed like the others and deleted just before the load.
  void vanishIfDue(const QString& path) {
    if (path == corpus.vanishing) QFile::remove(path);
  }
  Corpus corpus;
  QImage marker;
};

TEST_F(CorpusTest, DroppingEachFileLoadsItWholeOrChangesNothing) {
  const long startMiB = peakMiB();
  int loaded = 0;
  for (const QString& path : corpus.files) {
    SCOPED_TRACE(nameOf(path).toStdString());
    f().PicPaint.Picture = marker;
    m().CurrentFile = "";
    vanishIfDue(path);
    f().PicPaint.OLEDragDrop({path}, vbLeftButton, 0, 0, 0);
    if (m().CurrentFile.isEmpty()) {
      EXPECT_EQ(canvas(), marker);
    } else {
      ++loaded;
      EXPECT_EQ(m().CurrentFile, path);
      EXPECT_EQ(f().PicPaint.pixelWidth(), QImage(f().pPix.Image).width());
      EXPECT_LE(static_cast<long long>(canvas().width()) * canvas().height(), 64LL * 1024 * 1024);
    }
  }
  EXPECT_GE(loaded, 4);  // the sound files among them do load
  EXPECT_LT(peakMiB() - startMiB, 1024);
}

TEST_F(CorpusTest, TakingEachFileFromTheExplorerPlacesWhatThePreviewShows) {
  choose(f().mnuOpen);
  f().Dir1.Path = folder.path();
  for (const QString pattern : {"*.bmp", "*.jpg"}) {
    f().File1.Pattern = pattern;
    for (const QString& path : corpus.files) {
      if (!listed(f().File1.items(), path)) continue;
      SCOPED_TRACE(nameOf(path).toStdString());
      f().imPre.Picture = marker;
      f().fX.Visible = true;
      vanishIfDue(path);
      f().File1.ListIndex = static_cast<int>(f().File1.items().indexOf(nameOf(path)));
      f().File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
      const QImage previewed = f().imPre.Picture;
      f().cPic.raiseClick();
      // A file that would not decode leaves the old preview, and that is what the canvas takes.
      EXPECT_EQ(canvas(), previewed);
      EXPECT_EQ(m().CurrentFile, path);
      EXPECT_FALSE(f().fX.Visible);
    }
  }
}

TEST_F(CorpusTest, TheDialogsOpenEitherLoadsAndClosesOrStaysOpenWithTheCanvasAsItWas) {
  ShowFileDialog(s(), FileMode::OpenImage);
  dialog().Dir1.Path = folder.path();
  for (const int type : {0, 1}) {
    dialog().CmbType.ListIndex = type;
    for (const QString& path : corpus.files) {
      if (!listed(dialog().File1.items(), path)) continue;
      SCOPED_TRACE(nameOf(path).toStdString());
      f().PicPaint.Picture = marker;
      m().CurrentFile = "before";
      if (!dialog().Visible) ShowFileDialog(s(), FileMode::OpenImage);
      vanishIfDue(path);
      dialog().File1.ListIndex = static_cast<int>(dialog().File1.items().indexOf(nameOf(path)));
      dialog().cmdOK.raiseClick();
      if (dialog().Visible) {
        EXPECT_EQ(canvas(), marker);
        EXPECT_EQ(m().CurrentFile, "");  // cleared before the load that failed
      } else {
        EXPECT_EQ(m().CurrentFile, path);
        EXPECT_EQ(canvas().size(), QImage(dialog().imPreview.Picture).size());
      }
    }
  }
}

class FileNamesTest : public FilesTest {
 protected:
  void SetUp() override {
    FilesTest::SetUp();
    const QByteArray folderBytes = QFile::encodeName(folder.path()) + "/";
    const QByteArray bmp = encode(patternPicture(6, 4), "BMP");
    for (const QByteArray name : {QByteArray("plain.bmp"), QByteArray("caf\xe9.bmp"), QByteArray("\xff\xfe.BMP")}) {
      const int fd = ::open((folderBytes + name).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      ASSERT_GE(fd, 0);
      ASSERT_EQ(::write(fd, bmp.constData(), static_cast<size_t>(bmp.size())), bmp.size());
      ::close(fd);
    }
    ASSERT_EQ(::mkfifo((folderBytes + "pipe.bmp").constData(), 0600), 0);
    ASSERT_EQ(::symlink("/dev/zero", (folderBytes + "zero.bmp").constData()), 0);
  }
  QStringList expected() {
    return {nameFromBytes("caf\xe9.bmp"), "plain.bmp", nameFromBytes("\xff\xfe.BMP")};
  }
};

TEST_F(FileNamesTest, EveryPlainFileIsListedAndOpensByItsBytes) {
  choose(f().mnuOpen);
  f().Dir1.Path = folder.path();
  f().File1.Pattern = "*.bmp";
  EXPECT_EQ(f().File1.items(), expected());
  EXPECT_EQ(readableName(f().File1.items().front()), QString::fromLatin1("caf\xe9.bmp"));
  for (const QString& name : expected()) {
    SCOPED_TRACE(readableName(name).toStdString());
    f().imPre.Picture = QImage();
    pressInExplorer(name);
    EXPECT_EQ(QImage(f().imPre.Picture).size(), QSize(6, 4));
  }
  ShowFileDialog(s(), FileMode::OpenImage);
  dialog().Dir1.Path = folder.path();
  EXPECT_EQ(dialog().File1.items(), expected());
}

TEST_F(FileNamesTest, APipeOrADeviceIsRefusedAtOnceOnEveryPath) {
  for (const char* name : {"pipe.bmp", "zero.bmp"}) {
    SCOPED_TRACE(name);
    const QImage before = canvas();
    f().PicPaint.OLEDragDrop({at(name)}, vbLeftButton, 0, 0, 0);
    EXPECT_EQ(canvas(), before);
    EXPECT_NE(m().CurrentFile, at(name));
    EXPECT_FALSE(trap([&] { LoadPicture(at(name)); }));
    EXPECT_FALSE(trap([&] { LoadAnyPicture(at(name)); }));
  }
}

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
