// The windows as the user sees them: every caption, help text and value label fits its control in
// every paint mode, and pictures stay crisp. ctest runs these at 100% and again at 150% and 200%
// screen scaling (QT_SCALE_FACTOR): a picture keeps one image pixel to a logical pixel and is never
// smoothed (at 200% each is a crisp 2 x 2 block of screen pixels); the stroke's pointer scales alike.
#include <gtest/gtest.h>

#include <cmath>

#include <QAbstractButton>
#include <QGuiApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>

#include "core/HelpTexts.h"
#include "core/PaintModes.h"
#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "platform/qt/Widgets.h"
#include "app/Program.h"

namespace qp {
namespace {

// The colour a label's text stands on: its own, or, when it lets the background through, that of
// the nearest container that paints one.
Colour backBehind(const Control* c) {
  auto* v = dynamic_cast<const VisualControl*>(c);
  auto* l = dynamic_cast<const Label*>(c);
  if (l && l->BackStyle == 0 && c->parent()) return backBehind(c->parent());
  if (l && l->BackStyle == 0) return c->form()->BackColor;
  return v ? v->BackColor.get() : c->form()->BackColor.get();
}

// Why the shown control cannot be read whole, as "name: ..."; empty when it can. A caption must fit
// its control, its text must differ from the colour behind it, and the control must lie within the
// frame that holds it (the frame clips what lies outside).
QString cutOf(FormView& view, Control* c) {
  QWidget* w = view.widgetFor(c);
  if (!w || !w->isVisibleTo(&view.window())) return {};
  QWidget* holder = c->parent() ? view.widgetFor(c->parent()) : nullptr;
  if (holder && !QRect(QPoint(), holder->size()).contains(w->geometry()))
    return QString("%1 lies outside %2").arg(c->key(), c->parent()->key());
  const QFontMetrics fm = w->fontMetrics();
  QString text;
  bool fits = true;
  QSize need, room = w->size();
  if (auto* b = qobject_cast<QAbstractButton*>(w)) {
    // The caption is drawn into the button's contents rectangle, beside any check mark.
    text = b->text();
    QStyleOptionButton opt;
    opt.initFrom(b);
    opt.text = text;
    const auto element = qobject_cast<QCheckBox*>(b)      ? QStyle::SE_CheckBoxContents
                         : qobject_cast<QRadioButton*>(b) ? QStyle::SE_RadioButtonContents
                                                          : QStyle::SE_PushButtonContents;
    room = b->style()->subElementRect(element, &opt, b).size();
    need = QSize(fm.horizontalAdvance(text), 0);
    fits = need.width() <= room.width();
  } else if (auto* g = qobject_cast<QGroupBox*>(w)) {
    text = g->title();
    need = QSize(fm.horizontalAdvance(text), 0);
    fits = need.width() <= g->width();
  } else if (auto* l = dynamic_cast<Label*>(c)) {
    // A label wraps at word breaks: every line must fit across, and all of them down.
    text = l->Caption;
    if (!text.trimmed().isEmpty() && l->ForeColor.get() == backBehind(c))
      return QString("%1: \"%2\" in the colour behind it").arg(c->key(), text.left(40));
    need = fm.boundingRect(w->rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text).size();
    fits = need.width() <= w->width() && need.height() <= w->height();
  }
  if (text.trimmed().isEmpty() || fits) return {};
  return QString("%1: \"%2\" needs %3 x %4, has %5 x %6")
      .arg(c->key(), text.left(40)).arg(need.width()).arg(need.height()).arg(room.width()).arg(room.height());
}

std::string cutCaptions(FormView& view) {
  view.sync();
  QStringList cut;
  for (Control* c : view.form().controls())
    if (const QString why = cutOf(view, c); !why.isEmpty()) cut << why;
  return cut.join("; ").toStdString();
}

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

class WindowLook : public ::testing::Test {
 protected:
  void SetUp() override {
    program.start();
    main.window().show();
  }
  void choose(Menu& item) {
    item.raiseClick();
    h.loop.advance(50);
  }
  HeadlessRuntime h;
  Program program{h.rt()};
  frmCanvas& f = program.f;
  FormView main{program.f};
};

// In every mode, the help line also holds the longest of its texts whole: the mode's own help and
// the sentences that the pointer brings up as it passes over each control.
TEST_F(WindowLook, EveryCaptionAndHelpTextFitsItsControlInEveryMode) {
  FormView file(program.w.file);
  // The screenshot (for the README) is drawn at the screen's scale.
  main.window().grab().toImage().save(QString("look-%1.png").arg(qRound(qApp->devicePixelRatio() * 100)));
  EXPECT_EQ(cutCaptions(main), "") << "at start-up";
  auto helpCut = [&] {
    main.sync();
    return (cutOf(main, &f.lHelp) + cutOf(main, &f.lHelpb)).toStdString();
  };
  for (const PaintModeInfo& mode : paintModes()) {
    auto* item = dynamic_cast<Menu*>(f.find(mode.menu));
    if (!item) continue;
    choose(*item);
    EXPECT_EQ(cutCaptions(main), "") << "in " << mode.caption;
    for (int state = -1; state <= 2; ++state) {
      if (const char* text = modeHelpText(mode.number, state)) {
        f.lHelp.Caption = text;
        EXPECT_EQ(helpCut(), "") << "in " << mode.caption << ", state " << state;
      }
    }
    for (Control* c : f.controls()) {
      auto* v = dynamic_cast<VisualControl*>(c);
      if (!v || !v->MouseMove || v == &f.PicPaint || v == &f.pPix) continue;
      f.lHelp.Caption = "";
      v->raiseMouseMove(0, 0, 15, 15);
      EXPECT_EQ(helpCut(), "") << "in " << mode.caption << ", over " << c->key().toStdString();
    }
  }
  // The state line's longest sentences, as the bars write them.
  struct Tell {
    Menu* mode;
    ScrollBar* bar;
    int value;
  } tells[] = {{&f.mCircFx, &f.vVal3, 15}, {&f.mSpir2, &f.vVal2, 30}, {&f.mBrushes, &f.vVal2, 12}};
  for (const Tell& t : tells) {
    choose(*t.mode);
    t.bar->Value = t.value;
    ASSERT_TRUE(f.lTell.Caption.get().startsWith("Click arrows")) << f.lTell.Caption.get().toStdString();
    EXPECT_EQ(cutCaptions(main), "") << "in " << t.mode->Caption.get().toStdString();
    // The next mode starts with its own state line, not this mode's last sentence.
    choose(f.mPencil);
    EXPECT_EQ(f.lTell.Caption.get().toStdString(), "") << "after " << t.mode->Caption.get().toStdString();
  }
  f.mnuSave.raiseClick();
  EXPECT_TRUE(program.w.file.Visible);
  EXPECT_EQ(cutCaptions(file), "");
}

// What the user can reach in the text frame: the depth and axis boxes of 3D Text lie under a cover
// in the Text Brush, and the Text Brush's own size box is on top there.
TEST_F(WindowLook, TheTextFrameShowsEachTextToolItsOwnBoxes) {
  // Whether the control is what the pointer meets at its centre.
  auto onTop = [&](VisualControl& c) {
    main.sync();
    QWidget* w = main.widgetFor(&c);
    if (!w || !w->isVisibleTo(&main.window())) return false;
    QWidget* top = main.window().childAt(w->mapTo(&main.window(), w->rect().center()));
    return top == w || w->isAncestorOf(top);
  };
  struct Case {
    Menu* mode;
    bool depthAndAxis, randomSize;
  } cases[] = {{&f.mTxBrush, false, true}, {&f.mText, true, false}, {&f.mTxBrush, false, true}};
  for (const Case& c : cases) {
    choose(*c.mode);
    EXPECT_EQ(onTop(f.pCount), c.depthAndAxis) << c.mode->Caption.get().toStdString();
    EXPECT_EQ(onTop(f.pCoords), c.depthAndAxis) << c.mode->Caption.get().toStdString();
    EXPECT_EQ(onTop(f.ckTx), c.randomSize) << c.mode->Caption.get().toStdString();
  }
}

using Scaling = WindowLook;

TEST_F(Scaling, PicturesAndThePointerAreCrispAtTheScreensScale) {
  const QImage picture = pattern(64, 48), icon = QImage(f.iPnt.Picture).convertToFormat(QImage::Format_ARGB32);
  f.PicPaint.Picture = picture;
  f.pPix.Visible = true;
  f.pPix.Picture = picture;
  f.PicPaint.MousePointer = 99;
  f.PicPaint.MouseIcon = f.iPnt.Picture;
  main.sync();
  const double scale = qApp->devicePixelRatio();
  const QImage shot = main.window().grab().toImage();
  shot.save(QString("scaling-%1.png").arg(qRound(scale * 100)));
  EXPECT_EQ(shot.size(), (QSizeF(main.window().size()) * scale).toSize());

  auto* canvas = dynamic_cast<PictureWidget*>(main.widgetFor(&f.PicPaint));
  auto* pixels = dynamic_cast<PictureWidget*>(main.widgetFor(&f.pPix));
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
