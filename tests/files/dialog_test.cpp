// The file window: saving under the names users type, its folder memory, and its Open branch.
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

// A refused name or a place that cannot be written keeps the window up and the canvas's name.
TEST_F(DialogTest, SaveWritesTheBitmapTheNameAsksOrKeepsTheWindowUp) {
  QDir(folder.path()).mkdir("x.bmp");  // a folder stands where the file would go
  const struct {
    const char* typed;
    const char* file;  // null: nothing is written
    const char* says;
  } cases[] = {
      {"", "Untitled.bmp", ""},
      {"Sky.jpeg", "Sky.jpeg.bmp", ""},
      {"LOUD.BMP", "LOUD.BMP", ""},
      {"HOLIDAY.JPG", nullptr,
       "Sorry... Quillora only saves .bmp files\r\nPlease remove the .jpg file extension to save this file"},
      {"x", nullptr, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.typed);
    const QString named = m().CurrentFile;
    headless.msgbox.clear();
    saveAs(c.typed);
    EXPECT_EQ(dialog().Visible.get(), c.file == nullptr);
    EXPECT_EQ(m().CurrentFile, c.file ? at(c.file) : named);
    EXPECT_EQ(headless.msgbox.shown().empty() ? QString() : headless.msgbox.shown()[0].prompt, c.says);
    if (c.file) {
      EXPECT_EQ(QImage(at(c.file)).size(), QSize(f().PicPaint.pixelWidth(), f().PicPaint.pixelHeight()));
      EXPECT_TRUE(f().Caption.get().startsWith(QString(" Quillora Pro - %1   ").arg(c.file)));
    }
    if (dialog().Visible) dialog().CmdCancel.raiseClick();
  }
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({"LOUD.BMP", "Sky.jpeg.bmp", "Untitled.bmp"}));
}

TEST_F(DialogTest, DoubleClickingAFileInASaveWritesOverItWithoutAQuestion) {
  writePicture("old.bmp", patternPicture(5, 5));
  choose(f().mnuSave);
  chooseInDialog("old.bmp");
  EXPECT_EQ(dialog().TxtFile.Text.get(), "old.bmp");
  dialog().File1.raiseDblClick();
  EXPECT_FALSE(dialog().Visible);
  EXPECT_TRUE(headless.msgbox.shown().empty());
  EXPECT_EQ(QImage(at("old.bmp")).size(), QSize(f().PicPaint.pixelWidth(), f().PicPaint.pixelHeight()));
}

// The main window remembers the folder of a canvas save; the other modes start where the program runs.
TEST_F(DialogTest, OnlyTheCanvasModesReturnToTheRememberedFolder) {
  saveAs("first");
  choose(f().mnuSave);
  dialog().CmdCancel.raiseClick();  // unloads the window, where a save only hid it
  ShowFileDialog(s(), "Save Selection As...");
  EXPECT_EQ(dialog().Dir1.Path.get(), QDir::cleanPath(QDir::currentPath()));
  dialog().CmdCancel.raiseClick();
  choose(f().mnuSave);
  EXPECT_EQ(dialog().File1.Path.get(), QDir::cleanPath(folder.path()));
}

// A click fills the name and previews the file; OK loads only what the list has chosen, and a
// file that cannot be read keeps the window up with the canvas as it was.
TEST_F(DialogTest, TheOpenBranchLoadsTheFileChosenInTheList) {
  writePicture("good.bmp", patternPicture(12, 9));
  writeFile(at("broken.bmp"), "BM not really");
  const QImage blank = canvas();
  ShowFileDialog(s(), FileMode::OpenImage);
  dialog().Dir1.Path = folder.path();
  dialog().TxtFile.Text = "good.bmp";
  dialog().cmdOK.raiseClick();
  EXPECT_TRUE(dialog().Visible);  // a typed name alone neither loads nor closes
  EXPECT_EQ(canvas(), blank);
  chooseInDialog("good.bmp");
  EXPECT_EQ(dialog().imPreview.Picture.size(), QSize(12, 9));
  chooseInDialog("broken.bmp");
  EXPECT_EQ(dialog().TxtFile.Text.get(), "broken.bmp");
  EXPECT_EQ(dialog().imPreview.Picture.size(), QSize(12, 9));
  m().CurrentFile = "before";
  dialog().cmdOK.raiseClick();
  EXPECT_TRUE(dialog().Visible);
  EXPECT_EQ(canvas(), blank);
  EXPECT_EQ(m().CurrentFile, "");  // cleared before the load that failed

  chooseInDialog("good.bmp");
  dialog().cmdOK.raiseClick();
  EXPECT_FALSE(dialog().Visible);
  EXPECT_EQ(canvas(), patternPicture(12, 9));
  EXPECT_EQ(m().CurrentFile, at("good.bmp"));
  EXPECT_EQ(f().lDir.Caption.get(), QDir::cleanPath(folder.path()));
  EXPECT_EQ(f().Caption.get(), " Quillora Pro - good.bmp   12 x 9");
}

}  // namespace
}  // namespace qp::test
