// The file window: saving under the names users type, its folder memory, and its Open branch.
#include <QFile>
#include <QFileInfo>

#include "FilesFixture.h"
#include "files/FileDialog.h"

namespace qp::test {
namespace {

class DialogTest : public FilesTest {
 protected:
  // File > Save, with the window's lists in the test's folder and a name typed.
  void saveAs(const QString& typed) {
    choose(f().mnuSave);
    dialog().Dir1.Path = folder.path();
    dialog().TxtFile.Text = typed;
    dialog().cmdOK.raiseClick();
  }
};

TEST_F(DialogTest, SaveNarrowsTheWindowAndWritesTheBitmapTheNameAsks) {
  saveAs("");
  EXPECT_TRUE(QFile::exists(at("Untitled.bmp")));
  EXPECT_EQ(dialog().TxtFile.Text.get(), "Untitled");
  EXPECT_TRUE(f().Caption.get().startsWith(" Quillora Pro - Untitled.bmp   "));
  saveAs("Sky.gif");
  EXPECT_TRUE(QFile::exists(at("Sky.gif.bmp")));
  saveAs("LOUD.BMP");
  EXPECT_TRUE(QFile::exists(at("LOUD.BMP")));
  EXPECT_EQ(m().CurrentFile, at("LOUD.BMP"));
  EXPECT_EQ(LoadPictureSize(at("LOUD.BMP")), QSize(f().PicPaint.pixelWidth(), f().PicPaint.pixelHeight()));
}

TEST_F(DialogTest, AJpgNameIsRefusedWithItsMessageAndTheWindowStays) {
  saveAs("HOLIDAY.JPG");
  ASSERT_EQ(headless.msgbox.shown().size(), 1u);
  EXPECT_EQ(headless.msgbox.shown()[0].prompt,
            "Sorry... Quillora only saves .bmp files\r\nPlease remove the .jpg file extension to save this file");
  EXPECT_TRUE(dialog().Visible);
  EXPECT_EQ(m().CurrentFile, "");
  EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files).isEmpty());
}

TEST_F(DialogTest, DoubleClickingAFileInASaveWritesOverItWithoutAQuestion) {
  writePicture("old.bmp", patternPicture(5, 5));
  choose(f().mnuSave);
  chooseInDialog("old.bmp");
  EXPECT_EQ(dialog().TxtFile.Text.get(), "old.bmp");
  dialog().File1.raiseDblClick();
  EXPECT_FALSE(dialog().Visible);
  EXPECT_TRUE(headless.msgbox.shown().empty());
  EXPECT_EQ(LoadPictureSize(at("old.bmp")), QSize(f().PicPaint.pixelWidth(), f().PicPaint.pixelHeight()));
}

// What a failed write leaves of the old file is the picture files' concern; here, the window and
// the canvas's name.
TEST_F(DialogTest, ASaveThatCannotBeWrittenKeepsTheWindowAndTheName) {
  saveAs("keep");
  const QString saved = m().CurrentFile;
  QDir(folder.path()).mkdir("x.bmp");  // a folder stands where the file would go
  saveAs("x");
  EXPECT_TRUE(dialog().Visible);
  EXPECT_EQ(m().CurrentFile, saved);
  EXPECT_TRUE(QFileInfo(at("x.bmp")).isDir());
}

TEST_F(DialogTest, CancelForgetsTheNarrowWidthAndTheNextOpeningFindsTheRememberedFolder) {
  QDir(folder.path()).mkdir("pics");
  saveAs("first");  // the lists moved into the folder; the main window remembers it
  EXPECT_EQ(f().lDir.Caption.get(), QDir::cleanPath(folder.path()));
  choose(f().mnuSave);
  EXPECT_EQ(dialog().Width.get(), 5760);  // hidden, not unloaded: the narrow width stays
  dialog().CmdCancel.raiseClick();
  EXPECT_EQ(dialog().Width.get(), 7590);
  ShowFileDialog(s(), "Save Selection As...");
  EXPECT_EQ(dialog().Width.get(), 7590);  // a new window of full width
  EXPECT_EQ(dialog().Dir1.Path.get(), QDir::cleanPath(QDir::currentPath()));  // other modes don't remember
  dialog().CmdCancel.raiseClick();
  choose(f().mnuSave);
  EXPECT_EQ(dialog().Dir1.Path.get(), QDir::cleanPath(folder.path()));
  EXPECT_EQ(dialog().File1.Path.get(), QDir::cleanPath(folder.path()));
}

TEST_F(DialogTest, ClickingAFileFillsTheNameAndPreviewsItUnlessItCannotBeRead) {
  writePicture("good.bmp", patternPicture(12, 9));
  QFile broken(at("broken.bmp"));
  ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
  broken.write("BM not really");
  broken.close();
  ShowFileDialog(s(), "Open Image...");
  chooseInDialog("good.bmp");
  EXPECT_EQ(dialog().imPreview.Picture.size(), QSize(12, 9));
  chooseInDialog("broken.bmp");
  EXPECT_EQ(dialog().TxtFile.Text.get(), "broken.bmp");
  EXPECT_EQ(dialog().imPreview.Picture.size(), QSize(12, 9));
}

TEST_F(DialogTest, TheOpenBranchLoadsTheChosenFileAndATypedNameAloneLoadsNothing) {
  writePicture("good.bmp", patternPicture(12, 9));
  ShowFileDialog(s(), "Open Image...");
  dialog().Dir1.Path = folder.path();
  dialog().TxtFile.Text = "good.bmp";
  dialog().cmdOK.raiseClick();
  EXPECT_TRUE(dialog().Visible);  // nothing chosen in the list: neither loads nor closes
  EXPECT_EQ(f().PicPaint.pixelWidth() == 12, false);

  chooseInDialog("good.bmp");
  dialog().cmdOK.raiseClick();
  EXPECT_FALSE(dialog().Visible);
  EXPECT_EQ(canvas(), patternPicture(12, 9));
  EXPECT_EQ(m().CurrentFile, at("good.bmp"));
  EXPECT_EQ(f().lDir.Caption.get(), QDir::cleanPath(folder.path()));
  EXPECT_EQ(f().Caption.get(), " Quillora Pro - good.bmp   12 x 9");
}

TEST_F(DialogTest, ACaptionOutsideTheModesOnlyClosesAndAWorkshopWithNothingToSaveWritesNothing) {
  ShowFileDialog(s(), "Something else");
  dialog().cmdOK.raiseClick();
  EXPECT_FALSE(dialog().Visible);
  // The TileSetter has tiled nothing yet: the save fails silently and the dialog stays.
  ShowFileDialog(s(), "Save Tiled Image As...");
  dialog().Dir1.Path = folder.path();
  dialog().cmdOK.raiseClick();
  EXPECT_TRUE(dialog().Visible);
  EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files).isEmpty());
}

}  // namespace
}  // namespace qp::test
