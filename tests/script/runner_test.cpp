// Running scripts on a headless Quillora: what each line does to the program, and the exit status.
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QTemporaryDir>
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "ScriptFixture.h"

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

// The lines a script cannot run are refused in the limits' table; here, what each status means.
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

TEST_F(ScriptRun, WaitIsTheOnlyLineThatTakesTime) {
  const auto start = session.rt().loop.now();
  run("menu mPencil\npress PicPaint 5 5\nmove PicPaint 50 5\nrelease PicPaint 50 5");
  EXPECT_EQ(session.rt().loop.now(), start);
  run("wait 250\nwait 0\nwait 50");
  EXPECT_EQ(session.rt().loop.now(), start + 300);
}

TEST_F(ScriptRun, SeedRestartsRnd) {
  run("seed 5");
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

TEST_F(ScriptRun, HiddenControlsTakeNoInput) {
  f().vVal1.Visible = false;
  EXPECT_EQ(run(QString("set vVal1.Value %1").arg(f().vVal1.Value.get())), 0);  // a value it takes
  EXPECT_TRUE(errors.contains("hidden or disabled"));
  bool clicked = false;
  f().cSwap.Click = [&] { clicked = true; };
  f().cSwap.Enabled = false;
  run("click cSwap");
  EXPECT_FALSE(clicked);
  f().cSwap.Enabled = true;
  f().cSwap.Visible = true;
  f().fColors.Visible = true;
  run("click cSwap");
  EXPECT_EQ(clicked, runner.resolve("cSwap") != nullptr);
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
TEST_F(ScriptRun, FilesAndTheClipboard) {
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
}

TEST_F(ScriptRun, ReadOutsOfPixelsAndProperties) {
  run("menu mPencil\nkey F11\nkey F11\nkey F11\npress PicPaint 4 4\nrelease PicPaint 4 4");
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
}

TEST_F(ScriptRun, ScreenshotShowsTheWindow) {
  const QString shot = dir.filePath("shot.png");
  EXPECT_EQ(run("screenshot " + shot), 0);
  const QImage img(shot);
  ASSERT_FALSE(img.isNull());
  EXPECT_GT(img.width(), 600);
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
