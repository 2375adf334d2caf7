// The workshops' whole-picture operations on their own: tiling styles and the blend's arithmetic.
// Stretching, cropping and the key-colour overlay are checked through their windows.
#include <gtest/gtest.h>

#include <QImage>
#include <cmath>
#include <random>

#include "workshops/PictureOps.h"

namespace qp::test {
namespace {

constexpr QRgb kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kBlack = 0xFF000000;

QImage filled(int w, int h, QRgb c) {
  QImage img(w, h, QImage::Format_RGB32);
  img.fill(c);
  return img;
}

// The first image is red on its left half and green on its right, so a mirrored tile starts green.
QImage halves() {
  QImage img = filled(8, 8, kRed);
  for (int y = 0; y < 8; ++y)
    for (int x = 4; x < 8; ++x) img.setPixel(x, y, kGreen);
  return img;
}

// What each of the 4 x 4 cells shows near its left edge: N the first image, M it mirrored,
// 2 the second image, . nothing (the black output).
QString cellsOf(const QImage& out) {
  QString s;
  for (int r = 0; r < 4; ++r) {
    for (int c = 0; c < 4; ++c) {
      const QRgb p = out.pixel(c * 10 + 2, r * 10 + 5);
      s += p == kRed ? 'N' : p == kGreen ? 'M' : p == kBlue ? '2' : p == kBlack ? '.' : '?';
    }
    if (r < 3) s += '/';
  }
  return s;
}

TEST(Tiling, EachStyleFillsItsCellsAndMirrorsThroughTheLastRowAndColumn) {
  const char* expected[kTileStyles] = {
      "NNNN/NNNN/NNNN/NNNN", "MMMM/MMMM/MMMM/MMMM", "N.N./.N.N/N.N./.N.N", "NMNM/NMNM/NMNM/NMNM",
      "NNNN/..../NNNN/....", "N.N./N.N./N.N./N.N.", "NMNM/.M.M/NMNM/.M.M", "MMMM/N.N./MMMM/N.N.",
      "N.N./.M.M/NMNM/.M.M", "2N2N/N2N2/2N2N/N2N2", "NNNN/N2N2/NNNN/N2N2", "2222/NNNN/2222/NNNN",
      "2N2N/2N2N/2N2N/2N2N", "N.N./.2.2/N.N./.2.2"};
  for (int style = 0; style < kTileStyles; ++style) {
    QImage out = filled(40, 40, kBlack);
    TilePicture(out, halves(), filled(3, 3, kBlue), style, 4, 4);
    EXPECT_EQ(cellsOf(out), QString(expected[style])) << "style " << style << " " << TileStyleName(style).toStdString();
  }
}

TEST(Tiling, TilesCoverEveryPixelAndBadArgumentsDrawNothing) {
  // 7 tiles across 50 pixels: cells of 7.14 pixels; no pixel stays uncovered.
  QImage out = filled(50, 30, kBlack);
  TilePicture(out, filled(2, 2, kRed), QImage(), 0, 7, 3);
  for (int y = 0; y < 30; ++y)
    for (int x = 0; x < 50; ++x) ASSERT_EQ(out.pixel(x, y), kRed) << x << "," << y;
  // A two-image style without its second image, and counts or styles out of range, draw nothing.
  for (auto [style, wide, high] : {std::tuple{13, 4, 4}, {0, 0, 4}, {0, 4, -1}, {14, 4, 4}, {-1, 2, 2}}) {
    QImage blank = filled(20, 20, kBlack);
    TilePicture(blank, halves(), QImage(), style, wide, high);
    EXPECT_EQ(blank, filled(20, 20, kBlack)) << style;
  }
}

// The blend as the pixel-by-pixel routine computes it: colours read as 0xBBGGRR (-1 outside the
// second picture), split with Mod and Int, mixed in double precision, rounded half to even; a
// channel below zero is a colour that cannot be made, and the routine stops there.
BlendOutcome plainBlend(const QImage& one, const QImage& two, int p) {
  BlendOutcome r{QImage(one.size(), QImage::Format_RGB32), true};
  r.picture.fill(kBlack);
  auto colourAt = [](const QImage& img, int x, int y) -> long long {
    if (x >= img.width() || y >= img.height()) return -1;
    const QRgb c = img.pixel(x, y);
    return qRed(c) + qGreen(c) * 256LL + qBlue(c) * 65536LL;
  };
  for (int x = 0; x < one.width(); ++x) {
    for (int y = 0; y < one.height(); ++y) {
      const long long c1 = colourAt(one, x, y), c2 = colourAt(two, x, y);
      const long long r1 = c1 % 256, b1 = static_cast<long long>(std::floor(c1 / 65536.0)), g1 = (c1 - b1 * 65536 - r1) / 256;
      const long long r2 = c2 % 256, b2 = static_cast<long long>(std::floor(c2 / 65536.0)), g2 = (c2 - b2 * 65536 - r2) / 256;
      const double R = std::nearbyint((r2 * p + r1 * (100.0 - p)) / 100);
      const double G = std::nearbyint((g2 * p + g1 * (100.0 - p)) / 100);
      const double B = std::nearbyint((b2 * p + b1 * (100.0 - p)) / 100);
      if (R < 0 || G < 0 || B < 0) {
        r.complete = false;
        return r;
      }
      r.picture.setPixel(x, y, qRgb(std::min(R, 255.0), std::min(G, 255.0), std::min(B, 255.0)));
    }
  }
  return r;
}

QImage noise(std::mt19937& rng, int w, int h) {
  QImage img(w, h, QImage::Format_RGB32);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) img.setPixel(x, y, 0xFF000000u | (rng() & 0xFFFFFFu));
  return img;
}

TEST(Blend, FastPathMatchesThePlainFormulaOnEveryPixel) {
  std::mt19937 rng(20240611);
  for (int round = 0; round < 24; ++round) {
    const int w = 1 + static_cast<int>(rng() % 90), h = 1 + static_cast<int>(rng() % 70);
    // 0, 50 and 100 percent first: at 50 every odd sum of two channels falls on a half.
    const int p = round < 3 ? round * 50 : static_cast<int>(rng() % 101);
    const QImage one = noise(rng, w, h);
    // Every fourth round the second picture is smaller: its missing pixels read as -1, and where
    // one meets a dark pixel the blend stops (this seed stops three rounds).
    const QImage two = round % 4 == 3 ? noise(rng, std::max(1, w / 2), std::max(1, h / 2)) : noise(rng, w, h);
    const BlendOutcome fast = BlendPictures(one, two, p), plain = plainBlend(one, two, p);
    ASSERT_EQ(fast.complete, plain.complete) << "round " << round << " p " << p;
    ASSERT_EQ(fast.picture, plain.picture) << "round " << round << " p " << p;
  }
  EXPECT_TRUE(BlendPictures(QImage(), noise(rng, 2, 2), 50).picture.isNull());
}

}  // namespace
}  // namespace qp::test
