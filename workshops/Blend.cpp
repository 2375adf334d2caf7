// Blending two pictures at a percentage, and laying one over another with a key colour left out.
// The blend is exact to the per-pixel formula in double precision with rounding half to even:
// every channel value is an integer, so (c2 p + c1 (100 - p)) / 100 is an exact quotient whose
// halves the same integer arithmetic finds.
#include <algorithm>
#include <cmath>
#include <cstring>
#if defined(__x86_64__) || defined(__i386__)
#include <immintrin.h>
#endif

#include "workshops/PictureOps.h"

namespace qp {

namespace {

// n / 100 rounded to nearest, halves to even, for 0 <= n < 43699: the multiply-shift is the
// exact floor of the division in that range.
inline std::uint32_t roundedHundredth(std::uint32_t n) {
  const std::uint32_t q = (n * 5243u) >> 19;
  const std::uint32_t r = n - q * 100u;
  return q + (r > 50u) + ((r == 50u) & q & 1u);
}

// One row of bytes: every byte of a pixel, the unused fourth one included (255 and 255 give 255).
void blendBytesPlain(std::uint8_t* __restrict out, const std::uint8_t* __restrict a,
                     const std::uint8_t* __restrict b, size_t count, std::uint32_t p) {
  const std::uint32_t q = 100u - p;
  for (size_t i = 0; i < count; ++i)
    out[i] = static_cast<std::uint8_t>(roundedHundredth(b[i] * p + a[i] * q));
}

#if defined(__x86_64__) || defined(__i386__)
// The same sixteen or thirty-two bytes at a time, in 16-bit lanes: b p + a (100 - p) stays below
// 25501, and the high half of n * 5243 shifted right by three is the exact floor of n / 100 there.
// Rounding: one more above a remainder of 50, and at exactly 50 one more when the floor is odd.
size_t blendSse2(std::uint8_t* out, const std::uint8_t* a, const std::uint8_t* b, size_t count, std::uint32_t p) {
  const __m128i P = _mm_set1_epi16(static_cast<short>(p)), Q = _mm_set1_epi16(static_cast<short>(100 - p));
  const __m128i magic = _mm_set1_epi16(5243), hundred = _mm_set1_epi16(100), fifty = _mm_set1_epi16(50);
  const __m128i one = _mm_set1_epi16(1), zero = _mm_setzero_si128();
  auto mix = [&](__m128i va, __m128i vb) {
    const __m128i n = _mm_add_epi16(_mm_mullo_epi16(vb, P), _mm_mullo_epi16(va, Q));
    const __m128i d = _mm_srli_epi16(_mm_mulhi_epu16(n, magic), 3);
    const __m128i r = _mm_sub_epi16(n, _mm_mullo_epi16(d, hundred));
    const __m128i up = _mm_and_si128(_mm_cmpgt_epi16(r, fifty), one);
    const __m128i tie = _mm_and_si128(_mm_and_si128(_mm_cmpeq_epi16(r, fifty), d), one);
    return _mm_add_epi16(_mm_add_epi16(d, up), tie);
  };
  size_t i = 0;
  for (; i + 16 <= count; i += 16) {
    const __m128i va = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + i));
    const __m128i vb = _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + i));
    const __m128i lo = mix(_mm_unpacklo_epi8(va, zero), _mm_unpacklo_epi8(vb, zero));
    const __m128i hi = mix(_mm_unpackhi_epi8(va, zero), _mm_unpackhi_epi8(vb, zero));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), _mm_packus_epi16(lo, hi));
  }
  return i;
}

// Unpacking and packing work within each 128-bit half, so pairing them keeps the byte order.
__attribute__((target("avx2"))) size_t blendAvx2(std::uint8_t* out, const std::uint8_t* a, const std::uint8_t* b,
                                                 size_t count, std::uint32_t p) {
  const __m256i P = _mm256_set1_epi16(static_cast<short>(p)), Q = _mm256_set1_epi16(static_cast<short>(100 - p));
  const __m256i magic = _mm256_set1_epi16(5243), hundred = _mm256_set1_epi16(100), fifty = _mm256_set1_epi16(50);
  const __m256i one = _mm256_set1_epi16(1), zero = _mm256_setzero_si256();
  size_t i = 0;
  for (; i + 32 <= count; i += 32) {
    const __m256i va = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + i));
    const __m256i vb = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(b + i));
    __m256i halves[2];
    for (int h = 0; h < 2; ++h) {
      const __m256i xa = h ? _mm256_unpackhi_epi8(va, zero) : _mm256_unpacklo_epi8(va, zero);
      const __m256i xb = h ? _mm256_unpackhi_epi8(vb, zero) : _mm256_unpacklo_epi8(vb, zero);
      const __m256i n = _mm256_add_epi16(_mm256_mullo_epi16(xb, P), _mm256_mullo_epi16(xa, Q));
      const __m256i d = _mm256_srli_epi16(_mm256_mulhi_epu16(n, magic), 3);
      const __m256i r = _mm256_sub_epi16(n, _mm256_mullo_epi16(d, hundred));
      const __m256i up = _mm256_and_si256(_mm256_cmpgt_epi16(r, fifty), one);
      const __m256i tie = _mm256_and_si256(_mm256_and_si256(_mm256_cmpeq_epi16(r, fifty), d), one);
      halves[h] = _mm256_add_epi16(_mm256_add_epi16(d, up), tie);
    }
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + i), _mm256_packus_epi16(halves[0], halves[1]));
  }
  return i;
}

const bool kHaveAvx2 = __builtin_cpu_supports("avx2");
#endif

void blendBytes(std::uint8_t* __restrict out, const std::uint8_t* __restrict a,
                const std::uint8_t* __restrict b, size_t count, std::uint32_t p) {
  size_t done = 0;
#if defined(__x86_64__) || defined(__i386__)
  done = kHaveAvx2 ? blendAvx2(out, a, b, count, p) : blendSse2(out, a, b, count, p);
#endif
  blendBytesPlain(out + done, a + done, b + done, count - done, p);
}

// A channel where the second picture has no pixel: the invalid colour's parts (-1, 256, -1).
// Returns false when the channel comes out below zero, which the colour cannot take.
bool fringeChannel(int c1, int c2, int p, int& out) {
  const double v = std::nearbyint(static_cast<double>(c2 * p + c1 * (100 - p)) / 100.0);
  if (v < 0) return false;
  out = std::min(static_cast<int>(v), 255);
  return true;
}

}  // namespace

BlendOutcome BlendPictures(const QImage& one, const QImage& two, int percent) {
  BlendOutcome result;
  if (one.isNull()) return result;
  const QImage a = asRgb32(one);
  const QImage b = asRgb32(two);
  const int w = a.width(), h = a.height();
  result.picture = QImage(w, h, QImage::Format_RGB32);
  if (result.picture.isNull()) {
    result.complete = false;
    return result;
  }
  const int p = std::clamp(percent, 0, 100);
  const int bw = std::min(w, b.isNull() ? 0 : b.width());
  const int bh = std::min(h, b.isNull() ? 0 : b.height());
  // The first pixel, in column-major order, where the blend stops; w means none.
  int stopX = w, stopY = h;
  for (int y = 0; y < h; ++y) {
    auto* out = reinterpret_cast<std::uint32_t*>(result.picture.scanLine(y));
    const auto* in1 = reinterpret_cast<const std::uint32_t*>(a.constScanLine(y));
    int x = 0;
    if (y < bh && bw > 0) {
      blendBytes(reinterpret_cast<std::uint8_t*>(out), reinterpret_cast<const std::uint8_t*>(in1),
                 b.constScanLine(y), static_cast<size_t>(bw) * 4, static_cast<std::uint32_t>(p));
      x = bw;
    }
    for (; x < w; ++x) {
      const std::uint32_t c1 = in1[x];
      int r, g, bl;
      const bool ok = fringeChannel(qRed(c1), -1, p, r) && fringeChannel(qGreen(c1), 256, p, g) &&
                      fringeChannel(qBlue(c1), -1, p, bl);
      if (!ok) {
        if (x < stopX || (x == stopX && y < stopY)) {
          stopX = x;
          stopY = y;
        }
        out[x] = 0xFF000000u;
        continue;
      }
      out[x] = qRgb(r, g, bl);
    }
  }
  if (stopX < w) {
    // Nothing was written after the stop: those pixels stay black.
    result.complete = false;
    for (int y = 0; y < h; ++y) {
      auto* out = reinterpret_cast<std::uint32_t*>(result.picture.scanLine(y));
      const int from = y < stopY ? stopX + 1 : stopX;
      for (int x = from; x < w; ++x) out[x] = 0xFF000000u;
    }
  }
  return result;
}

void KeyColourOverlay(QImage& base, const QImage& over, Colour key) {
  if (base.isNull() || over.isNull()) return;
  if (base.format() != QImage::Format_RGB32) base = base.convertToFormat(QImage::Format_RGB32);
  const QImage top = asRgb32(over);
  const std::uint32_t k = static_cast<std::uint32_t>(qRgb(redOf(key), greenOf(key), blueOf(key))) & 0xFFFFFFu;
  const int w = std::min(base.width(), top.width()), h = std::min(base.height(), top.height());
  for (int y = 0; y < h; ++y) {
    auto* out = reinterpret_cast<std::uint32_t*>(base.scanLine(y));
    const auto* in = reinterpret_cast<const std::uint32_t*>(top.constScanLine(y));
    for (int x = 0; x < w; ++x) {
      const std::uint32_t px = in[x];
      out[x] = (px & 0xFFFFFFu) == k ? out[x] : (px | 0xFF000000u);
    }
  }
}

}  // namespace qp
