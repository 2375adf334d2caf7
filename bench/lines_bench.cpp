// The mirrors, the spray and the filled shapes on a 4096 x 4096 canvas, each beside the plain work
// it stands for, in the same run: a Mirrors N More move event beside the bare Line calls it makes,
// an AirBrush tick beside its bare PSet, a filled circle of radius 1,000 (solid and hatched) beside
// QPainter's drawEllipse with a brush, and a hatched fill of the whole canvas beside a canvas copy.
// The table at the end gives each as a multiple of its reference, in CPU time.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/CanvasSession.h"
#include "bench/Summary.h"
#include "platform/Memory.h"
#include "tools/Freehand.h"

namespace {

using qp::bench::kMoves;
using qp::bench::kSide;
using qp::bench::zigzagX;
using qp::bench::zigzagY;

struct Session : qp::bench::CanvasSession {
  explicit Session(qp::Menu qp::frmCanvas::*mode) : CanvasSession(mode, 1) {}
};

// ---- Mirrors N More: the main segment and both mirrors with the centre copy twice ----

void BM_MirrorMove(benchmark::State& state) {
  Session s(&qp::frmCanvas::mGpen);
  s.program->f.ckVal2.Value = 1;  // freehand: the segments chain
  auto& pic = s.pic();
  for (auto _ : state) {
    state.PauseTiming();
    pic.raiseMouseDown(1, 0, zigzagX(0), zigzagY(0));
    state.ResumeTiming();
    for (int i = 1; i <= kMoves; ++i) pic.raiseMouseMove(1, 0, zigzagX(i), zigzagY(i));
    state.PauseTiming();
    pic.raiseMouseUp(1, 0, zigzagX(kMoves), zigzagY(kMoves));
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kMoves);
}
BENCHMARK(BM_MirrorMove)->Unit(benchmark::kMillisecond);

void BM_RefMirrorLines(benchmark::State& state) {
  Session s(&qp::frmCanvas::mGpen);
  auto& pic = s.pic();
  pic.DrawWidth = 1;
  const qp::Single W = kSide * 15, H = kSide * 15;
  for (auto _ : state) {
    for (int i = 1; i <= kMoves; ++i) {
      const qp::Single x0 = zigzagX(i - 1), y0 = zigzagY(i - 1), x1 = zigzagX(i), y1 = zigzagY(i);
      pic.Line(x0, y0, x1, y1, 0xFFFFFF);
      pic.Line(W - x0, y0, W - x1, y1, 0xFFFFFF);
      pic.Line(W - x0, H - y0, W - x1, W - y1, 0xFFFFFF);
      pic.Line(x0, H - y0, x1, W - y1, 0xFFFFFF);
      pic.Line(W - x0, H - y0, W - x1, W - y1, 0xFFFFFF);
    }
  }
  state.SetItemsProcessed(state.iterations() * kMoves);
}
BENCHMARK(BM_RefMirrorLines)->Unit(benchmark::kMillisecond);

// ---- AirBrush: ticks at the largest spread, beside PSets at points of the same spread ----

constexpr int kTicks = 10000;

void BM_AirTick(benchmark::State& state) {
  Session s(&qp::frmCanvas::mAir);
  s.program->f.vVal1.Value = 160;
  s.program->m.LastX = kSide * 15 / 2;
  s.program->m.LastY = kSide * 15 / 2;
  for (auto _ : state)
    for (int i = 0; i < kTicks; ++i) qp::tAir_Timer(s.program->s);
  state.SetItemsProcessed(state.iterations() * kTicks);
}
BENCHMARK(BM_AirTick)->Unit(benchmark::kMillisecond);

void BM_RefAirPSet(benchmark::State& state) {
  Session s(&qp::frmCanvas::mAir);
  auto& pic = s.pic();
  std::vector<QPointF> points;
  for (int i = 0; i < kTicks; ++i) {
    const double d = (i % 161) * 18.0, a = i * 0.7;
    points.emplace_back(kSide * 15 / 2 + d * std::cos(a), kSide * 15 / 2 - d * std::sin(a));
  }
  for (auto _ : state)
    for (const QPointF& p : points) pic.PSet(static_cast<qp::Single>(p.x()), static_cast<qp::Single>(p.y()), 0xFFFFFF);
  state.SetItemsProcessed(state.iterations() * kTicks);
}
BENCHMARK(BM_RefAirPSet)->Unit(benchmark::kMillisecond);

// ---- filled circles on a picture box in pixels ----

struct Canvas {
  qp::HeadlessRuntime headless;
  qp::Form form{headless.rt(), "frmBench"};
  qp::PictureBox box{&form, nullptr, "pBench"};
  Canvas() {
    box.BackColor = 0x000000;
    box.Width = kSide * 15.0f;
    box.Height = kSide * 15.0f;
    box.ScaleMode = 3;
    box.FillColor = 0x00FF00;
  }
};

Canvas& canvas() {
  static Canvas c;
  return c;
}

// Range: the fill style (0 solid, 7 diagonal cross).
void BM_FilledCircle(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  b.FillStyle = static_cast<int>(state.range(0));
  for (auto _ : state) b.Circle(2048, 2048, 1000, 0xFFFFFF);
}
BENCHMARK(BM_FilledCircle)->DenseRange(2, 7)->Arg(0)->Unit(benchmark::kMillisecond);

void BM_RefDrawEllipseBrush(benchmark::State& state) {
  static QImage img = [] {
    QImage i(kSide, kSide, QImage::Format_RGB32);
    i.fill(Qt::black);
    return i;
  }();
  for (auto _ : state) {
    QPainter p(&img);
    p.setPen(Qt::white);
    p.setBrush(Qt::green);
    p.drawEllipse(QPointF(2048.5, 2048.5), 1000, 1000);
  }
}
BENCHMARK(BM_RefDrawEllipseBrush)->Unit(benchmark::kMillisecond);

// A circle round the whole canvas: every pixel is inside it.
void BM_HatchedCanvas(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  b.FillStyle = static_cast<int>(state.range(0));
  for (auto _ : state) b.Circle(2048, 2048, 2900, 0xFFFFFF);
}
BENCHMARK(BM_HatchedCanvas)->DenseRange(2, 7)->Unit(benchmark::kMillisecond);

void BM_RefCanvasCopy(benchmark::State& state) {
  QImage from(kSide, kSide, QImage::Format_RGB32), to(kSide, kSide, QImage::Format_RGB32);
  from.fill(Qt::black);
  to.fill(Qt::black);
  for (auto _ : state) {
    std::memcpy(to.bits(), from.constBits(), static_cast<size_t>(from.sizeInBytes()));
    benchmark::DoNotOptimize(to.bits());
  }
}
BENCHMARK(BM_RefCanvasCopy)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qp::keepPictureMemoryForReuse();  // as the program does
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  qp::bench::printSummary(collector, {
      {"BM_MirrorMove", "BM_RefMirrorLines"},
      {"BM_AirTick", "BM_RefAirPSet"},
      {"BM_FilledCircle/0", "BM_RefDrawEllipseBrush", 1.5},
      {"BM_FilledCircle/2", "BM_RefDrawEllipseBrush", 1.5},
      {"BM_FilledCircle/3", "BM_RefDrawEllipseBrush", 1.5},
      {"BM_FilledCircle/4", "BM_RefDrawEllipseBrush", 1.5},
      {"BM_FilledCircle/5", "BM_RefDrawEllipseBrush", 1.5},
      {"BM_FilledCircle/6", "BM_RefDrawEllipseBrush", 1.5},
      {"BM_FilledCircle/7", "BM_RefDrawEllipseBrush", 1.5},
      {"BM_HatchedCanvas/2", "BM_RefCanvasCopy", 3},
      {"BM_HatchedCanvas/3", "BM_RefCanvasCopy", 3},
      {"BM_HatchedCanvas/4", "BM_RefCanvasCopy", 3},
      {"BM_HatchedCanvas/5", "BM_RefCanvasCopy", 3},
      {"BM_HatchedCanvas/6", "BM_RefCanvasCopy", 3},
      {"BM_HatchedCanvas/7", "BM_RefCanvasCopy", 3},
  });
  benchmark::Shutdown();
  return 0;
}
