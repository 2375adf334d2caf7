// A headless session that scripts run on, with what they print and the errors they report.
#pragma once

#include <gtest/gtest.h>

#include "app/Program.h"
#include "script/Runner.h"
#include "script/Sessions.h"

namespace qp::script {

class ScriptTest : public ::testing::Test {
 protected:
  // Runs the text on the session; the status as the command line gives it, parse errors included.
  int run(const QString& text) {
    std::vector<Command> commands;
    ParseError perr;
    if (!parseScript(text, commands, perr)) {
      errors += QString("line %1: %2\n").arg(perr.line).arg(perr.message);
      return 2;
    }
    const int status = runner.runAll(commands);
    out.flush();
    err.flush();
    return status;
  }
  frmCanvas& f() { return session.program().f; }

  QString printed, errors;
  QTextStream out{&printed}, err{&errors};
  HeadlessSession session{1, QSize(1280, 1024), out};
  Runner runner{session.program(), session.rt(), session, out, err};
};

}  // namespace qp::script
