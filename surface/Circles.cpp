// Circle: circles, ellipses by aspect, arcs and pie slices, filled by FillStyle and FillColor.
// Ellipses go through QPainter (aliased) with the DrawMode as its raster operation.
#include <QPainterPath>
#include <cmath>
#include <numbers>

#include "surface/Fill.h"
#include "surface/PictureBox.h"
#include "surface/Raster.h"

namespace qp {

namespace {

constexpr double kTwoPi = 2 * std::numbers::pi;
// Half-axes beyond this many pixels are clamped: such a curve is far outside any bitmap.
constexpr double kMaxHalfAxis = 1 << 17;

double finiteOrRaise(double v) {
  if (!std::isfinite(v)) raiseError(RuntimeError::InvalidCall, "Invalid procedure call");
  return v;
}

Qt::BrushStyle brushFor(int fillStyle) {
  switch (fillStyle) {
    case 0: return Qt::SolidPattern;
    case 2: return Qt::HorPattern;
    case 3: return Qt::VerPattern;
    case 4: return Qt::FDiagPattern;  // "\", as the spans draw it
    case 5: return Qt::BDiagPattern;  // "/"
    case 6: return Qt::CrossPattern;
    case 7: return Qt::DiagCrossPattern;
    default: return Qt::NoBrush;
  }
}

QPen penFor(QColor colour, int width, int style) {
  if (style == 5) return QPen(Qt::NoPen);
  QPen pen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  // The same run lengths as Line's patterns; patterns only apply to one-pixel pens.
  if (width == 1) {
    switch (style) {
      case 1: pen.setDashPattern({18, 6}); break;
      case 2: pen.setDashPattern({3, 3}); break;
      case 3: pen.setDashPattern({9, 6, 3, 6}); break;
      case 4: pen.setDashPattern({9, 3, 3, 3, 3, 3}); break;
      default: break;
    }
  }
  return pen;
}

QColor qcolour(Colour c) { return QColor::fromRgb(raster::toPixel(c)); }

// The inside of the ellipse around the pixel (cx, cy), row by row through the fill style: the
// pixels whose centres lie within the half-axes. Our own spans rather than a painter's brush, so
// that the hatches stand on the bitmap's grid and a large fill costs no more than its rows.
QRect fillEllipse(QImage& img, Colour colour, int mode, int fillStyle, double cx, double cy, double rx,
                  double ry) {
  raster::PixelWriter out(img, colour, mode);
  const int top = std::max(0, static_cast<int>(std::ceil(cy - ry)));
  const int bottom = std::min(img.height() - 1, static_cast<int>(std::floor(cy + ry)));
  for (int y = top; y <= bottom; ++y) {
    const double dy = y - cy;
    const double t = ry > 0 ? 1 - (dy / ry) * (dy / ry) : 1;
    if (t < 0) continue;
    const double half = rx * std::sqrt(t);
    raster::fillSpan(out, y, static_cast<int>(std::ceil(cx - half)), static_cast<int>(std::floor(cx + half)),
                     fillStyle);
  }
  return out.touched();
}

}  // namespace

void PictureBox::Circle(Single x, Single y, Single radius, std::optional<Colour> colour,
                        std::optional<double> start, std::optional<double> end,
                        std::optional<double> aspect) {
  QImage& img = editBitmap();
  const double cx = finiteOrRaise(toPixelX(x));
  const double cy = finiteOrRaise(toPixelY(y));
  // The radius is counted in the horizontal unit, along the longer axis.
  const double r = std::fabs(finiteOrRaise(static_cast<double>(radius) * pixelsPerUnitX()));
  const double a = std::fabs(finiteOrRaise(aspect.value_or(1.0)));
  double rx = a > 1 ? r / a : r;
  double ry = a > 1 ? r : r * a;

  const int mode = DrawMode;
  const int width = DrawWidth;
  const double reach = std::max(rx, ry) + width + 2;
  const bool offBitmap = cx + reach < 0 || cy + reach < 0 || cx - reach > img.width() ||
                         cy - reach > img.height();
  if (mode != 11 && !offBitmap) {
    rx = std::min(rx, kMaxHalfAxis);
    ry = std::min(ry, kMaxHalfAxis);
    // Whole pixels are pixel centres, as for Line and PSet.
    const QPointF centre(roundHalfEven(cx) + 0.5, roundHalfEven(cy) + 0.5);
    const QRectF box(centre.x() - rx, centre.y() - ry, 2 * rx, 2 * ry);
    const bool whole = !start && !end;
    QRect filled;
    // A solid fill is the painter's brush, its fastest path; the hatches are our own spans.
    const bool solid = FillStyle == 0;
    if (whole && !solid && raster::fills(FillStyle))
      filled = fillEllipse(img, FillColor, mode, FillStyle, roundHalfEven(cx), roundHalfEven(cy), rx, ry);

    QPainter p(&img);
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setCompositionMode(raster::compositionFor(mode));
    p.setPen(penFor(qcolour(colour.value_or(ForeColor)), width, DrawStyle));
    const QBrush fill(qcolour(FillColor), brushFor(FillStyle));

    if (whole) {
      p.setBrush(solid ? fill : QBrush());  // a hatched inside is already filled
      p.drawEllipse(box);
    } else {
      const double s = finiteOrRaise(start.value_or(0.0));
      const double e = finiteOrRaise(end.value_or(kTwoPi));
      const double from = std::fmod(std::fabs(s), kTwoPi);
      double span = std::fmod(std::fabs(e), kTwoPi) - from;
      if (span <= 0) span += kTwoPi;  // counter-clockwise; equal ends make the whole ellipse
      const double toDeg = 180.0 / std::numbers::pi;
      QPainterPath path;
      // A negative angle adds the radius to that end; both negative close a pie slice.
      if (s < 0) path.moveTo(centre);
      else path.arcMoveTo(box, from * toDeg);
      path.arcTo(box, from * toDeg, span * toDeg);
      if (e < 0) path.lineTo(centre);
      const bool pie = s < 0 && e < 0;
      if (pie) path.closeSubpath();
      p.setBrush(pie ? fill : QBrush());
      p.drawPath(path);
    }
    p.end();
    const QRect touched = (box.adjusted(-width - 2, -width - 2, width + 2, width + 2).toAlignedRect() &
                           img.rect()) | filled;
    if (mode != 13) raster::restoreAlpha(img, touched);
    markDirty(touched);
  }
  CurrentX = x;
  CurrentY = y;
}

}  // namespace qp
