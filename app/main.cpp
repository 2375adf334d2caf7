// Quillora Pro: starts the main window on the desktop, or runs, records or demonstrates a script.
//   quillora                          the program in a window
//   quillora --script FILE [--show] [--screen WxH]   run a script (FILE "-" is standard input)
//   quillora --record FILE            the program in a window, writing the user's input to FILE
//   quillora --demo [OUT.bmp]         paint the bundled demo headless and save it
//   quillora --monkey N SEED          N random inputs, to see that the program survives them
//   quillora [--script FILE] PICTURE  opens PICTURE first, as if it were dropped on the canvas
#include <QApplication>
#include <QByteArray>
#include <QDateTime>
#include <QSize>
#include <QTextStream>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "platform/Memory.h"
#include "platform/qt/FormView.h"
#include "platform/qt/QtRuntime.h"
#include "script/CommandLine.h"
#include "app/Program.h"
#include "app/OpenFiles.h"
#include "files/Recovery.h"
#include "script/DrivenWindow.h"

namespace {

// A desktop session needs a display; without one Qt would stop with a backtrace of its own.
bool haveDisplay() {
  if (!qgetenv("QT_QPA_PLATFORM").isEmpty()) return true;  // the user chose a platform
  return !qgetenv("DISPLAY").isEmpty() || !qgetenv("WAYLAND_DISPLAY").isEmpty();
}

int usage() {
  std::fprintf(stderr,
               "usage: quillora [--script FILE [--show] [--screen WxH] | --record FILE | --demo [OUT.bmp] |\n"
               "                 --monkey N SEED] [PICTURE]\n");
  return 2;
}

struct Options {
  enum Mode { Window, Script, Record, Demo, Monkey } mode = Window;
  QString file;
  bool show = false;
  QSize screen{1280, 1024};
  long long events = 0;
  unsigned long seed = 1;
  QStringList pictures;  // named after the options: opened on the canvas
};

bool parse(int argc, char** argv, Options& o) {
  for (int i = 1; i < argc; ++i) {
    const char* a = argv[i];
    const bool more = i + 1 < argc;
    if (!std::strcmp(a, "--script") && more) { o.mode = Options::Script; o.file = argv[++i]; }
    else if (!std::strcmp(a, "--record") && more) { o.mode = Options::Record; o.file = argv[++i]; }
    else if (!std::strcmp(a, "--show")) o.show = true;
    else if (!std::strcmp(a, "--demo")) {
      o.mode = Options::Demo;
      o.file = more && argv[i + 1][0] != '-' ? argv[++i] : "demo.bmp";
    } else if (!std::strcmp(a, "--screen") && more) {
      o.screen = qp::script::parseScreenSize(QString(argv[++i]));
      if (o.screen.isEmpty()) return false;
    } else if (!std::strcmp(a, "--monkey") && i + 2 < argc) {
      o.mode = Options::Monkey;
      bool ok1 = false, ok2 = false;
      o.events = QByteArray(argv[++i]).toLongLong(&ok1);
      o.seed = QByteArray(argv[++i]).toULong(&ok2);
      if (!ok1 || !ok2 || o.events < 0) return false;
    } else if (a[0] != '-') {
      o.pictures << QString::fromLocal8Bit(a);
    } else {
      return false;
    }
  }
  return o.pictures.isEmpty() || o.mode == Options::Window || o.mode == Options::Script;
}

}  // namespace

int main(int argc, char** argv) {
  qp::keepPictureMemoryForReuse();
  // Hidden: the window driven by a script, recovery copy and all (tests crash it on purpose).
  if (argc == 3 && !std::strcmp(argv[1], "--drive")) {
    QApplication app(argc, argv);
    return qp::script::runDrivenWindow(QString::fromLocal8Bit(argv[2]));
  }
  Options o;
  if (!parse(argc, argv, o)) return usage();
  const bool headless = o.mode == Options::Demo || o.mode == Options::Monkey || (o.mode == Options::Script && !o.show);
  if (headless) {
    // No window is shown; the offscreen platform still gives fonts and drawing as on screen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
  } else if (!haveDisplay()) {
    std::fprintf(stderr,
                 "Quillora Pro needs a display to show its window, and none was found (DISPLAY and\n"
                 "WAYLAND_DISPLAY are empty). Start it from a desktop session, or give it a virtual\n"
                 "screen: xvfb-run -a scripts/run.sh. Without one, `quillora --demo` paints the demo\n"
                 "picture and `quillora --script FILE` runs a script.\n");
    return 1;
  }
  QApplication app(argc, argv);
  QApplication::setApplicationName("Quillora Pro");
  QGuiApplication::setDesktopFileName("org.quillora.QuilloraPro");  // the menu entry's icon and name
  switch (o.mode) {
    case Options::Script: return qp::script::runScript(o.file, o.show, o.screen, o.pictures);
    case Options::Record: return qp::script::runRecording(o.file);
    case Options::Demo: return qp::script::runDemo(o.file);
    case Options::Monkey: return qp::script::runMonkey(o.events, static_cast<std::uint32_t>(o.seed));
    case Options::Window: break;
  }
  qp::QtRuntime runtime(static_cast<std::uint32_t>(QDateTime::currentMSecsSinceEpoch()));
  qp::Program program(runtime.rt(), [] { QApplication::exit(0); });
  qp::FormView view(program.f);
  // The other windows each have a view of their own; each shows itself when its form does.
  qp::FormView fileView(program.w.file);
  qp::FormView layoutView(program.w.lo);
  qp::FormView tileView(program.w.tile);
  qp::FormView blendView(program.w.blend);
  qp::FormView stretchView(program.w.stretch);
  qp::FormView blueView(program.w.blue);
  qp::FormView fullView(program.w.full);
  program.start();
  view.sync();
  view.window().show();
  // The canvas is kept safe from a crash from here on; a clean exit removes the copy.
  qp::RecoveryKeeper recovery(program.s, qp::recoveryFolder(), qp::recoveryDelayMs());
  recovery.offer();
  if (program.quitRequested()) return 0;
  // Once the window is up, so that a message about the picture shows over it.
  QTimer::singleShot(0, [&] {
    QApplication::setActiveWindow(&view.window());
    QTextStream err(stderr);
    qp::openCommandLineFiles(program, o.pictures, err);
  });
  return QApplication::exec();
}
