// Drawing on a 4096 x 4096 picture box in pixels, beside references that do the same amount of
// plain work: a QPainter call covering the same pixels, or a memcpy of the canvas bytes. The table
// at the end gives each operation's time as a multiple of its reference, in CPU time, which stays
// comparable when other work shares the machine.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QPainter>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/Summary.h"
#include "platform/Memory.h"
#include "platform/Form.h"
#include "platform/Headless.h"
#include "surface/Device.h"
#include "surface/PictureBox.h"

namespace {

constexpr int kSide = 4096;

struct Canvas {
  qp::HeadlessRuntime headless;
  qp::Form form{headless.rt(), "frmBench"};
  qp::PictureBox box{&form, nullptr, "pBench"};
  Canvas() {
    box.BackColor = 0x000000;
    box.Width = kSide * 15.0f;
    box.Height = kSide * 15.0f;
    box.ScaleMode = 3;
  }
};

Canvas& canvas() {
  static Canvas c;
  return c;
}

QImage& plainImage() {
  static QImage img = [] {
    QImage i(kSide, kSide, QImage::Format_RGB32);
    i.fill(Qt::black);
    return i;
  }();
  return img;
}

// Where the n-th small drawing lands: spread over the canvas so caches do not flatter the result.
int spot(std::int64_t n) { return static_cast<int>((n * 977) % (kSide - 300)) + 100; }

// ---- lines ----

void BM_Line(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  b.DrawWidth = static_cast<int>(state.range(0));
  std::int64_t n = 0;
  for (auto _ : state) {
    const int x = spot(n), y = spot(n * 7 + 3);
    b.Line(x, y, x + 100, y, static_cast<qp::Colour>(n & 0xFFFFFF));
    ++n;
  }
  b.DrawWidth = 1;
  b.takeDirty();
}
BENCHMARK(BM_Line)->Arg(1)->Arg(8)->Arg(40);

// The same pixel area as a line of that width, through QPainter.
void BM_RefFillRectLine(benchmark::State& state) {
  QImage& img = plainImage();
  const int w = static_cast<int>(state.range(0));
  std::int64_t n = 0;
  for (auto _ : state) {
    const int x = spot(n), y = spot(n * 7 + 3);
    QPainter p(&img);
    p.fillRect(x, y, 100, w, QColor::fromRgb(static_cast<QRgb>(n)));
    ++n;
  }
}
BENCHMARK(BM_RefFillRectLine)->Arg(1)->Arg(8)->Arg(40);

// ---- PSet and Circle ----

void BM_PSet(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  std::int64_t n = 0;
  for (auto _ : state) {
    b.PSet(spot(n), spot(n * 7 + 3), 0xFFFFFF);
    ++n;
  }
}
BENCHMARK(BM_PSet);

void BM_RefFillRectPixel(benchmark::State& state) {
  QImage& img = plainImage();
  std::int64_t n = 0;
  for (auto _ : state) {
    QPainter p(&img);
    p.fillRect(spot(n), spot(n * 7 + 3), 1, 1, Qt::white);
    ++n;
  }
}
BENCHMARK(BM_RefFillRectPixel);

void BM_Circle(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  std::int64_t n = 0;
  for (auto _ : state) {
    b.Circle(spot(n) % 3000 + 400, spot(n * 7 + 3) % 3000 + 400, 200, 0x00FFFF);
    ++n;
  }
}
BENCHMARK(BM_Circle);

void BM_RefDrawEllipse(benchmark::State& state) {
  QImage& img = plainImage();
  std::int64_t n = 0;
  for (auto _ : state) {
    QPainter p(&img);
    p.setPen(Qt::yellow);
    p.drawEllipse(QPointF(spot(n) % 3000 + 400.5, spot(n * 7 + 3) % 3000 + 400.5), 200, 200);
    ++n;
  }
}
BENCHMARK(BM_RefDrawEllipse);

// ---- PaintPicture: a 1024 x 1024 picture onto the whole canvas ----

const QImage& picture() {
  static QImage pic = [] {
    QImage p(1024, 1024, QImage::Format_RGB32);
    for (int y = 0; y < 1024; ++y)
      for (int x = 0; x < 1024; ++x) p.setPixel(x, y, qRgb(x & 255, y & 255, (x ^ y) & 255));
    return p;
  }();
  return pic;
}

void BM_PaintPictureStretch(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  for (auto _ : state) b.PaintPicture(picture(), 0, 0, kSide, kSide);
}
BENCHMARK(BM_PaintPictureStretch)->Unit(benchmark::kMillisecond);

void BM_PaintPictureMirror(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  for (auto _ : state) b.PaintPicture(picture(), kSide, kSide, -kSide, -kSide);
}
BENCHMARK(BM_PaintPictureMirror)->Unit(benchmark::kMillisecond);

void BM_RefDrawImageStretch(benchmark::State& state) {
  QImage& img = plainImage();
  for (auto _ : state) {
    QPainter p(&img);
    p.drawImage(QRect(0, 0, kSide, kSide), picture());
  }
}
BENCHMARK(BM_RefDrawImageStretch)->Unit(benchmark::kMillisecond);

// ---- flood fill and the whole-canvas copy it is measured against ----

void BM_FloodFillWhole(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  b.Line(0, 0, kSide - 1, kSide - 1, 0x000000, qp::LineBox::BF);
  b.FillStyle = 0;
  qp::Colour now = 0x000000;
  for (auto _ : state) {
    const qp::Colour next = now == 0 ? 0x123456 : 0;
    b.FillColor = next;
    benchmark::DoNotOptimize(qp::ExtFloodFill(b, 10, 10, now, 1));
    now = next;
  }
}
BENCHMARK(BM_FloodFillWhole)->Unit(benchmark::kMillisecond);

void BM_FloodFillSerpentine(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  b.Line(0, 0, kSide - 1, kSide - 1, 0x000000, qp::LineBox::BF);
  // Walls on every fourth row, open at alternating ends: one long corridor winding down.
  for (int y = 3; y < kSide; y += 4) {
    const bool openRight = (y / 4) % 2 == 0;
    b.Line(openRight ? 0 : 8, y, openRight ? kSide - 9 : kSide - 1, y, 0xFFFFFF, qp::LineBox::BF);
  }
  b.FillStyle = 0;
  qp::Colour now = 0x000000;
  for (auto _ : state) {
    const qp::Colour next = now == 0 ? 0x123456 : 0;
    b.FillColor = next;
    benchmark::DoNotOptimize(qp::ExtFloodFill(b, 0, 0, now, 1));
    now = next;
  }
}
BENCHMARK(BM_FloodFillSerpentine)->Unit(benchmark::kMillisecond);

void BM_RefMemcpyCanvas(benchmark::State& state) {
  const QImage& from = plainImage();
  static QImage to(kSide, kSide, QImage::Format_RGB32);
  for (auto _ : state) {
    std::memcpy(to.bits(), from.constBits(), static_cast<size_t>(from.sizeInBytes()));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(BM_RefMemcpyCanvas)->Unit(benchmark::kMillisecond);

// ---- baking: Picture = Image, then one drawing call (the one detach copy) ----

void BM_BakeThenDraw(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  std::int64_t n = 0;
  for (auto _ : state) {
    b.Picture = b.Image;
    b.PSet(spot(n), spot(n + 1), 0xFFFFFF);
    ++n;
  }
}
BENCHMARK(BM_BakeThenDraw)->Unit(benchmark::kMillisecond);

void BM_BakeOnly(benchmark::State& state) {
  qp::PictureBox& b = canvas().box;
  for (auto _ : state) b.Picture = b.Image;
}
BENCHMARK(BM_BakeOnly);

}  // namespace

int main(int argc, char** argv) {
  qp::keepPictureMemoryForReuse();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  qp::bench::Collector collector;
  benchmark::RunSpecifiedBenchmarks(&collector);
  qp::bench::printSummary(collector, {
      {"BM_Line/1", "BM_RefFillRectLine/1"},
      {"BM_Line/8", "BM_RefFillRectLine/8"},
      {"BM_Line/40", "BM_RefFillRectLine/40"},
      {"BM_PSet", "BM_RefFillRectPixel"},
      {"BM_Circle", "BM_RefDrawEllipse"},
      {"BM_PaintPictureStretch", "BM_RefDrawImageStretch"},
      {"BM_PaintPictureMirror", "BM_RefDrawImageStretch"},
      {"BM_FloodFillWhole", "BM_RefMemcpyCanvas"},
      {"BM_FloodFillSerpentine", "BM_RefMemcpyCanvas"},
      {"BM_BakeThenDraw", "BM_RefMemcpyCanvas"},
  });
  benchmark::Shutdown();
  return 0;
}
