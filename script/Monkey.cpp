// The monkey: random inputs, seeded so that any failure replays, over every menu item, control
// and surface of the program. It checks that the program survives whatever a user could do:
// no crash, no hang, no report from the sanitizers, no failure escaping a handler's error trap.
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QTemporaryDir>
#include <QTextStream>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <random>
#include <thread>

#include "platform/Controls.h"
#include "platform/Timer.h"
#include "script/CommandLine.h"
#include "script/Sessions.h"
#include "surface/PictureBox.h"
#include "app/Program.h"

namespace qp::script {

namespace {

// A hang is an input that does not come back: the watchdog ends the run, naming the seed.
class Watchdog {
 public:
  Watchdog(std::uint32_t seed, const std::atomic<long long>& progress, int seconds)
      : thread_([this, seed, &progress, seconds] {
          std::unique_lock lock(m_);
          long long last = -1;
          while (!done_) {
            if (cv_.wait_for(lock, std::chrono::seconds(seconds), [this] { return done_; })) return;
            const long long now = progress.load();
            if (now == last) {
              std::fprintf(stderr, "monkey: no progress for %d s at event %lld; seed %u hangs\n", seconds, now, seed);
              std::fflush(stderr);
              std::_Exit(3);
            }
            last = now;
          }
        }) {}
  ~Watchdog() {
    {
      std::lock_guard lock(m_);
      done_ = true;
    }
    cv_.notify_all();
    thread_.join();
  }

 private:
  std::mutex m_;
  std::condition_variable cv_;
  bool done_ = false;
  std::thread thread_;
};

class Monkey {
 public:
  Monkey(std::uint32_t seed, const QString& pictureFile) : gen_(seed), picture_(pictureFile) {}

  // One random input for the program as it is now.
  Command next(Runner& runner) {
    Command c;
    const int roll = pick(100);
    if (roll < 6) return menuCommand(runner);
    if (roll < 50) return strokeStep(runner);
    if (roll < 62) return keyCommand();
    if (roll < 74) return setCommand(runner, c);
    if (roll < 80) {
      c.op = Op::Click;
      c.name = anyVisual(runner);
      c.button = pick(4) == 0 ? vbRightButton : vbLeftButton;
      return c;
    }
    if (roll < 90) {
      c.op = Op::Wait;
      c.number = pick(6) == 0 ? pick(600) : pick(40);
      return c;
    }
    if (roll < 93) {
      c.op = Op::Drop;
      c.name = pick(2) ? "PicPaint" : "pPix";
      c.text = pick(4) ? picture_ : QString("no-such-picture.bmp");
      return c;
    }
    if (roll < 96) {
      c.op = pick(2) ? Op::ClipboardLoad : Op::ClipboardClear;
      c.text = picture_;
      return c;
    }
    c.op = Op::Focus;
    c.name = anyVisual(runner);
    return c;
  }

 private:
  int pick(int n) { return static_cast<int>(std::uniform_int_distribution<int>(0, n - 1)(gen_)); }

  static std::vector<Control*> all(Runner& runner) {
    std::vector<Control*> out;
    for (Form* f : runner.forms()) {
      out.push_back(f);
      for (Control* c : f->controls()) out.push_back(c);
    }
    return out;
  }
  static QString pathOf(Runner& runner, Control* c) {
    Form* f = c->form() ? c->form() : static_cast<Form*>(c);
    if (f == runner.forms().front()) return c->key();
    return c == f ? f->Name() : f->Name() + "." + c->key();
  }
  template <class Pred>
  QString anyOf(Runner& runner, Pred pred) {
    std::vector<Control*> fit;
    for (Control* c : all(runner))
      if (pred(c)) fit.push_back(c);
    if (fit.empty()) return runner.forms().front()->Name();
    return pathOf(runner, fit[static_cast<std::size_t>(pick(static_cast<int>(fit.size())))]);
  }
  QString anyVisual(Runner& runner) {
    return anyOf(runner, [](Control* c) { return dynamic_cast<VisualControl*>(c) != nullptr; });
  }

  Command menuCommand(Runner& runner) {
    Command c;
    c.op = Op::Menu;
    // Ending the program is a choice too, but it ends the run; it is made rarely.
    c.name = anyOf(runner, [this](Control* x) {
      auto* m = dynamic_cast<Menu*>(x);
      return m && m->items().empty() && (m->Name() != "mnuExit" || pick(50) == 0);
    });
    return c;
  }

  // Strokes on the surfaces mostly, anywhere else sometimes; points a little past the edges too.
  Command strokeStep(Runner& runner) {
    Command c;
    const int kind = pick(10);
    c.op = kind < 2 ? Op::Press : kind < 8 ? Op::Move : Op::Release;
    if (pick(5) == 0) {
      c.name = anyVisual(runner);
    } else {
      static const char* surfaces[] = {"PicPaint", "PicPaint", "PicPaint", "pPix", "pShadTest", "pColor", "pR", "pG", "pB"};
      c.name = surfaces[pick(9)];
    }
    double w = 800, h = 600;
    if (auto* pb = dynamic_cast<PictureBox*>(runner.resolve(c.name))) {
      w = std::max(1, pb->pixelWidth());
      h = std::max(1, pb->pixelHeight());
    }
    c.x = std::uniform_real_distribution<double>(-0.05 * w, 1.05 * w)(gen_);
    c.y = std::uniform_real_distribution<double>(-0.05 * h, 1.05 * h)(gen_);
    if (pick(3) == 0) c.x = std::round(c.x);
    c.hasPoint = true;
    const int b = pick(10);
    c.button = b < 6 ? vbLeftButton : b < 8 ? vbRightButton : b < 9 ? 0 : vbLeftButton | vbRightButton;
    if (c.op != Op::Move && c.button == 0) c.button = vbLeftButton;
    c.shift = pick(6) == 0 ? pick(4) : 0;
    return c;
  }

  Command keyCommand() {
    static const int keys[] = {8, 13, 16, 17, 20, 32, 37, 38, 39, 40, 45, 46, 48, 49, 53, 57, 65, 67, 70, 83,
                               86, 90, 96, 100, 105, 107, 109, 112, 113, 115, 116, 118, 119, 120, 121, 122, 123};
    Command c;
    c.op = Op::Key;
    c.key = keys[pick(static_cast<int>(std::size(keys)))];
    const int a = pick(3);
    c.keyAction = a == 0 ? KeyAction::DownAndUp : a == 1 ? KeyAction::Down : KeyAction::Up;
    c.shift = pick(8) == 0 ? pick(4) : 0;
    return c;
  }

  Command setCommand(Runner& runner, Command& c) {
    c.op = Op::Set;
    c.name = anyOf(runner, [](Control* x) {
      // The folder and drive lists would walk the monkey out of its own folder, and a save there
      // would leave files about the disk; it stays where the run put it.
      if (x->kind() == ControlKind::DirListBox || x->kind() == ControlKind::DriveListBox) return false;
      return dynamic_cast<ScrollBar*>(x) || dynamic_cast<CheckBox*>(x) || dynamic_cast<OptionButton*>(x) ||
             dynamic_cast<ListBox*>(x) || dynamic_cast<TextBox*>(x);
    });
    Control* x = runner.resolve(c.name);
    if (auto* bar = dynamic_cast<ScrollBar*>(x)) {
      c.property = "Value";
      const int lo = std::min<int>(bar->Min, bar->Max), hi = std::max<int>(bar->Min, bar->Max);
      c.text = QString::number(pick(3) == 0 ? (pick(2) ? lo : hi) : lo + pick(hi - lo + 1));
    } else if (auto* list = dynamic_cast<ListBox*>(x)) {
      c.property = "ListIndex";
      c.text = QString::number(pick(list->ListCount() + 1) - 1);
    } else if (dynamic_cast<TextBox*>(x)) {
      c.property = "Text";
      static const char* texts[] = {"", "Quillora", "a", "Hello world", "12345", "\"quoted\" \\ text"};
      c.text = texts[pick(6)];
    } else {
      c.property = "Value";
      c.text = QString::number(dynamic_cast<CheckBox*>(x) ? pick(3) : pick(2));
    }
    return c;
  }

  std::mt19937 gen_;
  QString picture_;
};

}  // namespace

int runMonkey(long long events, std::uint32_t seed) {
  QTextStream out(stdout), err(stderr);
  QString nowhere;
  QTextStream quiet(&nowhere);  // what the run prints is not the point; only that it survives
  QTemporaryDir dir;
  const QString picture = dir.path() + "/monkey.bmp";
  // The program's folder lists start in the working folder, and whatever the monkey saves lands
  // there: its own temporary folder, gone with the run.
  QDir::setCurrent(dir.path());
  {
    QImage img(64, 48, QImage::Format_RGB32);
    for (int y = 0; y < img.height(); ++y)
      for (int x = 0; x < img.width(); ++x) img.setPixel(x, y, qRgb(x * 4, y * 5, (x ^ y) * 8));
    img.save(picture, "BMP");
  }
  err << "monkey: " << events << " events, seed " << seed << " (replay: quillora --monkey " << events << ' '
      << seed << ")" << Qt::endl;
  std::atomic<long long> done{0};
  Watchdog watchdog(seed, done, 60);
  QElapsedTimer clock;
  clock.start();
  Monkey monkey(seed, picture);
  int restarts = 0;
  while (done < events) {
    // A session lasts until the program ends; then a fresh one carries on with the next inputs.
    auto session = std::make_unique<HeadlessSession>(seed + static_cast<std::uint32_t>(restarts), QSize(1280, 1024), quiet);
    Runner runner(session->program(), session->rt(), *session, quiet, quiet);
    runner.setQuietUnreachable(true);
    while (done < events) {
      const Command c = monkey.next(runner);
      const Runner::Outcome o = runner.run(c);
      done.fetch_add(1);
      if (o == Runner::Outcome::Error) {
        err << "monkey: event " << done.load() << " could not run; seed " << seed << Qt::endl;
        return 1;
      }
      if (o == Runner::Outcome::Quit) break;
      nowhere.clear();
    }
    ++restarts;
  }
  out << "monkey: " << events << " events in " << clock.elapsed() << " ms, " << restarts - 1
      << " restarts after the program ended; seed " << seed << ": survived" << Qt::endl;
  return 0;
}

}  // namespace qp::script
