// The windows at the desktop's screen scaling (QT_SCALE_FACTOR: ctest runs this at 100%, 150% and
// 200%). The picture keeps one image pixel to a logical pixel and is never smoothed: at 200% each
// pixel is a crisp 2 x 2 block of the screen's pixels; the pointer drawn for a stroke scales alike.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPixmap>
#include <cmath>
#include <utility>
#include <QWidget>

#include "app/Program.h"
#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "platform/qt/Widgets.h"

namespace qp {
namespace {

// Neighbours differ in every channel, so that any blending between them shows.
QImage pattern(int w, int h) {
  QImage img(w, h, QImage::Format_RGB32);
  for (int y = 0; y < h; ++y)
    for (int x = 0; x < w; ++x) img.setPixel(x, y, qRgb((x * 97) & 255, (y * 89) & 255, ((x + y) & 1) * 255));
  return img;
}

// How many screen pixels of a grab show a colour of no image pixel they cover: a blend of
// neighbours. At a whole scale each screen pixel covers one image pixel, which it must show.
int pixelsOff(const QImage& shot, const QImage& picture, QPoint origin) {
  const double scale = shot.devicePixelRatio();
  const auto covered = [scale](int d, int o) {
    return std::pair{static_cast<int>(std::floor(d / scale + 1e-9)) - o,
                     static_cast<int>(std::ceil((d + 1) / scale - 1e-9)) - 1 - o};
  };
  int off = 0;
  for (int dy = 0; dy < shot.height(); ++dy)
    for (int dx = 0; dx < shot.width(); ++dx) {
      const auto [x0, x1] = covered(dx, origin.x());
      const auto [y0, y1] = covered(dy, origin.y());
      if (!picture.valid(x0, y0) || !picture.valid(x1, y1)) continue;  // the border around it
      bool shown = false;
      for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x) shown = shown || shot.pixel(dx, dy) == picture.pixel(x, y);
      off += !shown;
    }
  return off;
}

class Scaling : public ::testing::Test {
 protected:
  void SetUp() override {
    program.start();
    view.sync();
    view.window().show();
  }
  double scale() const { return qApp->devicePixelRatio(); }
  HeadlessRuntime h;
  Program program{h.rt()};
  FormView view{program.f};
};

TEST_F(Scaling, TheWindowIsDrawnAtTheScreensScale) {
  const QImage shot = view.window().grab().toImage();
  EXPECT_DOUBLE_EQ(shot.devicePixelRatio(), scale());
  EXPECT_EQ(shot.size(), (QSizeF(view.window().size()) * scale()).toSize());
  shot.save(QString("scaling-%1.png").arg(qRound(scale() * 100)));
}

TEST_F(Scaling, EveryImagePixelIsACrispBlockOfScreenPixels) {
  struct Case {
    const char* what;
    PictureBox* box;
  };
  const Case cases[] = {{"the canvas", &program.f.PicPaint}, {"the pixel surface", &program.f.pPix}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    c.box->Visible = true;
    const QImage picture = pattern(64, 48);
    c.box->Picture = picture;
    view.sync();
    auto* w = dynamic_cast<PictureWidget*>(view.widgetFor(c.box));
    ASSERT_NE(w, nullptr);
    const QImage shot = w->grab().toImage();
    ASSERT_DOUBLE_EQ(shot.devicePixelRatio(), scale());
    EXPECT_EQ(pixelsOff(shot, picture, w->bitmapOrigin()), 0);
  }
}

TEST_F(Scaling, TheStrokesPointerHasTheScreensScale) {
  program.f.PicPaint.MousePointer = 99;
  program.f.PicPaint.MouseIcon = program.f.iPnt.Picture;
  view.sync();
  const QImage icon = program.f.iPnt.Picture;
  const QPixmap pointer = view.widgetFor(&program.f.PicPaint)->cursor().pixmap();
  EXPECT_DOUBLE_EQ(pointer.devicePixelRatio(), scale());
  EXPECT_EQ(pointer.deviceIndependentSize().toSize(), icon.size());
  QImage shown = pointer.toImage().convertToFormat(QImage::Format_ARGB32);
  EXPECT_EQ(pixelsOff(shown, icon.convertToFormat(QImage::Format_ARGB32), QPoint()), 0);
}

}  // namespace
}  // namespace qp
