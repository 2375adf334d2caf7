// The three workshop windows driven through their controls and the file window.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include "platform/qt/FormView.h"
#include "support/ProgramFixture.h"
#include "ui/Windows.h"
#include "ui/frmFile.h"

namespace qp::test {
namespace {

QImage solid(int w, int h, QRgb c) {
  QImage img(w, h, QImage::Format_RGB32);
  img.fill(c);
  return img;
}

class WorkshopTest : public ProgramTest {
 protected:
  frmTile& tile() { return program->w.tile; }
  frmBlend& blend() { return program->w.blend; }
  frmStretch& stretch() { return program->w.stretch; }
  frmFile& dialog() { return program->w.file; }
  void paste(Menu& item, const QImage& picture) {
    headless.clipboard.SetData(picture);
    item.raiseClick();
  }
  QRgb pixelOf(PictureBox& box, int x, int y) { return box.bitmap().pixel(x, y); }
  // The TileSetter opened with a picture of one colour pasted in and tiled after its wait.
  void tiled(QRgb colour) {
    choose(f().mTileSet);
    paste(tile().mPaste, solid(4, 4, colour));
    tile().cTile.raiseClick();
    headless.loop.advance(500);
  }
  // OK in the file window with the name typed, in the test's folder; the path that should exist.
  QString saveAs(const QString& name) {
    dialog().Dir1.Path = folder.path();
    dialog().TxtFile.Text = name;
    dialog().cmdOK.raiseClick();
    return QDir(folder.path()).filePath(name + ".bmp");
  }
  // A file of the test's folder pressed in a workshop's Explorer panel, then taken by `take`.
  void pressFile(WorkshopExplorer& x, const QString& name, CommandButton* take = nullptr) {
    x.Dir1.Path = folder.path();
    x.File1.ListIndex = static_cast<int>(x.File1.items().indexOf(name));
    x.File1.raiseMouseDown(vbLeftButton, 0, 0, 0);
    (take ? *take : x.cKay).raiseClick();
  }
  QTemporaryDir folder;
};

TEST_F(WorkshopTest, PresetCountsApplyFromTheThirdStyleOnAndTheArrowsToTheFirstTwo) {
  choose(f().mTileSet);
  QImage halves = solid(8, 8, 0xFFFF0000);
  for (int y = 0; y < 8; ++y) halves.setPixel(7, y, 0xFF00FF00);
  paste(tile().mPaste, halves);
  tile().vTW.Value = 4;
  struct Case { int style; int checked; int wide; };
  for (const Case c : {Case{0, 1, 4}, {2, 1, 7}, {2, 0, 4}}) {
    tile().vTile.Value = c.style;
    tile().ckVals.Value = c.checked;
    tile().cTile.raiseClick();
    headless.loop.advance(500);
    EXPECT_EQ(tile().TilesWide.value(), c.wide) << c.style;
    // The last pixel of the first cell is the image's green edge.
    const int cell = 640 / c.wide;
    EXPECT_EQ(pixelOf(tile().pLO, cell - 1, 2), 0xFF00FF00u) << c.style;
  }
}

TEST_F(WorkshopTest, ATileIsTakenFromTheOutputWhichAClosingMidWaitKeeps) {
  tiled(0xFF00FF00);
  tile().pLO.raiseMouseDown(vbLeftButton, 0, 150, 300);
  tile().pLO.raiseMouseMove(vbLeftButton, 0, 600, 900);
  tile().pLO.raiseMouseUp(vbLeftButton, 0, 600, 900);
  EXPECT_EQ(tile().pT1.Picture.get().size(), QSize(30, 40));
  EXPECT_EQ(tile().iPre1.Picture.size(), QSize(30, 40));
  // Closed in the middle of its wait, the window draws nothing and brings its tiling back.
  tile().vTile.Value = 4;
  tile().cTile.raiseClick();
  tile().Unload();
  headless.loop.advance(2000);
  EXPECT_EQ(program->w.stash.lTile.Caption.get(), "Temp");
  choose(f().mTileSet);
  EXPECT_EQ(pixelOf(tile().pLO, 5, 400), 0xFF00FF00u);  // style 0's result, not style 4's gaps
  tile().mNew.raiseClick();
  EXPECT_EQ(pixelOf(tile().pLO, 5, 5), 0xFF000000u);
}

TEST_F(WorkshopTest, SendingTheTilesPutsThemOnTheCanvasAndClosesTheWindow) {
  tiled(0xFF00FF00);
  tile().mSend.raiseClick();
  EXPECT_FALSE(tile().Visible);
  EXPECT_EQ(m().CurrentFile, "Untitled.bmp");
  EXPECT_EQ(pixel(600, 400), 0x00FF00);
}

TEST_F(WorkshopTest, TheExplorerPanelLoadsWhatItPreviewsAndPassesOverABrokenFile) {
  solid(6, 6, 0xFF00FF00).save(QDir(folder.path()).filePath("good.bmp"), "BMP");
  QFile bad(QDir(folder.path()).filePath("bad.bmp"));
  ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
  bad.write("BM not a picture");
  bad.close();
  choose(f().mTileSet);
  tile().mLoadImg.raiseClick();
  pressFile(tile().explorer, "bad.bmp");
  EXPECT_TRUE(tile().lPath1.Caption.get().isEmpty());
  EXPECT_TRUE(tile().fX.Visible);
  tile().opTilez(1).Value = true;  // the second slot
  pressFile(tile().explorer, "good.bmp");
  EXPECT_TRUE(tile().iPre2.Visible);
  EXPECT_EQ(tile().iPre2.ToolTipText.get(), "good.bmp");
  EXPECT_FALSE(tile().fX.Visible);

  choose(f().mBlend);
  blend().mLd2.raiseClick();
  pressFile(blend().explorer, "good.bmp");
  EXPECT_EQ(blend().lPic2.Caption.get(), "good.bmp");
  EXPECT_FALSE(blend().cGo.Enabled);  // the first picture is still missing

  choose(f().mBluScrn);
  frmBlue& blue = program->w.blue;
  blue.mOpen.raiseClick();
  blue.explorer.cCancel.raiseClick();
  EXPECT_FALSE(blue.fX.Visible);
  blue.mOpen.raiseClick();
  pressFile(blue.explorer, "good.bmp");
  EXPECT_FALSE(blue.fX.Visible);
  EXPECT_EQ(pixelOf(blue.pBlu, 3, 2), 0xFF00FF00u);
}

TEST_F(WorkshopTest, TheBackgroundShowsThroughTheOpenCellsOfTheCheckeredStyles) {
  solid(4, 4, 0xFF0000FF).save(QDir(folder.path()).filePath("bg.bmp"), "BMP");
  choose(f().mTileSet);
  tile().mLdBg.raiseClick();
  pressFile(tile().explorer, "bg.bmp", &tile().cBG);
  paste(tile().mPaste, solid(4, 4, 0xFFFF0000));
  // Style 8 at the preset 7 x 7 leaves the second cell of the first row open.
  struct Case { int style; int background; QRgb open; };
  for (const Case c : {Case{8, 1, 0xFF0000FF}, {8, 0, 0xFF000000}, {2, 1, 0xFF0000FF}}) {
    tile().vTile.Value = c.style;
    tile().ckBG.Value = c.background;
    tile().cTile.raiseClick();
    headless.loop.advance(500);
    EXPECT_EQ(pixelOf(tile().pLO, 136, 30), c.open) << c.style << " " << c.background;
    EXPECT_EQ(pixelOf(tile().pLO, 45, 30), 0xFFFF0000u) << c.style;
  }
}

TEST_F(WorkshopTest, BlendPixMixesAtThePercentageAfterItsWait) {
  choose(f().mBlend);
  paste(blend().mPaste, solid(10, 10, qRgb(1, 100, 0)));
  paste(blend().mPaste, solid(20, 5, qRgb(2, 200, 255)));
  blend().cGo.raiseClick();
  headless.loop.advance(500);
  // Both pictures fill the working area; 1 and 2 at 50 percent make 1.5, which rounds to 2.
  EXPECT_EQ(blend().pTemp.bitmap().size(), QSize(640, 480));
  EXPECT_EQ(pixelOf(blend().pTemp, 300, 300), qRgb(2, 150, 128));
  blend().mSave.raiseClick();
  EXPECT_EQ(QImage(saveAs("blended")).pixel(300, 300), qRgb(2, 150, 128));
  blend().vVal.arrowUp();
  EXPECT_EQ(blend().lVal.Caption.get(), "60%");
  // Back from BlueScreen the bar steps by ten percent again, from fifty.
  blend().mBlue.raiseClick();
  blend().mBlend.raiseClick();
  blend().vVal.pageUp();
  EXPECT_EQ(blend().lVal.Caption.get(), "60%");
}

TEST_F(WorkshopTest, CtrlClickOnTheSecondImagePicksTheKeyColourTheOverlayLeavesOut) {
  choose(f().mBlend);
  blend().mBlue.raiseClick();
  paste(blend().mPaste, solid(8, 8, 0xFFFF0000));
  QImage second = solid(8, 8, qRgb(10, 20, 30));
  second.setPixel(7, 7, 0xFF00FF00);
  paste(blend().mPaste, second);
  int ctrl = 17;
  blend().KeyDown(ctrl, vbCtrlMask);
  blend().pT2.raiseMouseDown(vbLeftButton, vbCtrlMask, 50, 50);
  blend().pT2.raiseMouseMove(0, vbCtrlMask, 50, 50);
  EXPECT_NE(m().TransparentClr.value(), 0x1E140A);  // only the release takes it
  blend().pT2.raiseMouseUp(vbLeftButton, vbCtrlMask, 50, 50);
  EXPECT_EQ(m().TransparentClr.value(), 0x1E140A);
  EXPECT_EQ(blend().lColor.Caption.get(), "Transparent Color Selected");
  EXPECT_EQ(pixelOf(blend().pT2, 50, 50), qRgb(10, 20, 30));  // picking erases nothing
  blend().cGo.raiseClick();
  EXPECT_EQ(pixelOf(blend().pT1, 50, 50), 0xFFFF0000u);
  EXPECT_EQ(pixelOf(blend().pT1, 600, 450), 0xFF00FF00u);
  blend().mSave.raiseClick();
  EXPECT_EQ(QImage(saveAs("bluescreen")).pixel(600, 450), 0xFF00FF00u);
}

TEST_F(WorkshopTest, TheWindowSizeDrivesTheStretchAlwaysFromTheSource) {
  choose(f().mStretch);
  QImage src = solid(4, 2, 0xFFFF0000);
  src.setPixel(3, 1, 0xFF0000FF);
  paste(stretch().mClip, src);
  stretch().Move(0, 0, 6360, 3720);  // pLO 400 x 200
  ASSERT_EQ(stretch().pLO.bitmap().size(), QSize(400, 200));
  for (int y = 0; y < 200; ++y)  // every source pixel takes its share of the target
    for (int x = 0; x < 400; ++x) ASSERT_EQ(pixelOf(stretch().pLO, x, y), src.pixel(x / 100, y / 100)) << x << "," << y;
  const QImage first = stretch().pLO.bitmap();
  stretch().Move(0, 0, 420, 735);  // down to 4 x 1 and back
  stretch().Move(0, 0, 6360, 3720);
  EXPECT_EQ(stretch().pLO.bitmap(), first);
  stretch().Move(0, 0, 0, 0);  // dragged to nothing: the last stretch stays
  EXPECT_EQ(stretch().pLO.bitmap(), first);
}

TEST_F(WorkshopTest, EverySaveModeWritesItsOwnPicture) {
  // Each saved by its menu item; the Image Blender's two saves are in its own tests.
  tiled(0xFFFF0000);
  tile().mSave.raiseClick();
  EXPECT_EQ(QImage(saveAs("tiled")).pixel(0, 0), 0xFFFF0000u);

  choose(f().mStretch);
  paste(stretch().mClip, solid(2, 2, 0xFF0000FF));
  stretch().Move(0, 0, 3360, 2220);
  stretch().mSave.raiseClick();
  EXPECT_EQ(QImage(saveAs("stretched")).size(), QSize(200, 100));
  // Dragged up and left past the picture's corner: the crop is the part on the picture.
  stretch().pLO.raiseMouseDown(vbLeftButton, 0, 150, 300);
  stretch().pLO.raiseMouseMove(vbLeftButton, 0, -150, -300);
  stretch().pLO.raiseMouseUp(vbLeftButton, 0, -150, -300);
  stretch().mSaveSel.raiseClick();
  EXPECT_EQ(QImage(saveAs("cropped")).size(), QSize(10, 20));

  choose(f().mBluScrn);
  paste(program->w.blue.mPaste, solid(40, 30, qRgb(7, 8, 9)));
  program->w.blue.mSave.raiseClick();
  const QImage mask(saveAs("mask"));
  EXPECT_EQ(mask.size(), QSize(40, 30));
  EXPECT_EQ(mask.pixel(3, 4), qRgb(7, 8, 9));
  EXPECT_EQ(m().CurrentFile, "");  // a workshop's picture never names the canvas
}

// Each workshop is a window of its own on the desktop (as every form is): the user drags the
// Image Stretcher's edge and the picture loaded through the file window follows.
TEST_F(WorkshopTest, APictureLoadedThroughTheFileWindowStretchesWithTheWindow) {
  solid(3, 3, 0xFF00FF00).save(QDir(folder.path()).filePath("src.bmp"), "BMP");
  choose(f().mStretch);
  stretch().mLoad.raiseClick();
  dialog().Dir1.Path = folder.path();
  dialog().File1.ListIndex = static_cast<int>(dialog().File1.items().indexOf("src.bmp"));
  dialog().cmdOK.raiseClick();
  EXPECT_TRUE(stretch().mSave.Enabled);
  EXPECT_EQ(stretch().lDir.Caption.get(), dialog().Dir1.Path.get());
  FormView view(stretch());
  view.sync();
  ASSERT_TRUE(view.window().isWindow() && view.window().isVisible());
  view.window().resize(300, 200);
  QApplication::processEvents();
  view.sync();
  EXPECT_EQ(stretch().pLO.bitmap().size(), QSize(300 - 24, 200 - 48));
  EXPECT_EQ(pixelOf(stretch().pLO, 270, 150), 0xFF00FF00u);
}

}  // namespace
}  // namespace qp::test
