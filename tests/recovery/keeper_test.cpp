// The recovery copy on the virtual clock: when it is written, when not, and the offer at start.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "files/PictureFiles.h"
#include "files/Recovery.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

constexpr int kDelay = 1000;

class KeeperTest : public PencilTest {
 protected:
  void SetUp() override {
    PencilTest::SetUp();
    keeper = std::make_unique<RecoveryKeeper>(s(), dir.path(), kDelay);
    keeper->written = [this] { ++writes; };
  }
  void pass(int ms) { headless.loop.advance(ms); }
  bool copied() const { return QFile::exists(keeper->copyPath()); }

  QTemporaryDir dir;
  std::unique_ptr<RecoveryKeeper> keeper;
  int writes = 0;
};

TEST_F(KeeperTest, TheCopyWaitsForTheReleaseAndForQuietThenHoldsTheCanvas) {
  ASSERT_TRUE(keeper->armed());
  keeper->offer();
  pass(5 * kDelay);
  EXPECT_FALSE(copied());  // nothing drawn, nothing to keep and nothing to offer
  EXPECT_TRUE(headless.msgbox.shown().empty());
  press(150, 150);
  for (int i = 1; i <= 30; ++i) {
    move(150 + 30 * i, 150);
    pass(kDelay / 5);  // a slow stroke, longer than the quiet time
  }
  EXPECT_FALSE(copied());
  release(1050, 150);
  pass(kDelay - 1);
  EXPECT_FALSE(copied());
  pass(kDelay);
  ASSERT_TRUE(copied());
  EXPECT_EQ(LoadPicture(keeper->copyPath()), f().PicPaint.Image.get());
  pass(10 * kDelay);
  EXPECT_EQ(writes, 1);  // the same canvas is not written again
  for (int i = 0; i < 8; ++i) {  // changes that keep coming put the write off
    drawDot(150 + 60 * i, 600);
    pass(kDelay / 2);
  }
  EXPECT_EQ(writes, 1);
  pass(2 * kDelay);
  EXPECT_EQ(writes, 2);
  EXPECT_EQ(LoadPicture(keeper->copyPath()), f().PicPaint.Image.get());
}

TEST_F(KeeperTest, ACleanExitRemovesTheCopyAndOnlyOneProgramKeepsIt) {
  drawDot(150, 150);
  pass(2 * kDelay);
  ASSERT_TRUE(copied());
  RecoveryKeeper second(s(), dir.path(), kDelay);
  EXPECT_FALSE(second.armed());
  second.offer();  // the live copy of the first is never offered
  EXPECT_TRUE(headless.msgbox.shown().empty());
  keeper.reset();
  EXPECT_FALSE(QFile::exists(dir.filePath("recovery.bmp")));
  EXPECT_TRUE(RecoveryKeeper(s(), dir.path(), kDelay).armed());  // the claim went with it
}

TEST_F(KeeperTest, TheOfferIsMadeOnceAndEitherAnswerRenamesTheCopy) {
  QImage left(40, 30, QImage::Format_RGB32);
  left.fill(qRgb(10, 200, 30));
  left.setPixel(5, 5, qRgb(255, 0, 0));
  keeper.reset();
  const struct {
    int button;
    bool comesBack;
  } answers[] = {{vbNo, false}, {vbYes, true}};
  for (const auto& a : answers) {
    SCOPED_TRACE(a.button);
    SavePicture(left, dir.filePath("recovery.bmp"));
    QFile(dir.filePath("recovery.bmp.x1Y2z3")).open(QIODevice::WriteOnly);  // a write cut short
    const QImage before = f().PicPaint.Image;
    headless.msgbox.clear();
    headless.msgbox.queueAnswer(a.button);
    RecoveryKeeper restarted(s(), dir.path(), kDelay);
    restarted.offer();
    restarted.offer();
    ASSERT_EQ(headless.msgbox.shown().size(), 1u);
    EXPECT_EQ(headless.msgbox.shown()[0].buttons, vbYesNo + vbQuestion);
    const QImage now = f().PicPaint.Image;
    EXPECT_EQ(now.convertToFormat(QImage::Format_RGB32), a.comesBack ? left : before);
    EXPECT_EQ(f().Caption.get().endsWith("Untitled.bmp   40 x 30"), a.comesBack) << f().Caption.get().toStdString();
    EXPECT_EQ(LoadPicture(dir.filePath("recovery-previous.bmp")), left);
    EXPECT_EQ(QDir(dir.path()).entryList({"recovery.bmp*"}, QDir::Files | QDir::Hidden), QStringList());
  }
}

TEST(RecoveryFolder, StateHomeElseTheHomesStateFolder) {
  const QByteArray oldState = qgetenv("XDG_STATE_HOME"), oldHome = qgetenv("HOME");
  const struct {
    const char *state, *home;
    QString folder;
  } places[] = {{"/s", "/h", "/s/quillora"}, {"", "/h", "/h/.local/state/quillora"},
                {"rel", "/h", "/h/.local/state/quillora"}, {"", "", ""}};
  for (const auto& p : places) {
    qputenv("XDG_STATE_HOME", p.state);
    qputenv("HOME", p.home);
    EXPECT_EQ(recoveryFolder(), p.folder) << p.state << " " << p.home;
  }
  qputenv("XDG_STATE_HOME", oldState);
  qputenv("HOME", oldHome);
}

}  // namespace
}  // namespace qp::test
