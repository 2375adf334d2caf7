// The windows at the desktop's screen scaling: ctest runs this at 100%, 150% and 200%
// (QT_SCALE_FACTOR). A picture keeps one image pixel to a logical pixel and is never smoothed (at
// 200% each is a crisp 2 x 2 block of screen pixels); the pointer drawn for a stroke scales alike.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <cmath>

#include "app/Program.h"
#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "platform/qt/Widgets.h"

namespace qp {
namespace {

// Neighbours differ in every channel, so that any blending between them shows.
QImage pattern(int w, int h) {
  QImage img(w, h, QImage::Format_ARGB32);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) img.setPixel(x, y, qRgb((x * 97) & 255, (y * 89) & 255, ((x + y) & 1) * 255));
  return img;
}

// How many screen pixels show the colour of no image pixel they cover: a blend of neighbours. At a
// whole scale each screen pixel covers one image pixel only.
int pixelsOff(const QImage& shot, const QImage& picture, QPoint origin) {
  const double s = shot.devicePixelRatio();
  const auto first = [s](int d) { return static_cast<int>(std::floor(d / s + 1e-9)); };
  const auto last = [s](int d) { return static_cast<int>(std::ceil((d + 1) / s - 1e-9)) - 1; };
  int off = 0;
  for (int dy = 0; dy < shot.height(); ++dy)
    for (int dx = 0; dx < shot.width(); ++dx) {
      const QRect covered(QPoint(first(dx), first(dy)) - origin, QPoint(last(dx), last(dy)) - origin);
      if (!picture.rect().contains(covered)) continue;  // the border around the picture
      bool shown = false;
      for (int y = covered.top(); y <= covered.bottom(); ++y)
        for (int x = covered.left(); x <= covered.right(); ++x) shown |= shot.pixel(dx, dy) == picture.pixel(x, y);
      off += !shown;
    }
  return off;
}

TEST(Scaling, PicturesAndThePointerAreCrispAtTheScreensScale) {
  HeadlessRuntime h;
  Program program(h.rt());
  FormView view(program.f);
  program.start();
  view.window().show();
  frmCanvas& f = program.f;
  const QImage picture = pattern(64, 48), icon = QImage(f.iPnt.Picture).convertToFormat(QImage::Format_ARGB32);
  f.PicPaint.Picture = picture;
  f.pPix.Visible = true;
  f.pPix.Picture = picture;
  f.PicPaint.MousePointer = 99;
  f.PicPaint.MouseIcon = f.iPnt.Picture;
  view.sync();
  const double scale = qApp->devicePixelRatio();
  const QImage shot = view.window().grab().toImage();
  shot.save(QString("scaling-%1.png").arg(qRound(scale * 100)));
  EXPECT_EQ(shot.size(), (QSizeF(view.window().size()) * scale).toSize());

  auto* canvas = dynamic_cast<PictureWidget*>(view.widgetFor(&f.PicPaint));
  auto* pixels = dynamic_cast<PictureWidget*>(view.widgetFor(&f.pPix));
  ASSERT_TRUE(canvas && pixels);
  const QImage pointer = canvas->cursor().pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
  EXPECT_EQ(pointer.deviceIndependentSize().toSize(), icon.size());
  const struct {
    const char* what;
    QImage shown, drawn;
    QPoint origin;
  } cases[] = {{"the canvas", canvas->grab().toImage(), picture, canvas->bitmapOrigin()},
               {"the pixel surface", pixels->grab().toImage(), picture, pixels->bitmapOrigin()},
               {"the stroke's pointer", pointer, icon, QPoint()}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_DOUBLE_EQ(c.shown.devicePixelRatio(), scale);
    EXPECT_EQ(pixelsOff(c.shown, c.drawn, c.origin), 0);
  }
}

}  // namespace
}  // namespace qp
