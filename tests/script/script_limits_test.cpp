// Malformed and absurd scripts and command lines: refused with exit status 2 and the line, never
// overflowing, running for ever or growing without bound; values a control refuses are errors.
#include <gtest/gtest.h>

#include <set>

#include "platform/Controls.h"
#include "script/CommandLine.h"
#include "script/Limits.h"
#include "script/Runner.h"
#include "script/Sessions.h"
#include "app/Program.h"

namespace qp::script {
namespace {

class ScriptLimits : public ::testing::Test {
 protected:
  int run(const QString& text) {
    std::vector<Command> commands;
    ParseError perr;
    if (!parseScript(text, commands, perr)) {
      errors += QString("line %1: %2\n").arg(perr.line).arg(perr.message);
      return 2;
    }
    const int status = runner.runAll(commands);
    err.flush();
    return status;
  }
  frmCanvas& f() { return session.program().f; }

  QString printed, errors;
  QTextStream out{&printed}, err{&errors};
  HeadlessSession session{1, QSize(1280, 1024), out};
  Runner runner{session.program(), session.rt(), session, out, err};
};

TEST_F(ScriptLimits, RefusedScriptsNameTheirLine) {
  struct Case { QString script; const char* line; };
  const Case cases[] = {
      {"wait 9223372036854775807\nwait 1", "line 1:"},
      {"menu mPencil\nwait 99999999999", "line 2:"},
      {QString("wait %1").arg(kMaxWaitMs + 1), "line 1:"},
      {"seed 1\n# a comment\ntype Text1 " + QString(kMaxLineChars, 'a'), "line 3:"},
      {"set lstFont.ListIndex 99999", "line 1:"},  // refused though the list is hidden
      {"set lstFont.ListIndex -2", "line 1:"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.script.left(60).toStdString());
    errors.clear();
    EXPECT_EQ(run(c.script), 2);
    EXPECT_TRUE(errors.contains(c.line)) << errors.toStdString();
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

// Every key redraws the 3D text sample, at a cost that does not grow with the text: a long
// line types in time in proportion to its length.
TEST_F(ScriptLimits, LongTextTypesWhole) {
  const QString text(20000, 'q');
  ASSERT_EQ(run("menu mTxBrush\ntype Text1 " + text), 0) << errors.toStdString();
  EXPECT_TRUE(f().Text1.Text.get().endsWith(text));
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
