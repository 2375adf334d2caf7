// The workshops' whole-picture operations on 4096 x 4096 pictures, each beside the plain copy or
// the Qt drawing it must keep pace with, and the peak memory of blending two 8192 x 8192 pictures.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <string>

#include "bench/Summary.h"
#include "platform/Memory.h"
#include "workshops/PictureOps.h"

namespace {

constexpr int kSide = 4096;

QImage noise(int w, int h, unsigned seed) {
  QImage img(w, h, QImage::Format_RGB32);
  std::mt19937 rng(seed);
  for (int y = 0; y < h; ++y) {
    auto* row = reinterpret_cast<std::uint32_t*>(img.scanLine(y));
    for (int x = 0; x < w; ++x) row[x] = 0xFF000000u | (rng() & 0xFFFFFFu);
  }
  return img;
}

const QImage& pictureA() { static const QImage a = noise(kSide, kSide, 1); return a; }
const QImage& pictureB() { static const QImage b = noise(kSide, kSide, 2); return b; }

// A canvas copy: the unit the blend and the key-colour overlay are measured in.
void BM_RefCanvasCopy(benchmark::State& state) {
  for (auto _ : state) {
    QImage copy = pictureA().copy();
    benchmark::DoNotOptimize(copy.constBits());
  }
}
BENCHMARK(BM_RefCanvasCopy)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_Blend(benchmark::State& state) {
  int p = 10;
  for (auto _ : state) {
    qp::BlendOutcome out = qp::BlendPictures(pictureA(), pictureB(), p);
    benchmark::DoNotOptimize(out.picture.constBits());
    p = p == 90 ? 10 : p + 10;
  }
}
BENCHMARK(BM_Blend)->Unit(benchmark::kMillisecond)->MinTime(1.0);

// A copy of the tiled result into a picture that exists already, as the tiling writes into one.
void BM_RefCopyOfResult(benchmark::State& state) {
  QImage target(kSide, kSide, QImage::Format_RGB32);
  const QImage& result = pictureA();
  for (auto _ : state) {
    std::memcpy(target.bits(), result.constBits(), static_cast<size_t>(result.sizeInBytes()));
    benchmark::DoNotOptimize(target.constBits());
  }
}
BENCHMARK(BM_RefCopyOfResult)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_Tile4x4(benchmark::State& state) {
  QImage target(kSide, kSide, QImage::Format_RGB32);
  target.fill(0);
  const QImage tile = noise(300, 200, 3);
  for (auto _ : state) {
    qp::TilePicture(target, tile, QImage(), 0, 4, 4);
    benchmark::DoNotOptimize(target.constBits());
  }
}
BENCHMARK(BM_Tile4x4)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_KeyColourOverlay(benchmark::State& state) {
  QImage base = pictureA().copy();
  // A quarter of the overlay is the key colour, spread over the picture.
  QImage over = pictureB().copy();
  for (int y = 0; y < kSide; y += 2)
    for (int x = 0; x < kSide; x += 2) over.setPixel(x, y, 0xFF0000FF);
  for (auto _ : state) {
    qp::KeyColourOverlay(base, over, 0xFF0000);
    benchmark::DoNotOptimize(base.constBits());
  }
}
BENCHMARK(BM_KeyColourOverlay)->Unit(benchmark::kMillisecond)->MinTime(1.0);

const QImage& stretchSource() { static const QImage s = noise(1500, 1100, 4); return s; }

void BM_Stretch(benchmark::State& state) {
  for (auto _ : state) {
    QImage out = qp::StretchPicture(stretchSource(), kSide, kSide);
    benchmark::DoNotOptimize(out.constBits());
  }
}
BENCHMARK(BM_Stretch)->Unit(benchmark::kMillisecond)->MinTime(1.0);

void BM_RefQPainterDrawImage(benchmark::State& state) {
  for (auto _ : state) {
    QImage out(kSide, kSide, QImage::Format_RGB32);
    QPainter painter(&out);
    painter.drawImage(QRect(0, 0, kSide, kSide), stretchSource());
    painter.end();
    benchmark::DoNotOptimize(out.constBits());
  }
}
BENCHMARK(BM_RefQPainterDrawImage)->Unit(benchmark::kMillisecond)->MinTime(1.0);

long peakKilobytes() {
  rusage u{};
  getrusage(RUSAGE_SELF, &u);
  return u.ru_maxrss;
}

// The growth of the peak resident memory from before the two 8192 x 8192 pictures exist to after
// their blend, in pictures of that size; measured in a child process of its own so that nothing
// else the benchmarks did counts.
double blendPeakInPictures() {
  int fds[2];
  if (pipe(fds) != 0) return -1;
  const pid_t child = fork();
  if (child == 0) {
    close(fds[0]);
    const long before = peakKilobytes();
    const QImage a = noise(8192, 8192, 5), b = noise(8192, 8192, 6);
    const qp::BlendOutcome out = qp::BlendPictures(a, b, 50);
    const double pictures = (peakKilobytes() - before) * 1024.0 / static_cast<double>(a.sizeInBytes());
    if (write(fds[1], &pictures, sizeof pictures) != sizeof pictures) _exit(1);
    _exit(out.picture.isNull() ? 1 : 0);
  }
  close(fds[1]);
  double pictures = -1;
  if (read(fds[0], &pictures, sizeof pictures) != sizeof pictures) pictures = -1;
  close(fds[0]);
  int status = 0;
  waitpid(child, &status, 0);
  return pictures;
}

}  // namespace

int main(int argc, char** argv) {
  const double peak = blendPeakInPictures();
  // As the program runs: freed picture memory is kept for the next picture of the same size.
  qp::keepPictureMemoryForReuse();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  // CPU time: each operation runs on one thread, and on a shared machine the wall clock also
  // counts the other programs' turns.
  qp::bench::Collector c;
  benchmark::RunSpecifiedBenchmarks(&c);
  qp::bench::printSummary(c, {
      {"BM_Blend", "BM_RefCanvasCopy", 2.0},
      {"BM_Tile4x4", "BM_RefCopyOfResult", 1.5},
      {"BM_KeyColourOverlay", "BM_RefCanvasCopy", 3.0},
      {"BM_Stretch", "BM_RefQPainterDrawImage", 1.0},
  });
  std::printf("%-34s %8.2f pictures of 8192 x 8192 (limit 4)\n", "blend peak memory", peak);
  benchmark::Shutdown();
  return 0;
}
