// Quillora Pro: starts the main window on the desktop.
#include <QApplication>
#include <QByteArray>
#include <QDateTime>
#include <cstdio>

#include "platform/qt/FormView.h"
#include "platform/qt/QtRuntime.h"
#include "ui/Program.h"

namespace {

// A desktop session needs a display; without one Qt would stop with a backtrace of its own.
bool haveDisplay() {
  if (!qgetenv("QT_QPA_PLATFORM").isEmpty()) return true;  // the user chose a platform
  return !qgetenv("DISPLAY").isEmpty() || !qgetenv("WAYLAND_DISPLAY").isEmpty();
}

}  // namespace

int main(int argc, char** argv) {
  if (!haveDisplay()) {
    std::fprintf(stderr,
                 "Quillora Pro needs a display to show its window, and none was found (DISPLAY and\n"
                 "WAYLAND_DISPLAY are empty). Start it from a desktop session, or give it a virtual\n"
                 "screen: xvfb-run -a scripts/run.sh\n");
    return 1;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName("Quillora Pro");
  qp::QtRuntime runtime(static_cast<std::uint32_t>(QDateTime::currentMSecsSinceEpoch()));
  qp::Program program(runtime.rt(), [] { QApplication::exit(0); });
  qp::FormView view(program.f);
  program.start();
  view.sync();
  view.window().show();
  if (program.quitRequested()) return 0;
  return QApplication::exec();
}
