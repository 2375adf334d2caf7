// Draws the program's icon: a quill over a sheet with three strokes of paint, on a blue tile.
// The shapes are written down once, here, and come out both as the scalable SVG and as the PNGs
// of the fixed sizes the desktop's icon theme asks for, so the two never drift apart.
//   make_icons OUTDIR     writes OUTDIR/quillora.svg and OUTDIR/NxN/quillora.png
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTextStream>
#include <cstdio>
#include <vector>

namespace {

// One step of an outline on the 256-unit grid: 'M'ove, 'L'ine, 'C'urve (three points), 'Z' close.
struct Step {
  char op;
  std::vector<QPointF> pts;
};

struct Shape {
  std::vector<Step> outline;
  QColor fill;          // invalid: not filled
  QColor stroke;        // invalid: not outlined
  double strokeWidth = 0;
  double cornerRadius = 0;  // for a rectangle given as M and the opposite corner
  bool rect = false;
};

Shape roundRect(double x, double y, double w, double h, double r, QColor fill) {
  Shape s;
  s.rect = true;
  s.outline = {{'M', {{x, y}}}, {'L', {{x + w, y + h}}}};
  s.cornerRadius = r;
  s.fill = fill;
  return s;
}

Shape stroke(std::vector<Step> outline, QColor colour, double width) {
  Shape s;
  s.outline = std::move(outline);
  s.stroke = colour;
  s.strokeWidth = width;
  return s;
}

const std::vector<Shape>& artwork() {
  static const std::vector<Shape> shapes = [] {
    std::vector<Shape> v;
    v.push_back(roundRect(12, 12, 232, 232, 44, QColor("#24487a")));
    v.push_back(roundRect(48, 40, 152, 176, 8, QColor("#fbf7ee")));
    // Three strokes of paint across the sheet, the way the pencils lay them down.
    const QColor paints[] = {QColor("#e5412f"), QColor("#f4b92a"), QColor("#2f9bd6")};
    for (int i = 0; i < 3; ++i) {
      const double y = 84 + i * 38;
      v.push_back(stroke({{'M', {{66, y + 8}}}, {'C', {{96, y - 22}, {124, y + 30}, {164, y - 4}}}}, paints[i], 18));
    }
    // The quill: a feather from the nib at the lower left up past the tile's upper right corner.
    Shape feather;
    feather.outline = {{'M', {{58, 222}}},
                       {'C', {{80, 146}, {140, 74}, {232, 22}}},
                       {'C', {{214, 100}, {158, 166}, {74, 212}}},
                       {'Z', {}}};
    feather.fill = QColor("#ffffff");
    feather.stroke = QColor("#14233d");
    feather.strokeWidth = 6;
    v.push_back(feather);
    v.push_back(stroke({{'M', {{62, 216}}}, {'C', {{110, 160}, {160, 104}, {214, 50}}}}, QColor("#7d8aa3"), 4));
    return v;
  }();
  return shapes;
}

QPainterPath pathOf(const Shape& s) {
  QPainterPath p;
  if (s.rect) {
    const QRectF r(s.outline[0].pts[0], s.outline[1].pts[0]);
    p.addRoundedRect(r, s.cornerRadius, s.cornerRadius);
    return p;
  }
  for (const Step& st : s.outline) {
    if (st.op == 'M') p.moveTo(st.pts[0]);
    else if (st.op == 'L') p.lineTo(st.pts[0]);
    else if (st.op == 'C') p.cubicTo(st.pts[0], st.pts[1], st.pts[2]);
    else p.closeSubpath();
  }
  return p;
}

QString svgOf(const Shape& s) {
  const QString fill = s.fill.isValid() ? s.fill.name() : "none";
  const QString line = s.stroke.isValid()
                           ? QString(" stroke=\"%1\" stroke-width=\"%2\" stroke-linecap=\"round\" stroke-linejoin=\"round\"")
                                 .arg(s.stroke.name()).arg(s.strokeWidth)
                           : QString();
  if (s.rect) {
    const QRectF r(s.outline[0].pts[0], s.outline[1].pts[0]);
    return QString("  <rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" rx=\"%5\" fill=\"%6\"%7/>\n")
        .arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height()).arg(s.cornerRadius).arg(fill, line);
  }
  QStringList d;
  for (const Step& st : s.outline) {
    QString part(st.op);
    for (const QPointF& p : st.pts) part += QString(" %1 %2").arg(p.x()).arg(p.y());
    d << part;
  }
  return QString("  <path d=\"%1\" fill=\"%2\"%3/>\n").arg(d.join(' '), fill, line);
}

QImage render(int size) {
  QImage img(size, size, QImage::Format_ARGB32_Premultiplied);
  img.fill(Qt::transparent);
  QPainter p(&img);
  p.setRenderHint(QPainter::Antialiasing);
  p.scale(size / 256.0, size / 256.0);
  for (const Shape& s : artwork()) {
    const QPainterPath path = pathOf(s);
    if (s.fill.isValid()) p.fillPath(path, s.fill);
    if (s.stroke.isValid())
      p.strokePath(path, QPen(s.stroke, s.strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  }
  return img;
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication app(argc, argv);
  if (argc != 2) {
    std::fprintf(stderr, "usage: make_icons OUTDIR\n");
    return 2;
  }
  const QDir out(QString::fromLocal8Bit(argv[1]));
  QFile svg(out.filePath("quillora.svg"));
  if (!out.mkpath(".") || !svg.open(QIODevice::WriteOnly | QIODevice::Truncate)) return 1;
  QTextStream t(&svg);
  t << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"256\" height=\"256\" viewBox=\"0 0 256 256\">\n";
  for (const Shape& s : artwork()) t << svgOf(s);
  t << "</svg>\n";
  for (int size : {16, 32, 48, 64, 128, 256}) {
    const QString dir = QString("%1x%1").arg(size);
    if (!out.mkpath(dir) || !render(size).save(out.filePath(dir + "/quillora.png"), "PNG")) return 1;
  }
  return 0;
}
