// `quillora PICTURE`: the picture named when the program starts opens as a drop would open it, and
// anything it cannot open is said aloud while the blank canvas stays.
#include <QFile>

#include "FilesFixture.h"
#include "app/OpenFiles.h"

namespace qp::test {
namespace {

class CommandLineOpenTest : public FilesTest {
 protected:
  void SetUp() override {
    FilesTest::SetUp();
    picture = writePicture("pic.bmp", patternPicture(40, 30));
    QFile text(at("notes.bmp"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    text.write("these are notes, not a picture\n");
    text.close();
    QDir(folder.path()).mkdir("sub");
  }
  QString open(const QStringList& files) {
    QString said;
    QTextStream err(&said);
    const QString why = openCommandLineFiles(*program, files, err);
    stderrText = said;
    return why;
  }
  QString picture;
  QString stderrText;
};

TEST_F(CommandLineOpenTest, OpensThePictureExactlyAsADropOnTheCanvas) {
  HeadlessRuntime other;
  Program dropped(other.rt());
  dropped.start();
  dropped.f.PicPaint.OLEDragDrop({picture}, vbLeftButton, 0, 0, 0);

  // Started in the picture's folder and given its bare name, as a terminal user would.
  const QString before = QDir::currentPath();
  QDir::setCurrent(folder.path());
  EXPECT_EQ(open({"pic.bmp"}), "");
  QDir::setCurrent(before);

  EXPECT_EQ(m().CurrentFile, picture);
  EXPECT_EQ(f().Caption.get(), dropped.f.Caption.get());
  EXPECT_EQ(f().Caption.get(), " Quillora Pro - pic.bmp   40 x 30");
  EXPECT_EQ(canvas(), QImage(dropped.f.PicPaint.Image));
  EXPECT_EQ(QImage(f().PicUndo.Image), QImage(dropped.f.PicUndo.Image));
  EXPECT_TRUE(headless.msgbox.shown().empty());
  EXPECT_EQ(stderrText, "");
  choose(f().mnuUndo);  // the blank canvas is one undo away, as after a drop
  EXPECT_EQ(canvas(), QImage(dropped.f.PicUndo.Image));
}

TEST_F(CommandLineOpenTest, WhatCannotOpenIsToldAndTheBlankCanvasStays) {
  struct Case {
    QStringList files;
    QString says;
  };
  const Case cases[] = {
      {{at("missing.bmp")}, "there is no such file"},
      {{at("sub")}, "it is a folder, not a picture"},
      {{at("notes.bmp")}, "it is not a picture Quillora Pro can read"},
      {{at("pic.bmp"), at("pic.bmp")}, "opens one picture at a time and was given 2"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.files.join(" ").toStdString());
    SetUp();  // a program just started, every time
    const QString caption = f().Caption.get();
    const QImage blank = canvas();
    const QImage undo = f().PicUndo.Image;
    const QString why = open(c.files);
    EXPECT_TRUE(why.contains(c.says)) << why.toStdString();
    if (c.files.size() == 1) {
      EXPECT_TRUE(why.contains(c.files.front()));
    }
    ASSERT_EQ(headless.msgbox.shown().size(), 1u);
    EXPECT_EQ(headless.msgbox.shown().front().prompt, why);
    EXPECT_EQ(stderrText, "quillora: " + why + "\n");
    EXPECT_EQ(f().Caption.get(), caption);
    EXPECT_EQ(m().CurrentFile, "");
    EXPECT_EQ(canvas(), blank);
    EXPECT_EQ(QImage(f().PicUndo.Image), undo);
    headless.msgbox.clear();
  }
}

TEST_F(CommandLineOpenTest, NoPictureNamedIsNoMessage) {
  const QString caption = f().Caption.get();
  EXPECT_EQ(open({}), "");
  EXPECT_TRUE(headless.msgbox.shown().empty());
  EXPECT_EQ(f().Caption.get(), caption);
}

}  // namespace
}  // namespace qp::test
