// Running scripts on a headless Quillora: what each line does to the program, and the exit status.
// Malformed and absurd scripts and command lines are refused with status 2 and the line, never
// overflowing, running for ever or growing without bound; values a control refuses are errors.
#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <csignal>
#include <set>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ScriptFixture.h"
#include "platform/Controls.h"
#include "script/CommandLine.h"
#include "script/Limits.h"

namespace qp::script {
namespace {

class ScriptRun : public ScriptTest {
 protected:
  static QByteArray bytesOf(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
  QTemporaryDir dir;
};

// The lines a script cannot run are refused in their own table below; here, what each status means.
TEST_F(ScriptRun, ExitStatusTellsHeldFailedAndBroken) {
  EXPECT_EQ(run("expect PaintMode 16\nprint lMode.Caption"), 0);
  EXPECT_TRUE(printed.contains("PaintMode = 16\nlMode.Caption = \"Freehand Spiralz\"\n"));
  EXPECT_EQ(run("expect PaintMode 3\nexpect DrawWidth 1"), 1);  // a failure does not stop the run
  EXPECT_TRUE(errors.contains("line 1: expected PaintMode = 3, but it is 16")) << errors.toStdString();
  EXPECT_EQ(run("menu mPencil\nclick vValX\nmenu mShadow"), 2);
  EXPECT_TRUE(errors.contains("line 2: no control named 'vValX'"));
  EXPECT_EQ(session.program().m.PaintMode, 0);  // nothing after the broken line ran
  // Esc ends the program: the rest of the script does not run, and that is no failure.
  EXPECT_EQ(run("key Esc\nexpect PaintMode 99"), 0);
  EXPECT_TRUE(session.quitRequested());
}

TEST_F(ScriptRun, WaitIsTheOnlyLineThatTakesTimeAndSeedRestartsRnd) {
  const auto start = session.rt().loop.now();
  run("menu mPencil\npress PicPaint 5 5\nmove PicPaint 50 5\nrelease PicPaint 50 5");
  EXPECT_EQ(session.rt().loop.now(), start);
  run("wait 250\nwait 0\nwait 50\nseed 5");
  EXPECT_EQ(session.rt().loop.now(), start + 300);
  Random same(5);
  EXPECT_EQ(session.rt().rnd.Rnd(), same.Rnd());
}

TEST_F(ScriptRun, TypeEditsTheTextBoxWithKeys) {
  f().fText.Visible = true;
  int presses = 0;
  f().Text1.KeyPress = [&](int&) { ++presses; };
  EXPECT_EQ(run("set Text1.Text \"\"\ntype Text1 Hi 5"), 0);
  EXPECT_EQ(f().Text1.Text.get(), "Hi 5");
  EXPECT_EQ(presses, 4);
  EXPECT_EQ(f().ActiveControl(), &f().Text1);
  f().Text1.KeyPress = [](int& k) { k = 0; };  // a handler that swallows the key keeps it out
  run("type Text1 x");
  EXPECT_EQ(f().Text1.Text.get(), "Hi 5");
}

TEST_F(ScriptRun, HiddenOrDisabledControlsTakeNoInput) {
  const int before = f().vVal1.Value;
  f().vVal1.Visible = false;
  EXPECT_EQ(run(QString("set vVal1.Value %1").arg(before + 1)), 0);  // a value it would take
  EXPECT_EQ(f().vVal1.Value.get(), before);
  EXPECT_TRUE(errors.contains("hidden or disabled"));
  bool clicked = false;
  f().cSwap.Click = [&] { clicked = true; };
  f().fColors.Visible = true;
  f().cSwap.Visible = true;
  f().cSwap.Enabled = false;
  run("click cSwap");
  EXPECT_FALSE(clicked);
  f().cSwap.Enabled = true;
  run("click cSwap");
  EXPECT_TRUE(clicked);
}

TEST_F(ScriptRun, KeysGoBackToTheCanvasOnceSaveHidesTheFileWindow) {
  // The real Save, closed with OK: the next key reaches the main window, where Delete clears.
  QTemporaryDir dir;
  f().lDrive.Caption = "/";
  f().lDir.Caption = dir.path();
  f().PicPaint.PSet(150, 150, 0xFFFFFF);  // a dot at pixel 10, 10
  EXPECT_EQ(run("menu mnuSave\ntype frmFile.TxtFile keys\nclick frmFile.cmdOK\nexpect frmFile.Visible 0\n"
                "key Delete\nexpect pixel PicPaint 10 10 0x000000"), 0) << errors.toStdString();
  EXPECT_TRUE(QFile::exists(dir.filePath("keys.bmp")));
}

TEST_F(ScriptRun, AModalWindowTakesTheNextLinesUntilItHides) {
  frmFile& d = session.program().w.file;
  std::int64_t returnedAt = -1;
  const std::int64_t start = session.rt().loop.now();
  f().mnuSave.Click = [&] {
    d.Show(true);
    returnedAt = session.rt().loop.now();
  };
  f().PicPaint.PSet(150, 150, 0xFFFFFF);  // a dot at pixel 10, 10 that Delete must clear
  // While the window is open its own controls take the lines; the main window takes none. Once
  // it hides, the keys go back to the main window.
  EXPECT_EQ(run("menu mnuSave\nwait 100\ntype frmFile.TxtFile abc\nmenu mPencil\nexpect PaintMode 16\n"
                "expect frmFile.TxtFile.Text abc\nclick frmFile.CmdCancel\nwait 50\nexpect frmFile.Visible 0\n"
                "key Delete\nexpect pixel PicPaint 10 10 0x000000\nmenu mPencil\nexpect PaintMode 0"),
            0) << errors.toStdString();
  EXPECT_EQ(returnedAt, start + 100) << "Show returned when the window hid, before the lines after that";
  EXPECT_TRUE(errors.contains("line 4: note: mToolz is behind a modal window")) << errors.toStdString();
  // A script that ends with the window open leaves it open, and the run still ends.
  returnedAt = -1;
  EXPECT_EQ(run("menu mnuSave\nwait 10"), 0);
  EXPECT_EQ(returnedAt, session.rt().loop.now());
  EXPECT_TRUE(d.Visible);
}

// A see-through PNG comes onto the clipboard as it would show on the canvas.
TEST_F(ScriptRun, FilesTheClipboardAndReadOuts) {
  f().PicPaint.BackColor = 0x3060C0;
  QImage pic(2, 1, QImage::Format_ARGB32);
  pic.setPixel(0, 0, qRgba(255, 255, 255, 0));
  pic.setPixel(1, 0, qRgba(0, 255, 0, 255));
  const QString in = dir.filePath("see.png"), back = dir.filePath("back.png"), saved = dir.filePath("canvas.bmp");
  pic.save(in);
  EXPECT_EQ(run(QString("clipboard load %1\nclipboard save %2").arg(in, back)), 0);
  EXPECT_EQ(session.clipboard().GetData().pixel(0, 0), qRgb(0xC0, 0x60, 0x30));
  EXPECT_EQ(QImage(back).pixel(1, 0), qRgb(0, 255, 0));
  EXPECT_EQ(run("clipboard clear"), 0);
  EXPECT_TRUE(session.clipboard().GetData().isNull());
  run("menu mPencil\nkey F11\nkey F11\nkey F11\npress PicPaint 4 4\nrelease PicPaint 4 4");
  EXPECT_EQ(run("save PicPaint " + saved), 0);
  const QImage canvas(saved);
  EXPECT_EQ(canvas.size(), f().PicPaint.bitmap().size());
  EXPECT_EQ(canvas.pixel(4, 4), qRgb(255, 255, 255));
  // Read-outs of pixels, properties and the window.
  printed.clear();
  EXPECT_EQ(run("print pixel PicPaint 4 4\nprint pixel PicPaint -1 0\nprint pPix.Visible\nprint LastX\n"
                "print frmCanvas.ActiveControl\nprint vPencil.Min"), 0);
  EXPECT_EQ(printed, "pixel PicPaint 4 4 = 0xFFFFFF\npixel PicPaint -1 0 = -1\npPix.Visible = 0\nLastX = 60\n"
                     "frmCanvas.ActiveControl = \"PicPaint\"\nvPencil.Min = 160\n");
  // A multi-line box that Enter breaks into lines.
  f().fHelp.Visible = true;
  f().txHelp.Text = "a";
  printed.clear();
  EXPECT_EQ(run("focus txHelp\nkey Enter\nprint txHelp.Text\nprint txHelp.MultiLine"), 0) << errors.toStdString();
  EXPECT_EQ(printed, "txHelp.Text = \"a\\n\"\ntxHelp.MultiLine = -1\n");
  EXPECT_EQ(f().txHelp.Text.get(), "a\r\n");
  const QString shot = dir.filePath("shot.png");
  EXPECT_EQ(run("screenshot " + shot), 0);
  EXPECT_GT(QImage(shot).width(), 600);  // the whole window
}

// The child process saves with file writes limited to 4 KiB, far less than the canvas needs: with
// the signal ignored each write past the limit fails as on a full disk; with its default action the
// process dies at that write, as if killed in the middle of the save.
TEST_F(ScriptRun, AFullDiskOrAKillMidSaveLeavesTheOldFileWhole) {
  const QString target = dir.path() + "/out.bmp";
  QImage old(50, 40, QImage::Format_RGB32);
  old.fill(qRgb(0, 0, 255));
  ASSERT_TRUE(old.save(target, "BMP"));
  const QByteArray oldBytes = bytesOf(target);
  for (const bool killed : {false, true}) {
    SCOPED_TRACE(killed ? "killed mid-write" : "disk full");
    const pid_t pid = ::fork();
    ASSERT_GE(pid, 0);
    if (pid == 0) {
      const rlimit noCore{0, 0};
      ::setrlimit(RLIMIT_CORE, &noCore);
      std::signal(SIGXFSZ, killed ? SIG_DFL : SIG_IGN);
      const rlimit small{4096, 4096};
      ::setrlimit(RLIMIT_FSIZE, &small);
      ::_exit(run("save PicPaint " + target));
    }
    int status = 0;
    ASSERT_EQ(::waitpid(pid, &status, 0), pid);
    if (killed) {
      EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ) << status;
    } else {
      EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 2) << status;
    }
    EXPECT_EQ(bytesOf(target), oldBytes);
  }
}

TEST_F(ScriptRun, RefusedLinesEndTheRunAndNameTheirLine) {
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

TEST(CommandLine, RefusesAnEndlessScriptAndAScreenWhoseTwipsDoNotFit) {
  EXPECT_EQ(runScript("/dev/zero", false, QSize(640, 480)), 2);
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
  EXPECT_EQ(changes, 20001);
  EXPECT_LT(places.size(), 200u);
}

// Keys to a focused scroll bar move it as the window's bars move.
TEST_F(ScriptRun, KeysMoveAFocusedScrollBar) {
  ASSERT_EQ(run("menu mPencil\nfocus vVal1"), 0) << errors.toStdString();
  struct Case { const char* key; int value; };  // from AutoDraw's speed 4, on a bar from 40 to 1
  const Case cases[] = {{"Up", 5}, {"Left", 6}, {"Down", 5}, {"Right", 4}, {"PageUp", 5},
                        {"PageDown", 4}, {"Home", 40}, {"End", 1}};
  for (const Case& c : cases) {
    ASSERT_EQ(run(QString("key %1").arg(c.key)), 0) << errors.toStdString();
    EXPECT_EQ(f().vVal1.Value.get(), c.value) << c.key;
  }
}

TEST(ScriptMessageBox, PrintedAndAnsweredWhenNobodySeesIt) {
  QString printed;
  QTextStream out(&printed);
  // A small screen makes the start-up recommend a bigger one.
  HeadlessSession small(1, QSize(800, 600), out);
  Runner runner(small.program(), small.rt(), small, out, out);
  std::vector<Command> c;
  ParseError perr;
  ASSERT_TRUE(parseScript("expect msgbox \"1024x768 Screen Resolution is recommended\"", c, perr));
  EXPECT_EQ(runner.runAll(c), 0);
  out.flush();
  EXPECT_TRUE(printed.startsWith("msgbox \"Optimize Display...\" \"1024x768 Screen Resolution is recommended\"\n"))
      << printed.toStdString();
}

}  // namespace
}  // namespace qp::script
