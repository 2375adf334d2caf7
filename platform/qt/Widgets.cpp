#include "platform/qt/Widgets.h"

#include <cmath>

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "surface/PictureBox.h"

namespace qp {

namespace {
constexpr double kTwipsPerPixel = 15.0;

Qt::PenStyle penStyleFor(int borderStyle) {
  switch (borderStyle) {
    case 0: return Qt::NoPen;
    case 2: return Qt::DashLine;
    case 3: return Qt::DotLine;
    case 4: return Qt::DashDotLine;
    case 5: return Qt::DashDotDotLine;
    default: return Qt::SolidLine;  // 1 solid, 6 inside solid
  }
}

Qt::BrushStyle brushStyleFor(int fillStyle) {
  switch (fillStyle) {
    case 0: return Qt::SolidPattern;
    case 2: return Qt::HorPattern;
    case 3: return Qt::VerPattern;
    case 4: return Qt::FDiagPattern;
    case 5: return Qt::BDiagPattern;
    case 6: return Qt::CrossPattern;
    case 7: return Qt::DiagCrossPattern;
    default: return Qt::NoBrush;  // 1 transparent
  }
}
}  // namespace

QFont layoutFont(const QString& name, double points, bool bold) {
  QFont font(name);
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * 10.0 / 8.0))));
  font.setBold(bold);
  return font;
}

int DesignStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth: case PM_IndicatorHeight: case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return 13;
    case PM_CheckBoxLabelSpacing: case PM_RadioButtonLabelSpacing:
      return 3;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

LabelWidget::LabelWidget(Label& c, QWidget* parent) : QWidget(parent), c_(c) {}

void LabelWidget::paintEvent(QPaintEvent*) {
  QPainter p(this);
  if (c_.BackStyle == 1) p.fillRect(rect(), toQColor(c_.BackColor));
  p.setFont(font());  // the label's own font, which the view keeps in step with the control
  p.setPen(toQColor(c_.ForeColor));
  const int align = c_.Alignment == 1 ? Qt::AlignRight : c_.Alignment == 2 ? Qt::AlignHCenter : Qt::AlignLeft;
  p.drawText(rect(), align | Qt::AlignTop | Qt::TextWordWrap, c_.Caption.get());
}

ShapeWidget::ShapeWidget(Shape& c, QWidget* parent) : QWidget(parent), c_(c) {
  setAttribute(Qt::WA_TransparentForMouseEvents);  // a shape takes no pointer events
}

void ShapeWidget::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing, c_.Shape_ >= 2);
  const int bw = std::max(1, c_.BorderWidth.get());
  QRectF r = QRectF(rect()).adjusted(bw / 2.0, bw / 2.0, -bw / 2.0, -bw / 2.0);
  const int kind = c_.Shape_;
  if (kind == 1 || kind == 3 || kind == 5) {  // the square forms use the shorter side, centred
    const double side = std::min(r.width(), r.height());
    r = QRectF(r.center().x() - side / 2, r.center().y() - side / 2, side, side);
  }
  QPen pen(toQColor(c_.BorderColor), bw, penStyleFor(c_.BorderStyle));
  const auto draw = [&](const QBrush& brush) {
    p.setBrush(brush);
    if (kind == 2 || kind == 3) p.drawEllipse(r);
    else if (kind == 4 || kind == 5) p.drawRoundedRect(r, r.width() / 8, r.height() / 8);
    else p.drawRect(r);
  };
  p.setPen(Qt::NoPen);
  if (c_.BackStyle == 1) draw(toQColor(c_.BackColor));
  p.setPen(pen);
  draw(QBrush(toQColor(c_.FillColor), brushStyleFor(c_.FillStyle)));
}

LineWidget::LineWidget(Line& c, QWidget* parent) : QWidget(parent), c_(c) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

QPointF LineWidget::toPixels(Single x, Single y) const {
  // On a picture box the ends are in its present scale, which a stroke may have stretched.
  if (const auto* pic = dynamic_cast<const PictureBox*>(c_.parent())) {
    const double px = pic->toPixelX(x), py = pic->toPixelY(y);
    if (std::isfinite(px) && std::isfinite(py)) return QPointF(std::clamp(px, -1e6, 1e6), std::clamp(py, -1e6, 1e6));
  }
  return QPointF(x / kTwipsPerPixel, y / kTwipsPerPixel);
}

QRect LineWidget::box() const {
  const int pad = std::max(1, c_.BorderWidth.get());
  const QPointF a = toPixels(c_.X1, c_.Y1);
  const QPointF b = toPixels(c_.X2, c_.Y2);
  return QRectF(a, b).normalized().toAlignedRect().adjusted(-pad, -pad, pad + 1, pad + 1);
}

void LineWidget::paintEvent(QPaintEvent*) {
  QPainter p(this);
  const QPoint o = box().topLeft();
  const QPointF a = toPixels(c_.X1, c_.Y1) - o;
  const QPointF b = toPixels(c_.X2, c_.Y2) - o;
  p.setPen(QPen(toQColor(c_.BorderColor), std::max(1, c_.BorderWidth.get()), penStyleFor(c_.BorderStyle)));
  p.drawLine(a, b);
}

ImageWidget::ImageWidget(Image& c, QWidget* parent) : QWidget(parent), c_(c) {}

void ImageWidget::paintEvent(QPaintEvent*) {
  if (c_.Picture.isNull()) return;
  QPainter p(this);
  if (c_.Stretch) p.drawImage(rect(), c_.Picture);
  else p.drawImage(0, 0, c_.Picture);
  shownKey = c_.Picture.cacheKey();
}

PictureWidget::PictureWidget(PictureBox& c, QWidget* parent) : QWidget(parent), c_(c) {
  setAttribute(Qt::WA_OpaquePaintEvent);  // every pixel is painted, no need to clear first
}

QPoint PictureWidget::bitmapOrigin() const {
  // The border takes what the widget has beyond the bitmap, the same on both sides.
  const QSize b = c_.bitmap().size();
  return QPoint(std::max(0, (width() - b.width()) / 2), std::max(0, (height() - b.height()) / 2));
}

QPointF PictureWidget::toScale(QPointF pos) const {
  const QPointF px = pos - bitmapOrigin();
  const double ux = c_.pixelsPerUnitX(), uy = c_.pixelsPerUnitY();
  return QPointF(c_.ScaleLeft + (ux != 0 ? px.x() / ux : 0.0), c_.ScaleTop + (uy != 0 ? px.y() / uy : 0.0));
}

void PictureWidget::paintEvent(QPaintEvent* e) {
  QPainter p(this);
  const QImage& bmp = c_.bitmap();
  const QPoint o = bitmapOrigin();
  const QRect inside(o, bmp.size());
  // Around the bitmap: the border, or the back colour where the widget is bigger.
  const QRegion around = QRegion(e->rect()) - QRegion(inside);
  for (const QRect& r : around) p.fillRect(r, toQColor(c_.BackColor));
  if (c_.BorderStyle != 0 && o.x() > 0 && o.y() > 0) {
    p.setPen(QColor(128, 128, 128));
    p.drawRect(inside.adjusted(-1, -1, 0, 0));
  }
  const QRect part = e->rect() & inside;
  if (!part.isEmpty() && !bmp.isNull()) p.drawImage(part.topLeft(), bmp, part.translated(-o));
  shownSize = bmp.size();
}

}  // namespace qp
