// The gradient fills and the spheres on a 4096 x 4096 canvas, each beside a plain reference of the
// same work in the same run: the linear ramp beside a canvas copy and QPainter's own linear
// gradient; the diamonds, circles and a sphere beside the bare drawing calls they make. The ratios
// stand at the end of the run.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QLinearGradient>
#include <QPainter>
#include <cstring>
#include <map>
#include <memory>
#include <vector>

#include "bench/Summary.h"
#include "app/Program.h"
#include "platform/Headless.h"
#include "platform/Memory.h"
#include "tools/GradientFill.h"
#include "tools/Spheres.h"

namespace {

constexpr int kSide = 4096;

struct Canvas {
  qp::HeadlessRuntime headless;
  std::unique_ptr<qp::Program> program;
  Canvas() {
    program = std::make_unique<qp::Program>(headless.rt());
    program->start();
    program->f.mtCvShapes.raiseClick();
    program->m.CurrentFile = "bench.bmp";  // a titled canvas keeps its own size
    program->f.PicPaint.Width = kSide * 15;
    program->f.PicPaint.Height = kSide * 15;
    program->m.DrawWidth = 1;
  }
  qp::PictureBox& pic() { return program->f.PicPaint; }
};

Canvas& canvas() {
  static Canvas c;
  return c;
}

// ---- the linear ramp ----

void BM_LinearRamp(benchmark::State& state) {
  qp::PictureBox& pic = canvas().pic();
  for (auto _ : state)
    qp::DrawLinearRamp(pic, 0xFFFFFF, 0x800000, 1, 1, pic.Width, pic.Height, false);
}
BENCHMARK(BM_LinearRamp)->Unit(benchmark::kMillisecond);

// The canvas button: the undo snapshot, then the ramp.
void BM_LinearButton(benchmark::State& state) {
  Canvas& c = canvas();
  c.program->f.vVal1.Value = 3;
  for (auto _ : state) c.program->f.cCan.raiseClick();
}
BENCHMARK(BM_LinearButton)->Unit(benchmark::kMillisecond);

void BM_RefQLinearGradient(benchmark::State& state) {
  QImage img(kSide, kSide, QImage::Format_RGB32);
  for (auto _ : state) {
    QPainter p(&img);
    QLinearGradient g(0, 0, 0, kSide);
    g.setColorAt(0, Qt::white);
    g.setColorAt(1, QColor(0, 0, 128));
    p.fillRect(img.rect(), g);
  }
}
BENCHMARK(BM_RefQLinearGradient)->Unit(benchmark::kMillisecond);

void BM_RefCopyCanvas(benchmark::State& state) {
  std::vector<char> a(static_cast<size_t>(kSide) * kSide * 4, 1), b(a.size());
  for (auto _ : state) {
    std::memcpy(b.data(), a.data(), a.size());
    benchmark::DoNotOptimize(b.data());
  }
}
BENCHMARK(BM_RefCopyCanvas)->Unit(benchmark::kMillisecond);

// ---- diamonds ----

void BM_Diamonds(benchmark::State& state) {
  Canvas& c = canvas();
  qp::EventLoop& loop = c.headless.loop;
  for (auto _ : state)
    qp::DrawDiamonds(c.pic(), 0, [&loop] {
      loop.processEvents();
      return true;
    });
}
BENCHMARK(BM_Diamonds)->Unit(benchmark::kMillisecond);

// The same 256 rings of four lines, in the same colours and pen, and nothing else.
void BM_BareDiamondLines(benchmark::State& state) {
  qp::PictureBox& pic = canvas().pic();
  const float cx = pic.Width / 2.0f, cy = pic.Height / 2.0f;
  pic.DrawWidth = 2;
  for (auto _ : state)
    for (int i = 255; i >= 0; --i) {
      const double lo = 1 - i / 255.0, hi = 1 + i / 255.0;
      const int v = i == 255 ? 0 : 254 - i;  // the colour changes after each ring
      const qp::Colour c = qp::RGB(v, v, v);
      pic.Line(cx * lo, cy, cx, cy * lo, c);
      pic.LineTo(cx * hi, cy, c);
      pic.LineTo(cx, cy * hi, c);
      pic.LineTo(cx * lo, cy, c);
    }
}
BENCHMARK(BM_BareDiamondLines)->Unit(benchmark::kMillisecond);

// ---- circles ----

void BM_Circles(benchmark::State& state) {
  qp::PictureBox& pic = canvas().pic();
  for (auto _ : state) qp::DrawGradientCircles(pic, 0xFFFFFF, 0x000000, 1.0, 5);
  pic.ScaleMode = 1;
  pic.DrawStyle = 0;
}
BENCHMARK(BM_Circles)->Unit(benchmark::kMillisecond);

void BM_BareCircles(benchmark::State& state) {
  qp::PictureBox& pic = canvas().pic();
  pic.Cls();
  pic.DrawStyle = 6;
  pic.ScaleMode = 3;
  pic.DrawWidth = 5;
  pic.ScaleHeight = 512;
  pic.ScaleWidth = 512;
  for (auto _ : state) {
    pic.Cls();
    for (int i = 0; i <= 255; ++i) pic.Circle(256, 256, float(i + 2), qp::RGB(255 - i, 255 - i, 255 - i));
  }
  pic.ScaleMode = 1;
  pic.DrawStyle = 0;
}
BENCHMARK(BM_BareCircles)->Unit(benchmark::kMillisecond);

// ---- one sphere of the largest radius ----

void BM_Sphere(benchmark::State& state) {
  Canvas& c = canvas();
  c.program->f.mBallz.raiseClick();
  c.program->f.vVal1.Value = 500;
  c.program->f.vVal2.Value = 1;  // 256 rings, out to 255 pixels
  const float mid = kSide * 15 / 2.0f;
  for (auto _ : state) qp::DrawSphere(c.program->s, mid, mid);
  c.program->f.mtCvShapes.raiseClick();
}
BENCHMARK(BM_Sphere)->Unit(benchmark::kMillisecond);

void BM_BareSphereCircles(benchmark::State& state) {
  qp::PictureBox& pic = canvas().pic();
  pic.DrawWidth = 3;
  const float mid = kSide * 15 / 2.0f;
  for (auto _ : state)
    for (int i = 0; i <= 255; ++i) pic.Circle(mid, mid, float(i * 15), qp::RGB(255 - i, 255 - i, 255 - i), {}, {}, 1.0);
}
BENCHMARK(BM_BareSphereCircles)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qp::keepPictureMemoryForReuse();
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  qp::bench::printSummary(collector, {
      {"BM_LinearRamp", "BM_RefCopyCanvas"},
      {"BM_LinearButton", "BM_RefCopyCanvas"},
      {"BM_LinearRamp", "BM_RefQLinearGradient"},
      {"BM_Diamonds", "BM_BareDiamondLines"},
      {"BM_Circles", "BM_BareCircles"},
      {"BM_Sphere", "BM_BareSphereCircles"},
  });
  benchmark::Shutdown();
  return 0;
}
