// Every way a picture comes in, tried with every file of the broken corpus: the program survives,
// keeps its memory in bounds, and leaves the canvas and its file name as a failed load must. Names
// that are not UTF-8 and files that are not files: every plain file whose name fits is listed and
// opens by its real bytes; pipes and devices never do, and no load waits on a pipe.
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "FilesFixture.h"
#include "files/FileDialog.h"
#include "files/PictureFiles.h"
#include "platform/FileNames.h"

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

TEST_F(CorpusTest, TheCorpusIsLargeAndHasEachKindOfBadFile) {
  EXPECT_GT(corpus.files.size(), 400);
  EXPECT_TRUE(QFileInfo(at("folder.bmp")).isDir());
  EXPECT_TRUE(QFileInfo(corpus.vanishing).isFile());
}

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

}  // namespace
}  // namespace qp::test
