// The Transparency Tool's Explorer panel loads the file it previews.
#include <QDir>
#include <QTemporaryDir>

#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

TEST_F(ProgramTest, TheTransparencyToolOpensTheFileItsExplorerPreviews) {
  QTemporaryDir folder;
  QImage picture(7, 5, QImage::Format_RGB32);
  picture.fill(0xFF00FF00);
  picture.save(QDir(folder.path()).filePath("green.bmp"), "BMP");
  choose(f().mBluScrn);
  frmBlue& b = program->w.blue;
  WorkshopExplorer& x = b.explorer;
  b.mOpen.raiseClick();
  ASSERT_TRUE(b.fX.Visible);
  x.Dir1.Path = folder.path();
  x.File1.ListIndex = static_cast<int>(x.File1.items().indexOf("green.bmp"));
  x.File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
  EXPECT_EQ(x.preview.Picture.size(), QSize(7, 5));
  x.cKay.raiseClick();
  EXPECT_FALSE(b.fX.Visible);
  EXPECT_EQ(b.pBlu.bitmap().pixel(3, 2) & 0xFFFFFF, 0x00FF00u);
  b.mOpen.raiseClick();
  x.cCancel.raiseClick();
  EXPECT_FALSE(b.fX.Visible);
}

}  // namespace
}  // namespace qp::test
