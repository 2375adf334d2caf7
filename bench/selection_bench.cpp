// The Selection Tool and transparent stamping, each beside a plain reference of the same work in
// the same run: a 512 x 512 stamp with its key colour left out beside QPainter drawing the same
// picture through a mask made from that colour; moving a 1024 x 1024 floating selection over a
// 4096 x 4096 canvas beside one copy of that canvas (a move must cost nothing like it); tiling a
// selection 4 x 4 over the canvas beside one canvas copy. Ratios in CPU time at the end.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>
#include <cstdio>
#include <cstring>
#include <map>
#include <string>

#include "bench/Summary.h"
#include "app/Program.h"
#include "platform/Headless.h"
#include "platform/Memory.h"
#include "surface/Device.h"
#include "tools/Selection.h"

namespace {

constexpr int kSide = 4096;
constexpr int kStamp = 512;
constexpr qp::Colour kKey = 0x00FF00;

// A picture whose left half of every other row band is the key colour, the rest a pattern.
QImage stampPicture() {
  QImage img(kStamp, kStamp, QImage::Format_RGB32);
  for (int y = 0; y < kStamp; ++y)
    for (int x = 0; x < kStamp; ++x)
      img.setPixel(x, y, ((x / 32 + y / 32) % 2) ? qRgb(0, 255, 0) : qRgb(x % 256, y % 256, 40));
  return img;
}

QImage blackCanvas() {
  QImage img(kSide, kSide, QImage::Format_RGB32);
  img.fill(Qt::black);
  return img;
}

struct Surfaces {
  qp::HeadlessRuntime headless;
  qp::Form form{headless.rt(), "frmBench"};
  qp::PictureBox target{&form, nullptr, "pTarget"};
  qp::PictureBox source{&form, nullptr, "pSource"};
  Surfaces() {
    for (qp::PictureBox* b : {&target, &source}) b->ScaleMode = 3;
    target.Width = 2048 * 15.0f;
    target.Height = 2048 * 15.0f;
    source.Width = kStamp * 15.0f;
    source.Height = kStamp * 15.0f;
    source.Picture = stampPicture();
  }
};

Surfaces& surfaces() {
  static Surfaces s;
  return s;
}

int spot(std::int64_t n) { return static_cast<int>((n * 331) % (2048 - kStamp)); }

void BM_StampTransparent512(benchmark::State& state) {
  Surfaces& s = surfaces();
  std::int64_t n = 0;
  for (auto _ : state) {
    qp::TransparentBlt(s.target, spot(n), spot(n * 7 + 1), kStamp, kStamp, s.source, 0, 0, kStamp, kStamp, kKey);
    s.target.Refresh();
    ++n;
  }
  s.target.takeDirty();
}
BENCHMARK(BM_StampTransparent512);

void BM_RefPainterMasked512(benchmark::State& state) {
  static QImage target = [] {
    QImage t(2048, 2048, QImage::Format_RGB32);
    t.fill(Qt::black);
    return t;
  }();
  // The mask made once, outside the timing: the reference gets its best case.
  static const QImage masked = [] {
    const QImage pic = stampPicture();
    QImage m = pic.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage mask = pic.createMaskFromColor(qRgb(0, 255, 0), Qt::MaskOutColor);
    QPainter p(&m);
    p.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    p.drawImage(0, 0, mask.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    return m;
  }();
  std::int64_t n = 0;
  for (auto _ : state) {
    QPainter p(&target);
    p.drawImage(spot(n), spot(n * 7 + 1), masked);
    ++n;
  }
}
BENCHMARK(BM_RefPainterMasked512);

// A whole program with a 4096 x 4096 canvas and a 1024 x 1024 selection afloat.
struct Floating {
  qp::HeadlessRuntime headless;
  qp::Program program{headless.rt()};
  Floating() {
    program.start();
    qp::frmCanvas& f = program.f;
    f.mPencil.raiseClick();
    f.PicPaint.Picture = blackCanvas();
    f.mSelCpy.raiseClick();
    f.PicPaint.raiseMouseDown(qp::vbLeftButton, 0, 0, 0);
    f.PicPaint.raiseMouseMove(qp::vbLeftButton, 0, 1024 * 15.0f, 1024 * 15.0f);
    f.PicPaint.raiseMouseUp(qp::vbLeftButton, 0, 1024 * 15.0f, 1024 * 15.0f);
    if (!f.pSpire.Visible) std::fprintf(stderr, "no selection afloat\n");
  }
};

Floating& floating() {
  static Floating fl;
  return fl;
}

void BM_MoveFloat1024(benchmark::State& state) {
  qp::frmCanvas& f = floating().program.f;
  std::int64_t n = 0;
  for (auto _ : state) {
    const float x = static_cast<float>((n * 97) % 3000 + 200) * 15.0f;
    f.PicPaint.raiseMouseMove(qp::vbLeftButton, 0, x, x / 2);
    ++n;
  }
  f.PicPaint.takeDirty();
}
BENCHMARK(BM_MoveFloat1024);

void BM_TileSelection4x4(benchmark::State& state) {
  qp::frmCanvas& f = floating().program.f;
  const QImage selection = f.pSpire.Image;
  for (auto _ : state) qp::TilePicture(f.PicPaint, selection, 4);
  f.PicPaint.takeDirty();
}
BENCHMARK(BM_TileSelection4x4)->Unit(benchmark::kMillisecond);

void BM_RefCanvasCopy(benchmark::State& state) {
  static const QImage from = blackCanvas();
  static QImage to = blackCanvas();
  for (auto _ : state) {
    std::memcpy(to.bits(), from.constBits(), static_cast<size_t>(from.sizeInBytes()));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_RefCanvasCopy)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qp::keepPictureMemoryForReuse();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  qp::bench::printSummary(collector, {
      {"BM_StampTransparent512", "BM_RefPainterMasked512"},
      {"BM_MoveFloat1024", "BM_RefCanvasCopy"},
      {"BM_TileSelection4x4", "BM_RefCanvasCopy"},
  });
  benchmark::Shutdown();
  return 0;
}
