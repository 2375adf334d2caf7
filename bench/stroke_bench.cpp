// The whole stroke path of the Pencil on a 4096 x 4096 canvas: one move event (common steps, colour
// step, one segment) beside the bare Line call it makes, at widths 1, 8 and 40. A move must cost
// the drawing it does plus a small constant, never a canvas copy.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstring>
#include <memory>
#include <vector>

#include "bench/CanvasSession.h"
#include "bench/Summary.h"
#include "core/Undo.h"
#include "platform/Memory.h"

namespace {

using qp::bench::kMoves;
using qp::bench::kSide;
using qp::bench::zigzagX;
using qp::bench::zigzagY;

struct Session : qp::bench::CanvasSession {
  explicit Session(int width) : CanvasSession(&qp::frmCanvas::mPencil, width) {}
};

void BM_PencilMove(benchmark::State& state) {
  Session s(static_cast<int>(state.range(0)));
  auto& pic = s.program->f.PicPaint;
  for (auto _ : state) {
    state.PauseTiming();
    pic.raiseMouseDown(1, 0, zigzagX(0), zigzagY(0));  // the press bakes the canvas once per stroke
    state.ResumeTiming();
    for (int i = 1; i <= kMoves; ++i) pic.raiseMouseMove(1, 0, zigzagX(i), zigzagY(i));
    state.PauseTiming();
    pic.raiseMouseUp(1, 0, zigzagX(kMoves), zigzagY(kMoves));
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
    for (int i = 1; i <= kMoves; ++i)
      pic.Line(zigzagX(i - 1), zigzagY(i - 1), zigzagX(i), zigzagY(i), 0xFFFFFF);
  state.SetItemsProcessed(state.iterations() * kMoves);
}
BENCHMARK(BM_BareLines)->Arg(1)->Arg(8)->Arg(40)->Unit(benchmark::kMillisecond);

void BM_PencilPressRelease(benchmark::State& state) {
  Session s(1);
  auto& pic = s.program->f.PicPaint;
  for (auto _ : state) {
    pic.raiseMouseDown(1, 0, zigzagX(0), zigzagY(0));
    pic.raiseMouseUp(1, 0, zigzagX(0), zigzagY(0));
  }
}
BENCHMARK(BM_PencilPressRelease)->Unit(benchmark::kMillisecond);

// The undo snapshot of a press followed by one small segment, beside one plain copy of the canvas.
void BM_SnapshotThenLine(benchmark::State& state) {
  Session s(1);
  auto& pic = s.program->f.PicPaint;
  for (auto _ : state) {
    qp::TakeUndoSnapshot(s.program->s);
    pic.Line(zigzagX(0), zigzagY(0), zigzagX(1), zigzagY(1), 0xFFFFFF);
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
