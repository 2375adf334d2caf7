// Bringing a picture onto the canvas: the Explorer panel, a drop, New, the title, the lock.
#include "FilesFixture.h"

namespace qp::test {
namespace {

class OpenTest : public FilesTest {};

// The canvas takes an opened picture's size, with view bars when it is larger than the window.
TEST_F(OpenTest, ASavedDrawingOpensAgainThroughTheExplorerWithTheSamePixelsAndSize) {
  choose(f().mPencil);
  f().vColmode.Value = 0;
  press(1500, 1500);
  move(4500, 3000);
  release(4500, 3000);
  const QImage drawn = canvas();
  ASSERT_NE(drawn.pixel(100, 100), drawn.pixel(5, 5));
  choose(f().mnuSave);
  dialog().Dir1.Path = folder.path();
  dialog().TxtFile.Text = "drawing";
  dialog().cmdOK.raiseClick();
  ASSERT_EQ(m().CurrentFile, at("drawing.bmp"));
  choose(f().mnuUndo);  // the save was an undo point: the drawing stays
  EXPECT_EQ(canvas(), drawn);

  choose(f().mnuNew);
  const QImage big = patternPicture(1200, 900);
  writePicture("big.bmp", big);
  openThroughExplorer("big.bmp");
  EXPECT_EQ(f().PicPaint.pixelWidth(), 1200);
  EXPECT_TRUE(f().vWidth.Visible);
  EXPECT_EQ(f().pPix.pixelWidth(), 1200);  // the pixel twin follows
  openThroughExplorer("drawing.bmp");
  EXPECT_EQ(canvas(), drawn);
  EXPECT_FALSE(f().vWidth.Visible);
  EXPECT_EQ(f().lPic.Caption.get(), "");  // the trigger is ready for the next picture
  EXPECT_EQ(f().Caption.get(), QString(" Quillora Pro - drawing.bmp   %1 x %2").arg(drawn.width()).arg(drawn.height()));
  // Undo brings the previous picture back at the canvas's present size: the layout gave the undo
  // level the canvas's size, so the earlier picture's corner shows.
  choose(f().mnuUndo);
  EXPECT_EQ(f().PicPaint.pixelWidth(), drawn.width());
  EXPECT_EQ(canvas().pixel(5, 5), big.pixel(5, 5));
}

// What goes onto the canvas is what a left press previewed, not a new read of the file: a name
// chosen with the keyboard, or a file that does not decode, brings the picture last previewed.
TEST_F(OpenTest, TheExplorerTakesThePictureALeftPressPreviewed) {
  writePicture("one.bmp", patternPicture(50, 40));
  writePicture("two.bmp", patternPicture(20, 10));
  writeFile(at("zz-broken.bmp"), "BM not really");
  choose(f().mArrow);
  choose(f().mnuOpen);
  f().Dir1.Path = folder.path();
  f().cPic.raiseClick();  // nothing chosen yet
  EXPECT_TRUE(f().fX.Visible);
  EXPECT_EQ(m().CurrentFile, "");
  f().File1.ListIndex = 0;
  f().File1.raiseMouseDown(vbRightButton, 0, 0, 0);
  EXPECT_TRUE(f().imPre.Picture.isNull());
  pressInExplorer("one.bmp");
  pressInExplorer("zz-broken.bmp");
  EXPECT_EQ(f().imPre.Picture.size(), QSize(50, 40));
  f().File1.ListIndex = static_cast<int>(f().File1.items().indexOf("two.bmp"));
  f().cPic.raiseClick();
  EXPECT_EQ(canvas(), patternPicture(50, 40));
  EXPECT_EQ(m().CurrentFile, at("two.bmp"));
  EXPECT_FALSE(f().fX.Visible);
  EXPECT_EQ(f().PicPaint.MousePointer.get(), 1);  // the arrow chosen before
  // Closing the panel brings the arrow back too.
  choose(f().mnuOpen);
  f().PicPaint.MousePointer = 0;
  f().cCancel.raiseClick();
  EXPECT_FALSE(f().fX.Visible);
  EXPECT_EQ(f().PicPaint.MousePointer.get(), 1);
}

TEST_F(OpenTest, TheFilterButtonFlipsBetweenBitmapsAndJpegs) {
  writePicture("a.bmp", patternPicture(4, 4));
  writePicture("b.jpg", patternPicture(4, 4), "JPEG");
  f().Dir1.Path = folder.path();
  EXPECT_EQ(f().File1.items(), QStringList({"a.bmp"}));
  f().cPatt.raiseClick();
  EXPECT_EQ(f().File1.items(), QStringList({"b.jpg"}));
  f().File1.Pattern = "*.*";  // any other filter stays as it is
  f().cPatt.raiseClick();
  EXPECT_EQ(f().File1.Pattern.get(), "*.*");
}

TEST_F(OpenTest, TheJokesShowInTheirOwnModeOnly) {
  struct Case { Menu* mode; bool paste; const char* folderTip; const char* filterTip; };
  // A pasted picture floats in mode 22 with no mode change: the pencil's joke goes at the next pass.
  for (const Case& c : {Case{&f().mPencil, false, kFolderJoke, ""}, Case{&f().mPwp, false, "", kFilterJoke},
                        Case{&f().mAir, false, "", ""}, Case{&f().mPencil, true, "", ""}}) {
    choose(*c.mode);
    if (c.paste) {
      f().Dir1.raiseMouseMove(0, 0, 10, 10);
      headless.clipboard.SetData(patternPicture(8, 8));
      choose(f().mnuPaste);
      ASSERT_EQ(m().PaintMode, 22);
    }
    f().Dir1.raiseMouseMove(0, 0, 10, 10);
    f().cPatt.raiseMouseMove(0, 0, 10, 10);
    EXPECT_EQ(f().Dir1.ToolTipText.get(), c.folderTip) << c.mode->Name().toStdString();
    EXPECT_EQ(f().cPatt.ToolTipText.get(), c.filterTip) << c.mode->Name().toStdString();
  }
}

TEST_F(OpenTest, ALockedCanvasRefusesOpenTakesADropAndNewUnlocksItAtItsSize) {
  const QString path = writePicture("drop.bmp", patternPicture(64, 48));
  choose(f().mLock);
  choose(f().mnuOpen);
  ASSERT_EQ(headless.msgbox.shown().size(), 1u);
  EXPECT_EQ(headless.msgbox.shown()[0].prompt, "Unlock canvas to open image file");
  EXPECT_EQ(headless.msgbox.shown()[0].buttons, vbOKOnly);
  EXPECT_FALSE(f().fX.Visible);

  f().PicPaint.OLEDragDrop({path, at("other.bmp")}, vbLeftButton, 0, 0, 0);
  EXPECT_EQ(canvas(), patternPicture(64, 48));
  EXPECT_EQ(m().CurrentFile, path);
  EXPECT_EQ(f().CanvasLocked, -1);  // the lock stays
  choose(f().mnuNew);
  EXPECT_FALSE(f().mLock.Checked);
  EXPECT_EQ(f().PicPaint.pixelWidth(), 64);
  EXPECT_EQ(f().Caption.get(), " Quillora Pro - Untitled.bmp - 64 x 48");
}

TEST_F(OpenTest, OpenAndSaveStopTheRunningToolAndDoNothingElseWhileTheFileWindowIsUp) {
  writePicture("a.bmp", patternPicture(30, 20));
  openThroughExplorer("a.bmp");
  choose(f().mAir);
  for (Menu* item : {&f().mnuSave, &f().mnuOpen}) {
    press(1500, 1500);  // the spray runs while the button is held
    ASSERT_TRUE(f().tAir.Enabled);
    choose(*item);
    EXPECT_FALSE(f().tAir.Enabled) << item->Name().toStdString();
    release(1500, 1500);
  }
  ASSERT_TRUE(dialog().Visible);
  dialog().Width = 6000;
  choose(f().mnuNew);
  choose(f().mnuSave);
  EXPECT_EQ(m().CurrentFile, at("a.bmp"));
  EXPECT_FALSE(f().fX.Visible);
  EXPECT_EQ(dialog().Width.get(), 6000);  // a second Save did not narrow it again
}

// A snapshot at a third of the canvas: painting on leaves it, a click on it takes the canvas again.
TEST_F(OpenTest, TheLayoutPreviewShowsTheCanvasAtAThird) {
  choose(f().mPencil);  // the canvas is shown itself, not through its pixel twin
  f().PicPaint.Width = 9600;
  f().PicPaint.Height = 7200;
  f().mLo.Visible = true;
  choose(f().mLo);
  frmLO& lo = program->w.lo;
  EXPECT_TRUE(lo.Visible);
  EXPECT_EQ(QSize(lo.pLO.pixelWidth(), lo.pLO.pixelHeight()), QSize(213, 160));
  press(1500, 1500);
  release(1500, 1500);
  EXPECT_NE(lo.iLO.Picture, canvas());
  lo.iLO.raiseClick();
  EXPECT_EQ(lo.iLO.Picture, canvas());
}

}  // namespace
}  // namespace qp::test
