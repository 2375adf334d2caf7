// The real program in its window, killed at chosen moments and started again.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

namespace qp::test {
namespace {

// Starts `quillora --drive SCRIPT` with its state folder in dir.
class ProgramRun {
 public:
  ProgramRun(const QTemporaryDir& dir, const QString& script, int delayMs) {
    const QString file = QDir(dir.path()).filePath("run.qsc");
    if (QFile f(file); f.open(QIODevice::WriteOnly | QIODevice::Truncate)) f.write(script.toUtf8());
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_STATE_HOME", dir.path());
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("QUILLORA_RECOVERY_DELAY_MS", QString::number(delayMs));
    p_.setProcessEnvironment(env);
    p_.setWorkingDirectory(dir.path());
    p_.start(QUILLORA_BIN, {"--drive", file});
  }
  ~ProgramRun() {
    if (p_.state() != QProcess::NotRunning) kill();
  }
  // Reads the program's output until a line holds `text`; false when it ends or a minute passes.
  bool waitFor(const QString& text) {
    for (int i = 0; i < 600 && !out_.contains(text); ++i) {
      if (!p_.waitForReadyRead(100) && p_.state() == QProcess::NotRunning) break;
      out_ += QString::fromUtf8(p_.readAllStandardOutput());
    }
    return out_.contains(text);
  }
  void kill() {
    ::kill(static_cast<pid_t>(p_.processId()), SIGKILL);
    p_.waitForFinished(60000);
  }
  // Waits for a normal end: the output and the exit status.
  int finish() {
    p_.waitForFinished(120000);
    out_ += QString::fromUtf8(p_.readAllStandardOutput());
    return p_.exitStatus() == QProcess::NormalExit ? p_.exitCode() : -1;
  }
  const QString& out() const { return out_; }

 private:
  QProcess p_;
  QString out_;
};

// Killed after its copy was written, the next start offers the picture; Yes is the first button,
// which the driven window answers, and the picture comes back whole.
TEST(Crash, AKilledWindowOffersItsLastCopyAtTheNextStart) {
  QTemporaryDir dir;
  {
    ProgramRun first(dir, "menu mPencil\npress PicPaint 10 20\nmove PicPaint 60 40\nrelease PicPaint 60 40\n"
                          "save PicPaint drawn.bmp\nwait 600000\n", 20);
    ASSERT_TRUE(first.waitFor("recovery written")) << first.out().toStdString();
    first.kill();
  }
  const QImage drawn(dir.filePath("drawn.bmp"));
  ASSERT_FALSE(drawn.isNull());
  ProgramRun second(dir, "save PicPaint back.bmp\n", 20);
  EXPECT_EQ(second.finish(), 0) << second.out().toStdString();
  EXPECT_TRUE(second.out().contains("msgbox \"Recover picture\""));
  EXPECT_EQ(QImage(dir.filePath("back.bmp")), drawn);
  EXPECT_EQ(QDir(dir.filePath("quillora")).entryList({"recovery.bmp*"}, QDir::Files | QDir::Hidden),
            QStringList());  // no copy and no cut write is left behind to be offered again
}

}  // namespace
}  // namespace qp::test
