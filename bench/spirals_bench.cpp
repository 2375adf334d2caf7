// The spirals through the whole program, each beside the bare drawing calls it makes:
// - a whole-canvas GeoSpiralz drawing with its pacing off, beside the Line calls of the same figure
//   (and the paced drawing once, on the real clock, as a user waits for it);
// - a Freehand Spiralz move event beside the PSet and Line calls of one pass;
// - a full-screen move event at 1920 x 1080 and at 3840 x 2160 drawing rings of the same size in
//   pixels, which must cost the same: nothing in a move depends on the surface's size.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cmath>
#include <cstdio>
#include <map>
#include <memory>
#include <string>

#include "bench/Summary.h"
#include "platform/Headless.h"
#include "platform/Memory.h"
#include "platform/qt/QtRuntime.h"
#include "tools/FreehandSpiral.h"
#include "tools/GeoSpiral.h"
#include "app/Program.h"

namespace {

constexpr int kSide = 4096;

template <class Runtime>
struct Session {
  Runtime runtime;
  std::unique_ptr<qp::Program> program;
  Session() {
    program = std::make_unique<qp::Program>(runtime.rt());
    program->start();
    program->m.CurrentFile = "bench.bmp";  // a titled canvas keeps its own size
  }
  qp::frmCanvas& f() { return program->f; }
};

using Headless = Session<qp::HeadlessRuntime>;

// The real loop and clock, with message boxes that answer by themselves (no screen to show them).
struct RealClockRuntime {
  qp::QtLoop loop;
  qp::Random rnd;
  qp::HeadlessMessageBoxes msgbox;
  qp::MemoryClipboard clipboard;
  qp::FixedScreen screen;
  qp::Runtime runtime{loop, rnd, msgbox, clipboard, screen};
  qp::Runtime& rt() { return runtime; }
};

void geoSetUp(Headless& s, int density) {
  s.f().mSpir2.raiseClick();
  s.f().vColmode.Value = 0;
  s.f().PicPaint.Width = kSide * 15;
  s.f().PicPaint.Height = kSide * 15;
  s.f().vVal1.Value = 0;
  s.f().vVal2.Value = 5;
  s.f().vVal3.Value = density;
}

void BM_GeoSpiralUnpaced(benchmark::State& state) {
  Headless s;
  geoSetUp(s, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    double Angle = 0.01;
    qp::DrawGeoSpiral(s.program->s, Angle, qp::SpiralPace::Unpaced);
  }
}
BENCHMARK(BM_GeoSpiralUnpaced)->Arg(3)->Arg(8)->Unit(benchmark::kMillisecond);

// The same figure's points and Line calls, with nothing around them.
void BM_GeoSpiralBareLines(benchmark::State& state) {
  Headless s;
  const int D = static_cast<int>(state.range(0));
  geoSetUp(s, D);
  qp::PictureBox& pic = s.f().PicPaint;
  const double cx = pic.ScaleWidth * 0.5, cy = pic.ScaleHeight * 0.5;
  const double radius = (pic.Width < pic.ScaleHeight ? pic.ScaleWidth : pic.ScaleHeight) * 0.45;
  const double step = 6.283185308 * (1.0 - 1.0 / 72) / D;
  for (auto _ : state) {
    double angle = 0.01, px = 0, py = 0;
    for (int i = 1; i <= D * 72 + 1; ++i) {
      angle += step;
      const double r = qp::SpiralEquation(0, 0, radius, 5, i, angle);
      const double x = cx + std::cos(angle) * r, y = cy + std::sin(angle) * r;
      if (i > 1) pic.Line(static_cast<float>(x), static_cast<float>(y), static_cast<float>(px), static_cast<float>(py), 0xFFFFFF);
      px = x;
      py = y;
    }
  }
}
BENCHMARK(BM_GeoSpiralBareLines)->Arg(3)->Arg(8)->Unit(benchmark::kMillisecond);

// With its pacing, on the real clock: what the user waits for.
void BM_GeoSpiralPacedRealClock(benchmark::State& state) {
  Session<RealClockRuntime> s;
  s.f().mSpir2.raiseClick();
  s.f().vColmode.Value = 0;
  s.f().vVal3.Value = static_cast<int>(state.range(0));
  for (auto _ : state) {
    double Angle = 0.01;
    qp::DrawGeoSpiral(s.program->s, Angle);
  }
}
BENCHMARK(BM_GeoSpiralPacedRealClock)->Arg(3)->Arg(8)->Iterations(1)->UseRealTime()->Unit(benchmark::kMillisecond);

// Moves that sweep the spiral's square, in its units.
qp::Single sx(int i) { return static_cast<qp::Single>(260 + (i * 37) % 200); }
qp::Single sy(int i) { return static_cast<qp::Single>(240 - (i * 53) % 180); }

void freehandSetUp(Headless& s) {
  s.f().vColmode.Value = 1;  // Rainbow, as the mode starts
  s.f().PicPaint.Width = kSide * 15;
  s.f().PicPaint.Height = kSide * 15;
  s.f().mSpr3.raiseClick();
  s.f().ckVal.Value = 0;  // Radial
  s.program->m.SpiralStep = 72;
  s.f().pPix.raiseMouseDown(1, 0, sx(0), sy(0));
}

void BM_FreehandMove(benchmark::State& state) {
  Headless s;
  freehandSetUp(s);
  int i = 1;
  for (auto _ : state) {
    s.f().pPix.raiseMouseMove(1, 0, sx(i), sy(i));
    ++i;
  }
}
BENCHMARK(BM_FreehandMove);

// One pass's PSet and Line calls, with its ring and the remembered one computed as the move does.
void BM_FreehandBarePass(benchmark::State& state) {
  Headless s;
  freehandSetUp(s);
  qp::PictureBox& pix = s.f().pPix;
  int i = 1;
  double lastR = 0, lastA = 0;
  for (auto _ : state) {
    const double dx = 250 - sx(i), dy = 250 - sy(i);
    const double r = std::round(std::sqrt(dx * dx + dy * dy));
    const double a = std::atan2(sy(i) - 250.0, sx(i) - 250.0);
    const float step = 6.2831853f / 72;
    for (float t = 0; t <= 6.2831853f; t += step) {
      pix.PSet(static_cast<float>(r * std::cos(t + a) + 250), static_cast<float>(r * std::sin(t + a) + 250), 0xFFFFFF);
      pix.Line(static_cast<float>(lastR * std::cos(t + lastA) + 250), static_cast<float>(lastR * std::sin(t + lastA) + 250),
               pix.CurrentX, pix.CurrentY, 0xFFFFFF);
    }
    lastR = r;
    lastA = a;
    ++i;
  }
}
BENCHMARK(BM_FreehandBarePass);

// The full-screen window's move on screens of two sizes.
void BM_FullScreenMove(benchmark::State& state) {
  Headless s;
  s.runtime.screen.setSize(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  s.program->m.SpiralStep = 72;
  s.f().ckVal.Value = 0;
  int code = 120;
  s.f().KeyDown(code, 0);  // F9 in Freehand Spiralz
  qp::PictureBox& pix = s.program->w.full.pPix;
  // The square stretches over the surface; moves nearer its centre on the larger screen keep the
  // rings the same size in pixels, so that both sizes draw the same number of pixels.
  const double k = 1920.0 / static_cast<double>(state.range(0));
  auto at = [k](qp::Single v) { return static_cast<qp::Single>(250 + (v - 250) * k); };
  pix.raiseMouseDown(1, 0, at(sx(0)), at(sy(0)));
  int i = 1;
  for (auto _ : state) {
    pix.raiseMouseMove(1, 0, at(sx(i)), at(sy(i)));
    ++i;
  }
}
BENCHMARK(BM_FullScreenMove)->Args({1920, 1080})->Args({3840, 2160});

}  // namespace

int main(int argc, char** argv) {
  qp::keepPictureMemoryForReuse();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  qp::bench::printSummary(collector, {
      {"BM_GeoSpiralUnpaced/3", "BM_GeoSpiralBareLines/3"},
      {"BM_GeoSpiralUnpaced/8", "BM_GeoSpiralBareLines/8"},
      {"BM_FreehandMove", "BM_FreehandBarePass"},
      {"BM_FullScreenMove/3840/2160", "BM_FullScreenMove/1920/1080"},
  });
  for (const char* paced : {"BM_GeoSpiralPacedRealClock/3", "BM_GeoSpiralPacedRealClock/8"})
    if (const double t = collector.ns(paced, qp::bench::Clock::Wall); t >= 0)
      std::printf("%-34s %11.0f ms as the user waits\n", paced, t / 1e6);
  benchmark::Shutdown();
  return 0;
}
