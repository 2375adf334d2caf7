// Every way a picture comes in, tried with every file of the broken corpus: the program survives,
// keeps its memory in bounds, and leaves the canvas and its file name as a failed load must.
#include <QFile>
#include <QFileInfo>

#include "FilesFixture.h"
#include "files/FileDialog.h"

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

}  // namespace
}  // namespace qp::test
