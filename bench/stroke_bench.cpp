// The whole stroke path of the Pencil on a 4096 x 4096 canvas: one move event (common steps, colour
// step, one segment) beside the bare Line call it makes, at widths 1, 8 and 40. A move must cost
// the drawing it does plus a small constant, never a canvas copy.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstring>
#include <memory>
#include <vector>

#include "bench/Summary.h"
#include "core/Undo.h"
#include "platform/Headless.h"
#include "platform/Memory.h"
#include "app/Program.h"

namespace {

constexpr int kSide = 4096;
constexpr int kMoves = 1000;

// A zigzag of 100-pixel segments down the canvas, in twips.
qp::Single px(int i) { return static_cast<qp::Single>((200 + (i % 2) * 100) * 15); }
qp::Single py(int i) { return static_cast<qp::Single>((100 + (i % 1000) * 3) * 15); }

struct Session {
  qp::HeadlessRuntime headless;
  std::unique_ptr<qp::Program> program;
  explicit Session(int width) {
    program = std::make_unique<qp::Program>(headless.rt());
    program->start();
    program->f.mPencil.raiseClick();
    program->f.vColmode.Value = 0;
    program->m.CurrentFile = "bench.bmp";  // a titled canvas keeps its own size
    program->f.PicPaint.Width = kSide * 15;
    program->f.PicPaint.Height = kSide * 15;
    program->f.vPencil.Value = width;
  }
};

void BM_PencilMove(benchmark::State& state) {
  Session s(static_cast<int>(state.range(0)));
  auto& pic = s.program->f.PicPaint;
  for (auto _ : state) {
    state.PauseTiming();
    pic.raiseMouseDown(1, 0, px(0), py(0));  // the press bakes the canvas once per stroke
    state.ResumeTiming();
    for (int i = 1; i <= kMoves; ++i) pic.raiseMouseMove(1, 0, px(i), py(i));
    state.PauseTiming();
    pic.raiseMouseUp(1, 0, px(kMoves), py(kMoves));
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kMoves);
}
BENCHMARK(BM_PencilMove)->Arg(1)->Arg(8)->Arg(40)->Unit(benchmark::kMillisecond);

void BM_BareLines(benchmark::State& state) {
  Session s(static_cast<int>(state.range(0)));
  auto& pic = s.program->f.PicPaint;
  pic.DrawWidth = static_cast<int>(state.range(0));
  for (auto _ : state)
    for (int i = 1; i <= kMoves; ++i) pic.Line(px(i - 1), py(i - 1), px(i), py(i), 0xFFFFFF);
  state.SetItemsProcessed(state.iterations() * kMoves);
}
BENCHMARK(BM_BareLines)->Arg(1)->Arg(8)->Arg(40)->Unit(benchmark::kMillisecond);

void BM_PencilPressRelease(benchmark::State& state) {
  Session s(1);
  auto& pic = s.program->f.PicPaint;
  for (auto _ : state) {
    pic.raiseMouseDown(1, 0, px(0), py(0));
    pic.raiseMouseUp(1, 0, px(0), py(0));
  }
}
BENCHMARK(BM_PencilPressRelease)->Unit(benchmark::kMillisecond);

// The undo snapshot of a press followed by one small segment, beside one plain copy of the canvas.
void BM_SnapshotThenLine(benchmark::State& state) {
  Session s(1);
  auto& pic = s.program->f.PicPaint;
  for (auto _ : state) {
    qp::TakeUndoSnapshot(s.program->s);
    pic.Line(px(0), py(0), px(1), py(1), 0xFFFFFF);
  }
}
BENCHMARK(BM_SnapshotThenLine)->Unit(benchmark::kMillisecond);

void BM_MemcpyCanvas(benchmark::State& state) {
  std::vector<char> a(static_cast<size_t>(kSide) * kSide * 4, 1), b(a.size());
  for (auto _ : state) {
    std::memcpy(b.data(), a.data(), a.size());
    benchmark::DoNotOptimize(b.data());
  }
}
BENCHMARK(BM_MemcpyCanvas)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qp::keepPictureMemoryForReuse();  // as the program does
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  qp::bench::printSummary(collector, {
      {"BM_PencilMove/1", "BM_BareLines/1"},
      {"BM_PencilMove/8", "BM_BareLines/8"},
      {"BM_PencilMove/40", "BM_BareLines/40"},
      {"BM_PencilPressRelease", "BM_SnapshotThenLine"},
      {"BM_SnapshotThenLine", "BM_MemcpyCanvas"},
  });
  benchmark::Shutdown();
  return 0;
}
