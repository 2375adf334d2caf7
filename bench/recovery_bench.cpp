// What keeping the recovery copy costs a stroke: Pencil move events on a 4096 x 4096 canvas with
// the copy armed beside the same events without it. The clock moves a millisecond a move in both,
// so the armed run also pays for its periodic look at the canvas; the copy itself is written only
// after the release, outside the stroke. The ratio is printed at the end.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "bench/CanvasSession.h"
#include "files/Recovery.h"
#include "platform/Memory.h"

namespace {

using qp::bench::kMoves;
using qp::bench::kSide;
using qp::bench::zigzagX;
using qp::bench::zigzagY;

struct Session : qp::bench::CanvasSession {
  QTemporaryDir state;
  std::unique_ptr<qp::RecoveryKeeper> keeper;
  explicit Session(bool armed) : CanvasSession(&qp::frmCanvas::mPencil, 8) {
    if (armed) keeper = std::make_unique<qp::RecoveryKeeper>(program->s, state.path(), 3000);
  }
};

void strokes(benchmark::State& state, bool armed) {
  Session s(armed);
  if (armed && !s.keeper->armed()) state.SkipWithError("the recovery copy could not be armed");
  auto& pic = s.program->f.PicPaint;
  for (auto _ : state) {
    state.PauseTiming();
    pic.raiseMouseDown(1, 0, zigzagX(0), zigzagY(0));
    state.ResumeTiming();
    for (int i = 1; i <= kMoves; ++i) {
      pic.raiseMouseMove(1, 0, zigzagX(i), zigzagY(i));
      s.headless.loop.advance(1);
    }
    state.PauseTiming();
    pic.raiseMouseUp(1, 0, zigzagX(kMoves), zigzagY(kMoves));
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * kMoves);
}

void BM_MovesPlain(benchmark::State& state) { strokes(state, false); }
void BM_MovesRecoveryArmed(benchmark::State& state) { strokes(state, true); }
BENCHMARK(BM_MovesPlain)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_MovesRecoveryArmed)->Unit(benchmark::kMillisecond);

class Collector : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& r : runs)
      if (!r.error_occurred && r.run_type == Run::RT_Iteration) ns[r.benchmark_name()] = r.GetAdjustedCPUTime();
    ConsoleReporter::ReportRuns(runs);
  }
  std::map<std::string, double> ns;
};

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qp::keepPictureMemoryForReuse();
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  const double plain = collector.ns["BM_MovesPlain"], armed = collector.ns["BM_MovesRecoveryArmed"];
  if (plain > 0 && armed > 0)
    std::printf("\n%d moves: %.3f ms plain, %.3f ms with the recovery copy armed, ratio %.3f\n", kMoves,
                plain, armed, armed / plain);
  benchmark::Shutdown();
  return 0;
}
