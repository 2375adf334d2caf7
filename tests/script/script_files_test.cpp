// The script's own file commands: `save` writes through the program's safe save, so a full disk or
// a kill in the middle leaves the old file whole; `clipboard load` never waits on a pipe.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "script/Runner.h"
#include "script/Sessions.h"
#include "app/Program.h"

namespace qp::script {
namespace {

class ScriptFiles : public ::testing::Test {
 protected:
  int run(const QString& text) {
    std::vector<Command> commands;
    ParseError perr;
    if (!parseScript(text, commands, perr)) return 2;
    return runner.runAll(commands);
  }
  static QByteArray bytesOf(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }

  QString printed, errors;
  QTextStream out{&printed}, err{&errors};
  HeadlessSession session{1, QSize(1280, 1024), out};
  Runner runner{session.program(), session.rt(), session, out, err};
  QTemporaryDir dir;
};

// The child process saves with file writes limited to 4 KiB, far less than the canvas needs: with
// the signal ignored each write past the limit fails as on a full disk; with its default action the
// process dies at that write, as if killed in the middle of the save.
TEST_F(ScriptFiles, AFullDiskOrAKillMidSaveLeavesTheOldFileWhole) {
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
  ASSERT_EQ(run("save PicPaint " + target), 0);
  EXPECT_EQ(QImage(target).size(), QSize(session.program().f.PicPaint.pixelWidth(),
                                         session.program().f.PicPaint.pixelHeight()));
}

TEST_F(ScriptFiles, ClipboardLoadRefusesAPipeAtOnce) {
  const QString pipe = dir.path() + "/pipe.bmp";
  ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  EXPECT_EQ(run("clipboard load " + pipe), 2);
  err.flush();
  EXPECT_TRUE(errors.contains("line 1:")) << errors.toStdString();
}

}  // namespace
}  // namespace qp::script
