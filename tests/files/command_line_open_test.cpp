// `quillora PICTURE` opens as a drop does; what cannot open is told, and the blank canvas stays.
#include "FilesFixture.h"
#include "app/OpenFiles.h"

namespace qp::test {
namespace {

class CommandLineOpenTest : public FilesTest {
 protected:
  QString open(const QStringList& files) {
    QTextStream err(&said);
    return openCommandLineFiles(*program, files, err);
  }
  QString said;
};

TEST_F(CommandLineOpenTest, WhatCannotOpenIsToldAndWhatCanOpensAsADropDoes) {
  const QString picture = writePicture("pic.bmp", patternPicture(40, 30));
  writeFile(at("notes.bmp"), "not a picture");
  const struct {
    QStringList files;
    QString says;  // empty: nothing to say
  } cases[] = {
      {{at("missing.bmp")}, "Cannot open \"" + at("missing.bmp") + "\": there is no such file."},
      {{folder.path()}, "Cannot open \"" + folder.path() + "\": it is a folder, not a picture."},
      {{at("notes.bmp")}, "Cannot open \"" + at("notes.bmp") + "\": it is not a picture Quillora Pro can read"},
      {{picture, picture}, "Quillora Pro opens one picture at a time and was given 2"},
      {{}, ""},
  };
  const QString caption = f().Caption.get();
  const QImage blank = canvas(), undo = f().PicUndo.Image;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.files.join(" ").toStdString());
    headless.msgbox.clear();
    said.clear();
    const QString why = open(c.files);
    EXPECT_EQ(why.left(c.says.size()), c.says);
    EXPECT_EQ(why.isEmpty(), c.says.isEmpty());
    ASSERT_EQ(headless.msgbox.shown().size(), c.says.isEmpty() ? 0u : 1u);
    if (!c.says.isEmpty()) {
      EXPECT_EQ(headless.msgbox.shown().front().prompt, why);
    }
    EXPECT_EQ(said, c.says.isEmpty() ? "" : "quillora: " + why + "\n");
    EXPECT_EQ(f().Caption.get(), caption);
    EXPECT_EQ(m().CurrentFile, "");
    EXPECT_EQ(canvas(), blank);
    EXPECT_EQ(QImage(f().PicUndo.Image), undo);
  }

  HeadlessRuntime other;
  Program dropped(other.rt());
  dropped.start();
  dropped.f.PicPaint.OLEDragDrop({picture}, vbLeftButton, 0, 0, 0);
  const QString before = QDir::currentPath();
  QDir::setCurrent(folder.path());  // the bare name, given in the picture's folder
  headless.msgbox.clear();
  said.clear();
  EXPECT_EQ(open({"pic.bmp"}), "");
  QDir::setCurrent(before);
  EXPECT_EQ(m().CurrentFile, picture);
  EXPECT_EQ(f().Caption.get(), " Quillora Pro - pic.bmp   40 x 30");
  EXPECT_EQ(canvas(), QImage(dropped.f.PicPaint.Image));
  EXPECT_EQ(QImage(f().PicUndo.Image), QImage(dropped.f.PicUndo.Image));  // undo gives the blank canvas
  EXPECT_TRUE(headless.msgbox.shown().empty());
  EXPECT_EQ(said, "");
}

}  // namespace
}  // namespace qp::test
