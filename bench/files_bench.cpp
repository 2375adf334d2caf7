// Opening and saving a 4096 x 4096 bitmap through the program (a drop on the canvas, the Explorer
// panel, File > Save and OK) beside Qt's bare QImage load and save of the same file. The program's
// path may add at most about one canvas copy to what Qt itself does.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "bench/Summary.h"
#include "platform/Memory.h"
#include "platform/Headless.h"
#include "app/Program.h"

namespace {

constexpr int kSide = 4096;

QTemporaryDir& folder() {
  static QTemporaryDir dir;
  return dir;
}
QString source() { return folder().filePath("source.bmp"); }

void makeSource() {
  QImage img(kSide, kSide, QImage::Format_RGB32);
  for (int y = 0; y < kSide; ++y) {
    auto* line = reinterpret_cast<QRgb*>(img.scanLine(y));
    for (int x = 0; x < kSide; ++x) line[x] = qRgb(x & 255, y & 255, (x ^ y) & 255);
  }
  img.save(source(), "BMP");
}

struct Session {
  qp::HeadlessRuntime headless;
  std::unique_ptr<qp::Program> program;
  Session() {
    program = std::make_unique<qp::Program>(headless.rt());
    program->start();
    program->f.mPencil.raiseClick();
  }
};

// A second of each, so the allocator's first growth to the working size of three pictures is a
// small part of the figure rather than most of it.
void BM_QtLoad(benchmark::State& state) {
  for (auto _ : state) {
    QImage img(source());
    benchmark::DoNotOptimize(img.constBits());
  }
}
BENCHMARK(BM_QtLoad)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_DropOnCanvas(benchmark::State& state) {
  Session s;
  // The first picture of this size grows the canvas and its undo holder once: not the load's work.
  s.program->f.PicPaint.OLEDragDrop({source()}, qp::vbLeftButton, 0, 0, 0);
  for (auto _ : state) s.program->f.PicPaint.OLEDragDrop({source()}, qp::vbLeftButton, 0, 0, 0);
  if (s.program->f.PicPaint.pixelWidth() != kSide) state.SkipWithError("the picture did not load");
}
BENCHMARK(BM_DropOnCanvas)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_OpenThroughExplorer(benchmark::State& state) {
  Session s;
  qp::frmCanvas& f = s.program->f;
  f.Dir1.Path = folder().path();  // the panel keeps its folder: listing it is not the open's work
  auto open = [&f] {
    f.mnuOpen.raiseClick();
    f.File1.ListIndex = static_cast<int>(f.File1.items().indexOf("source.bmp"));
    f.File1.raiseMouseDown(qp::vbLeftButton, 0, 0, 0);
    f.cPic.raiseClick();
  };
  open();  // the first picture of this size grows the canvas and its undo holder once
  for (auto _ : state) open();
  if (f.PicPaint.pixelWidth() != kSide) state.SkipWithError("the picture did not load");
}
BENCHMARK(BM_OpenThroughExplorer)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_QtSave(benchmark::State& state) {
  const QImage img(source());
  for (auto _ : state) img.save(folder().filePath("qt.bmp"), "BMP");
}
BENCHMARK(BM_QtSave)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_SaveFromMenu(benchmark::State& state) {
  Session s;
  qp::frmCanvas& f = s.program->f;
  f.PicPaint.OLEDragDrop({source()}, qp::vbLeftButton, 0, 0, 0);
  qp::frmFile& d = s.program->w.file;
  f.mnuSave.raiseClick();
  d.Dir1.Path = folder().path();  // the window keeps its folder after a save
  d.Visible = false;
  for (auto _ : state) {
    f.mnuSave.raiseClick();
    d.TxtFile.Text = "program";
    d.cmdOK.raiseClick();
  }
  if (d.Visible) state.SkipWithError("the save did not finish");
}
BENCHMARK(BM_SaveFromMenu)->Unit(benchmark::kMillisecond)->MinTime(1.0);

// One canvas copy, for scale: what "one extra copy" costs.
void BM_RefCanvasCopy(benchmark::State& state) {
  const QImage img(source());
  for (auto _ : state) {
    QImage copy = img.copy();
    benchmark::DoNotOptimize(copy.constBits());
  }
}
BENCHMARK(BM_RefCanvasCopy)->Unit(benchmark::kMillisecond)->MinTime(1.0);

// Keyed by the function's name alone: the full name carries the "/min_time:1.000" suffix.
// Beside the rows, how many canvas copies each path costs beyond Qt's own load or save. Files
// are read and written on the wall clock: the disk's time is part of what the user waits for.
void extraCopies(const qp::bench::Collector& c) {
  using qp::bench::Clock;
  const double copy = c.ns("BM_RefCanvasCopy", Clock::Wall);
  if (copy <= 0) return;
  for (const auto& [op, ref] : {std::pair{"BM_DropOnCanvas", "BM_QtLoad"}, std::pair{"BM_OpenThroughExplorer", "BM_QtLoad"},
                                std::pair{"BM_SaveFromMenu", "BM_QtSave"}}) {
    const double a = c.ns(op, Clock::Wall), b = c.ns(ref, Clock::Wall);
    if (a >= 0 && b > 0) std::printf("%-34s %8.2f canvas copies beyond %s\n", op, (a - b) / copy, ref);
  }
  std::printf("(one canvas copy: %.1f ms)\n", copy / 1e6);
}

}  // namespace

int main(int argc, char** argv) {
  qp::keepPictureMemoryForReuse();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  makeSource();
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector c;
  benchmark::RunSpecifiedBenchmarks(&c);
  using qp::bench::Clock;
  qp::bench::printSummary(c, {
      {"BM_DropOnCanvas", "BM_QtLoad", 0, Clock::Wall},
      {"BM_OpenThroughExplorer", "BM_QtLoad", 0, Clock::Wall},
      {"BM_SaveFromMenu", "BM_QtSave", 0, Clock::Wall},
  });
  extraCopies(c);
  benchmark::Shutdown();
  return 0;
}
