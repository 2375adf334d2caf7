// The bundled demo: a short session that paints with the pencils in each colour mode and saves
// the picture. Its strokes are written out point by point, as a recording would hold them.
#include <QStringList>
#include <QPointF>
#include <QtMath>
#include <cmath>

#include "script/CommandLine.h"

namespace qp::script {

namespace {

// F11 steps the colour mode down to Standard, then F12 up: Rainbow, Glow, Gradient.
void colourMode(QStringList& s, int mode) {
  s << "key F11" << "key F11" << "key F11";
  for (int i = 0; i < mode; ++i) s << "key F12";
}

// One stroke through the points of a curve, t running from 0 to 1.
template <class Curve>
void stroke(QStringList& s, int steps, Curve curve, int waitMs = 0) {
  auto at = [&](int i) {
    const QPointF p = curve(static_cast<double>(i) / steps);
    return QString("%1 %2").arg(qRound(p.x())).arg(qRound(p.y()));
  };
  s << "press PicPaint " + at(0);
  for (int i = 1; i <= steps; ++i) {
    if (waitMs > 0) s << QString("wait %1").arg(waitMs);
    s << "move PicPaint " + at(i);
  }
  s << "release PicPaint " + at(steps);
}

}  // namespace

QString demoScript(const QString& outBmp) {
  QStringList s;
  s << "# Quillora Pro demo: the pencils in every colour mode" << "seed 7";

  s << "# Rainbow spiral with a broad pencil" << "set vPencil.Value 6" << "menu mPencil";
  colourMode(s, 1);
  stroke(s, 600, [](double t) {
    const double a = t * 6 * M_PI, r = 20 + t * 230;
    return QPointF(380 + r * std::cos(a), 280 + r * std::sin(a));
  });

  s << "# Glow waves with a shadow" << "set vPencil.Value 3" << "menu mShadow";
  colourMode(s, 2);
  for (int k = 0; k < 4; ++k) {
    stroke(s, 200, [k](double t) {
      return QPointF(40 + t * 680, 60 + k * 140 + 35 * std::sin(t * 4 * M_PI + k));
    });
  }

  s << "# A standard white rose" << "set vPencil.Value 2" << "menu mPencil";
  colourMode(s, 0);
  stroke(s, 400, [](double t) {
    const double a = t * 2 * M_PI, r = 90 * std::cos(4 * a);
    return QPointF(380 + r * std::cos(a), 280 + r * std::sin(a));
  });

  s << "# Gradient colours: the colour walks on its own timer while the stroke lasts"
    << "set vPencil.Value 4" << "menu mPencil";
  colourMode(s, 3);
  stroke(s, 300, [](double t) { return QPointF(60 + t * 640, 520 - 40 * std::sin(t * M_PI)); }, 4);
  s << "wait 500";

  s << "save PicPaint " + outBmp;
  return s.join('\n') + '\n';
}

}  // namespace qp::script
