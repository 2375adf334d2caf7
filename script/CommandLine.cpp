// Script runs from the command line: reading the file, choosing the runtime, reporting.
#include "script/CommandLine.h"

#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTextStream>
#include <cstdio>

#include "script/Limits.h"
#include "script/Sessions.h"
#include "app/Program.h"
#include "app/OpenFiles.h"

namespace qp::script {

namespace {

bool readText(const QString& file, QString& text, QString& why) {
  QFile f;
  const bool stdinput = file == "-";
  const bool ok = stdinput ? f.open(stdin, QIODevice::ReadOnly) : (f.setFileName(file), f.open(QIODevice::ReadOnly));
  if (!ok) {
    why = f.errorString();
    return false;
  }
  // Read no further than the limit: a device such as /dev/zero never ends.
  const QByteArray bytes = f.read(kMaxScriptBytes + 1);
  if (bytes.size() > kMaxScriptBytes) {
    why = QString("line %1: the script is larger than %2 bytes").arg(bytes.count('\n') + 1).arg(kMaxScriptBytes);
    return false;
  }
  text = QString::fromUtf8(bytes);
  return true;
}

int runParsed(std::vector<Command> commands, const QString& folder, bool show, QSize screen,
              QTextStream& out, QTextStream& err, const QStringList& pictures = {}) {
  const std::uint32_t seed = takeLeadingSeed(commands);
  if (show) {
    ShownSession session(seed);
    openCommandLineFiles(session.program(), pictures, err);
    session.afterInput();
    Runner runner(session.program(), session.rt(), session, out, err);
    runner.setInputFolder(folder);
    return runner.runAll(commands);
  }
  HeadlessSession session(seed, screen, out);
  openCommandLineFiles(session.program(), pictures, err);
  session.afterInput();
  Runner runner(session.program(), session.rt(), session, out, err);
  runner.setInputFolder(folder);
  return runner.runAll(commands);
}

}  // namespace

QSize parseScreenSize(const QString& text) {
  const QStringList wh = text.split('x');
  if (wh.size() != 2) return QSize();
  bool okW = false, okH = false;
  const int w = wh[0].toInt(&okW), h = wh[1].toInt(&okH);
  // The screen is told in twips, fifteen to the pixel: a side past the limit would overflow.
  if (!okW || !okH || w < 1 || h < 1 || w > kMaxScreenSide || h > kMaxScreenSide) return QSize();
  return QSize(w, h);
}

int runScript(const QString& file, bool show, QSize screen, const QStringList& pictures) {
  QTextStream out(stdout), err(stderr);
  QString text, why;
  if (!readText(file, text, why)) {
    err << "cannot read the script " << file << ": " << why << Qt::endl;
    return 2;
  }
  std::vector<Command> commands;
  ParseError perr;
  if (!parseScript(text, commands, perr)) {
    err << (file == "-" ? QString("stdin") : file) << ": line " << perr.line << ": " << perr.message << Qt::endl;
    return 2;
  }
  const QString folder = file == "-" ? QString() : QFileInfo(file).absolutePath();
  QElapsedTimer clock;
  clock.start();
  const int status = runParsed(std::move(commands), folder, show, screen, out, err, pictures);
  out.flush();
  if (qEnvironmentVariableIsSet("QUILLORA_SCRIPT_TIME"))
    err << "script ran in " << clock.elapsed() << " ms" << Qt::endl;
  return status;
}

int runDemo(const QString& outBmp) {
  QTextStream out(stdout), err(stderr);
  std::vector<Command> commands;
  ParseError perr;
  if (!parseScript(demoScript(outBmp), commands, perr)) {
    err << "demo: line " << perr.line << ": " << perr.message << Qt::endl;
    return 2;
  }
  const int status = runParsed(std::move(commands), QString(), false, QSize(1280, 1024), out, err);
  if (status == 0) out << "demo picture written to " << outBmp << Qt::endl;
  return status;
}

}  // namespace qp::script
