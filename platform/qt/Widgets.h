#pragma once
// The widgets that draw a control themselves: labels, shapes, lines, images and picture boxes.
// The rest of the controls show as Qt's own widgets (see FormView).
#include <QColor>
#include <QFont>
#include <QPointF>
#include <QProxyStyle>
#include <QWidget>

#include "platform/Controls.h"

namespace qp {

class PictureBox;

inline QColor toQColor(Colour c) { return QColor(redOf(c), greenOf(c), blueOf(c)); }

// A font as the windows' layout means it. The layout places controls at 15 twips a pixel and sized
// every caption for the classic 8 point screen font, whose letters are as wide as Arial's at 10
// pixels; so a size in points becomes pixels at that ratio (8 points, 10 pixels), whatever the
// screen's own dots per inch, and screen scaling then enlarges type and controls alike. "Arial"
// comes out as its metric twin where it is missing.
QFont layoutFont(const QString& name, double points, bool bold = false);
// The windows' own type, for every caption that does not name a font: the controls' default.
inline QFont formFont() { return layoutFont("Arial", 8); }

// Check boxes and option buttons as the layout was made for them: a 13 pixel box and 3 pixels
// between it and the caption, where the desktop style leaves more and would cut the caption short.
class DesignStyle : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                  const QWidget* widget = nullptr) const override;
};

class LabelWidget : public QWidget {
 public:
  LabelWidget(Label& c, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  Label& c_;
};

class ShapeWidget : public QWidget {
 public:
  ShapeWidget(Shape& c, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  Shape& c_;
};

// A line covers the box around its two ends and lets the pointer through to what lies beneath.
class LineWidget : public QWidget {
 public:
  LineWidget(Line& c, QWidget* parent);
  // The box in the parent's pixels, from the line's ends.
  QRect box() const;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  QPointF toPixels(Single x, Single y) const;
  Line& c_;
};

class ImageWidget : public QWidget {
 public:
  ImageWidget(Image& c, QWidget* parent);
  qint64 shownKey = 0;  // the picture last painted, so that a new one is noticed

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  Image& c_;
};

// Shows the picture box's bitmap, inside its border.
class PictureWidget : public QWidget {
 public:
  PictureWidget(PictureBox& c, QWidget* parent);
  // Where the bitmap's top-left pixel lies in the widget.
  QPoint bitmapOrigin() const;
  // A point of the widget in the picture box's present scale.
  QPointF toScale(QPointF widgetPos) const;
  QSize shownSize;  // size of the bitmap last painted, so that a new size repaints all

 protected:
  void paintEvent(QPaintEvent* e) override;

 private:
  PictureBox& c_;
};

}  // namespace qp
