// Malformed and absurd scripts and command lines: refused with exit status 2 and the line, never
// overflowing, running for ever or growing without bound; values a control refuses are errors.
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <set>
#include <sys/stat.h>

#include "ScriptFixture.h"
#include "platform/Controls.h"
#include "script/CommandLine.h"
#include "script/Limits.h"

namespace qp::script {
namespace {

using ScriptLimits = ScriptTest;

TEST_F(ScriptLimits, RefusedLinesEndTheRunAndNameTheirLine) {
  QTemporaryDir dir;
  // A PNG cut short, and a pipe that would never end.
  const QString cut = dir.filePath("cut.png"), pipe = dir.filePath("pipe.bmp");
  QByteArray png;
  QBuffer buffer(&png);
  buffer.open(QIODevice::WriteOnly);
  QImage(2, 1, QImage::Format_ARGB32).save(&buffer, "PNG");
  QFile part(cut);
  ASSERT_TRUE(part.open(QIODevice::WriteOnly));
  part.write(png.chopped(20));
  part.close();
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  struct Case { QString script; const char* error; };
  const Case cases[] = {
      {"print nosuchthing", "line 1: no session variable"},
      {"print vVal1.Nonsense", "line 1: vVal1 has no property"},
      {"set lMode.Caption hello", "line 1:"},  // a user cannot write a label
      {"set vPencil.Value 9999", "line 1:"},
      {"set vPencil.Value seven", "line 1:"},
      {"set ckHold.Value 3", "line 1:"},
      {"set lstFont.ListIndex 99999", "line 1:"},  // refused though the list is hidden
      {"set lstFont.ListIndex -2", "line 1:"},
      {"clipboard clear\nclipboard save " + dir.filePath("none.png"), "line 2: the clipboard holds no picture"},
      {"clipboard load " + dir.filePath("missing.png"), "line 1: cannot read"},
      {"clipboard load " + cut, "line 1: cannot read"},
      {"clipboard load " + pipe, "line 1: cannot read"},  // at once, not waiting on the pipe
      {"save lMode " + dir.filePath("x.bmp"), "line 1: 'lMode' is not a picture box"},
      {"wait 9223372036854775807\nwait 1", "line 1:"},
      {"menu mPencil\nwait 99999999999", "line 2:"},
      {QString("wait %1").arg(kMaxWaitMs + 1), "line 1:"},
      {"seed 1\n# a comment\ntype Text1 " + QString(kMaxLineChars, 'a'), "line 3:"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.script.left(60).toStdString());
    errors.clear();
    EXPECT_EQ(run(c.script), 2);
    EXPECT_TRUE(errors.contains(c.error)) << errors.toStdString();
  }
  EXPECT_EQ(run(QString("wait %1").arg(kMaxWaitMs)), 0);  // a day is allowed
}

TEST_F(ScriptLimits, AScriptThatNeverEndsIsRefusedAtTheSizeLimit) {
  EXPECT_EQ(runScript("/dev/zero", false, QSize(640, 480)), 2);
}

TEST_F(ScriptLimits, TheScreenSizeStaysWhereItsTwipsFit) {
  EXPECT_EQ(parseScreenSize("1280x1024"), QSize(1280, 1024));
  EXPECT_EQ(parseScreenSize(QString("%1x1").arg(kMaxScreenSide)), QSize(kMaxScreenSide, 1));
  for (const char* bad : {"2147483647x2147483647", "16385x10", "0x5", "axb", "640", "-1x5"})
    EXPECT_TRUE(parseScreenSize(bad).isEmpty()) << bad;
}

// Typing edits the text in place: its storage moves only as it grows, not at every key.
TEST(TextBoxTyping, EachKeyCostsTheSameHoweverLongTheText) {
  HeadlessRuntime headless;
  Form form(headless.rt(), "frmT");
  TextBox box(&form, nullptr, "Text1");
  int changes = 0;
  box.Change = [&] { ++changes; };
  std::set<const QChar*> places;
  for (int i = 0; i < 20000; ++i) {
    box.typeChar(QChar('a' + i % 26));
    places.insert(box.Text.get().constData());
  }
  box.typeBackspace();
  EXPECT_EQ(box.Text.get().size(), 19999);
  EXPECT_EQ(changes, 20001);
  EXPECT_LT(places.size(), 200u);
}

// Keys to a focused scroll bar move it as the window's bars move.
TEST_F(ScriptLimits, KeysMoveAFocusedScrollBar) {
  ASSERT_EQ(run("menu mPencil\nfocus vVal1"), 0) << errors.toStdString();
  ASSERT_EQ(f().vVal1.Value.get(), 4);  // AutoDraw's speed: Min 40, Max 1
  struct Case { const char* key; int value; };
  const Case cases[] = {{"Up", 5}, {"Left", 6}, {"Down", 5}, {"Right", 4}, {"PageUp", 5},
                        {"PageDown", 4}, {"Home", 40}, {"End", 1}};
  for (const Case& c : cases) {
    ASSERT_EQ(run(QString("key %1").arg(c.key)), 0) << errors.toStdString();
    EXPECT_EQ(f().vVal1.Value.get(), c.value) << c.key;
  }
}

}  // namespace
}  // namespace qp::script
