// Pen strokes in pixel space.
#include "surface/Strokes.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>
#include <vector>

namespace qp::raster {

namespace {

// On/off run lengths in pixels of DrawStyle 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot.
struct Pattern {
  int runs[6];
  int count;
};
constexpr Pattern kPatterns[5] = {
    {{1}, 0}, {{18, 6}, 2}, {{3, 3}, 2}, {{9, 6, 3, 6}, 4}, {{9, 3, 3, 3, 3, 3}, 6}};

constexpr double kInf = std::numeric_limits<double>::infinity();

// Narrows [lo, hi] to the x where c*x + d lies within [from, to].
void constrain(double& lo, double& hi, double c, double d, double from, double to) {
  if (std::fabs(c) < 1e-12) {
    if (d < from - 1e-9 || d > to + 1e-9) {
      lo = kInf;
      hi = -kInf;
    }
    return;
  }
  double a = (from - d) / c, b = (to - d) / c;
  if (a > b) std::swap(a, b);
  lo = std::max(lo, a);
  hi = std::min(hi, b);
}

// The x range of the row y inside the capsule of radius r around the segment.
bool capsuleRow(const Segment& s, double r, double y, double& lo, double& hi) {
  lo = kInf;
  hi = -kInf;
  for (const auto& [px, py] : {std::pair{s.ax, s.ay}, std::pair{s.bx, s.by}}) {
    const double dy = y - py;
    if (std::fabs(dy) <= r + 1e-9) {
      const double h = std::sqrt(std::max(0.0, r * r - dy * dy));
      lo = std::min(lo, px - h);
      hi = std::max(hi, px + h);
    }
  }
  const double dx = s.bx - s.ax, dy = s.by - s.ay;
  const double len = std::hypot(dx, dy);
  if (len > 0) {
    const double ux = dx / len, uy = dy / len;
    double blo = -kInf, bhi = kInf;
    // Along the segment: 0 <= (x - ax) ux + (y - ay) uy <= len.
    constrain(blo, bhi, ux, -s.ax * ux + (y - s.ay) * uy, 0, len);
    // Across it: |-(x - ax) uy + (y - ay) ux| <= r.
    constrain(blo, bhi, -uy, s.ax * uy + (y - s.ay) * ux, -r, r);
    if (blo <= bhi) {
      lo = std::min(lo, blo);
      hi = std::max(hi, bhi);
    }
  }
  return lo <= hi;
}

}  // namespace

void thinSegment(PixelWriter& out, int x0, int y0, int x1, int y1, int style) {
  const Pattern& pat = kPatterns[(style >= 1 && style <= 4) ? style : 0];
  int run = 0, left = pat.count ? pat.runs[0] : 0;
  const int dx = std::abs(x1 - x0), sx = x0 < x1 ? 1 : -1;
  const int dy = -std::abs(y1 - y0), sy = y0 < y1 ? 1 : -1;
  int err = dx + dy;
  for (;;) {
    const bool on = pat.count == 0 || run % 2 == 0;
    if (on) out.plot(x0, y0);
    if (pat.count && --left == 0) {
      run = (run + 1) % pat.count;
      left = pat.runs[run];
    }
    if (x0 == x1 && y0 == y1) break;
    const int e2 = 2 * err;
    if (e2 >= dy) {
      err += dy;
      x0 += sx;
    }
    if (e2 <= dx) {
      err += dx;
      y0 += sy;
    }
  }
}

void wideSegments(PixelWriter& out, const Segment* segs, int count, int width) {
  if (count <= 0) return;
  const double r = width / 2.0;
  const double lean = (width % 2 == 0) ? -0.5 : 0.0;
  std::vector<Segment> s(segs, segs + count);
  double top = kInf, bottom = -kInf;
  for (auto& g : s) {
    g.ax += lean, g.ay += lean, g.bx += lean, g.by += lean;
    top = std::min({top, g.ay - r, g.by - r});
    bottom = std::max({bottom, g.ay + r, g.by + r});
  }
  const int y0 = static_cast<int>(std::max(0.0, std::floor(top)));
  const int y1 = static_cast<int>(std::min(out.height() - 1.0, std::ceil(bottom)));
  std::vector<std::pair<int, int>> runs;
  for (int y = y0; y <= y1; ++y) {
    runs.clear();
    for (const auto& g : s) {
      double lo, hi;
      if (!capsuleRow(g, r, y, lo, hi)) continue;
      lo = std::clamp(std::ceil(lo - 1e-9), -1.0, double(out.width()));
      hi = std::clamp(std::floor(hi + 1e-9), -1.0, double(out.width()));
      if (lo <= hi) runs.emplace_back(static_cast<int>(lo), static_cast<int>(hi));
    }
    std::sort(runs.begin(), runs.end());
    // Overlapping runs become one, so no pixel is mixed twice.
    for (size_t i = 0; i < runs.size();) {
      int a = runs[i].first, b = runs[i].second;
      size_t j = i + 1;
      for (; j < runs.size() && runs[j].first <= b + 1; ++j) b = std::max(b, runs[j].second);
      out.span(y, a, b);
      i = j;
    }
  }
}

void strokeSegment(PixelWriter& out, double ax, double ay, double bx, double by, int width,
                   int style) {
  const double m = width / 2.0 + 2;
  // Far ends are cut geometrically, keeping the slope; only absurd values are clamped first.
  for (double* v : {&ax, &ay, &bx, &by}) {
    if (!std::isfinite(*v)) raiseError(RuntimeError::Overflow, "Overflow");
    *v = std::clamp(*v, -1e12, 1e12);
  }
  if (!clipSegment(ax, ay, bx, by, -m, -m, out.width() - 1 + m, out.height() - 1 + m)) return;
  const int x0 = toPixelInt(ax), y0 = toPixelInt(ay), x1 = toPixelInt(bx), y1 = toPixelInt(by);
  if (width <= 1 && y0 == y1 && !(style >= 1 && style <= 4)) {
    out.span(y0, x0, x1);  // a solid level line is one span: the same pixels, without stepping
  } else if (width <= 1) {
    thinSegment(out, x0, y0, x1, y1, style);
  } else {
    const Segment g{double(x0), double(y0), double(x1), double(y1)};
    wideSegments(out, &g, 1, width);
  }
}

}  // namespace qp::raster
