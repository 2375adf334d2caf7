// A drop of every file of the broken corpus, and file names that are not what they seem.
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "FilesFixture.h"
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

// Every way a picture comes in reads through the same loader; the drop tries it on the whole corpus.
TEST_F(FilesTest, DroppingEachCorpusFileLoadsItWholeOrChangesNothing) {
  choose(f().mPencil);  // the canvas itself is shown, not its pixel twin
  const Corpus corpus = makeCorpus(folder.path());
  ASSERT_GT(corpus.files.size(), 400);
  const QImage marker = patternPicture(7, 5);
  const long startMiB = peakMiB();
  int loaded = 0;
  for (const QString& path : corpus.files) {
    SCOPED_TRACE(QFileInfo(path).fileName().toStdString());
    f().PicPaint.Picture = marker;
    m().CurrentFile = "";
    if (path == corpus.vanishing) QFile::remove(path);
    f().PicPaint.OLEDragDrop({path}, vbLeftButton, 0, 0, 0);
    if (m().CurrentFile.isEmpty()) {
      EXPECT_EQ(canvas(), marker);
      EXPECT_EQ(QImage(f().PicUndo.Image), marker);  // the snapshot is taken before the load fails
    } else {
      ++loaded;
      EXPECT_NE(canvas(), marker);
      EXPECT_EQ(m().CurrentFile, path);
      EXPECT_EQ(f().PicPaint.pixelWidth(), QImage(f().pPix.Image).width());
      EXPECT_LE(static_cast<long long>(canvas().width()) * canvas().height(), 64LL * 1024 * 1024);
    }
  }
  EXPECT_GE(loaded, 4);  // the sound files among them do load
  EXPECT_LT(peakMiB() - startMiB, 1024);
}

class FileNamesTest : public FilesTest {
 protected:
  void SetUp() override {
    FilesTest::SetUp();
    const QByteArray folderBytes = QFile::encodeName(folder.path()) + "/";
    const QByteArray bmp = encode(patternPicture(6, 4), "BMP");
    for (const char* name : {"plain.bmp", "caf\xe9.bmp", "\xff\xfe.BMP", ".hidden.bmp"}) {
      const int fd = ::open((folderBytes + name).constData(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
      ASSERT_GE(fd, 0);
      ASSERT_EQ(::write(fd, bmp.constData(), static_cast<size_t>(bmp.size())), bmp.size());
      ::close(fd);
    }
    ASSERT_EQ(::mkfifo((folderBytes + "pipe.bmp").constData(), 0600), 0);
    ASSERT_EQ(::symlink("/dev/zero", (folderBytes + "zero.bmp").constData()), 0);
    ASSERT_EQ(::mkdir((folderBytes + "sub.bmp").constData(), 0700), 0);
  }
  // Case-blind to the pattern; no pipe, device, folder or hidden file.
  QStringList expected() {
    return {nameFromBytes("caf\xe9.bmp"), "plain.bmp", nameFromBytes("\xff\xfe.BMP")};
  }
};

TEST_F(FileNamesTest, EveryPlainFileIsListedAndOpensByItsBytes) {
  choose(f().mnuOpen);
  f().Dir1.Path = folder.path();
  f().File1.Pattern = "*.bmp";
  EXPECT_EQ(f().File1.items(), expected());
  for (const QString& name : expected()) {
    SCOPED_TRACE(readableName(name).toStdString());
    f().imPre.Picture = QImage();
    pressInExplorer(name);
    EXPECT_EQ(QImage(f().imPre.Picture).size(), QSize(6, 4));
  }
}

}  // namespace
}  // namespace qp::test
