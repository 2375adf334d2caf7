// The windows as the user sees them: every caption, help text and value label fits its control in
// every paint mode. ctest runs this at 100% and again at 200% screen scaling (QT_SCALE_FACTOR=2).
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>

#include "core/PaintModes.h"
#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "app/Program.h"

namespace qp {
namespace {

// The captions of the shown controls that do not fit, as "name: caption (room)", joined.
std::string cutCaptions(FormView& view) {
  view.sync();
  QStringList cut;
  for (Control* c : view.form().controls()) {
    QWidget* w = view.widgetFor(c);
    if (!w || !w->isVisibleTo(&view.window()) || w->width() <= 0) continue;
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
    } else if (c->kind() == ControlKind::Label) {
      // A label wraps at word breaks: every line must fit across, and all of them down.
      text = static_cast<Label*>(c)->Caption;
      need = fm.boundingRect(w->rect(), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text).size();
      fits = need.width() <= w->width() && need.height() <= w->height();
    }
    if (!text.trimmed().isEmpty() && !fits)
      cut << QString("%1: \"%2\" needs %3 x %4, has %5 x %6")
                 .arg(c->key(), text.left(40)).arg(need.width()).arg(need.height()).arg(room.width()).arg(room.height());
  }
  return cut.join("; ").toStdString();
}

TEST(WindowLook, EveryCaptionFitsItsControlInEveryMode) {
  HeadlessRuntime h;
  Program program(h.rt());
  FormView main(program.f), file(program.w.file), layout(program.w.lo);
  program.start();
  main.window().show();
  // The screenshot is drawn at the screen's scale: the check below is made at that scale too.
  const double scale = qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? qEnvironmentVariable("QT_SCALE_FACTOR").toDouble() : 1.0;
  const QImage shot = main.window().grab().toImage();
  EXPECT_DOUBLE_EQ(shot.devicePixelRatio(), scale);
  EXPECT_EQ(shot.width(), qRound(main.window().width() * scale));
  shot.save(QString("look-%1.png").arg(qRound(scale * 100)));

  EXPECT_EQ(cutCaptions(main), "") << "at start-up";
  for (const PaintModeInfo& mode : paintModes()) {
    auto* item = dynamic_cast<Menu*>(program.f.find(mode.menu));
    if (!item) continue;
    item->raiseClick();
    h.loop.advance(50);
    EXPECT_EQ(cutCaptions(main), "") << "in " << mode.caption;
  }
  // The state line's longest sentences, as the bars write them.
  frmCanvas& f = program.f;
  struct Tell {
    Menu* mode;
    ScrollBar* bar;
    int value;
  } tells[] = {{&f.mCircFx, &f.vVal3, 15}, {&f.mSpir2, &f.vVal2, 30}, {&f.mBrushes, &f.vVal2, 12}};
  for (const Tell& t : tells) {
    t.mode->raiseClick();
    h.loop.advance(50);
    t.bar->Value = t.value;
    ASSERT_TRUE(f.lTell.Caption.get().startsWith("Click arrows")) << f.lTell.Caption.get().toStdString();
    EXPECT_EQ(cutCaptions(main), "") << "in " << t.mode->Caption.get().toStdString();
  }
  program.f.mnuSave.raiseClick();
  EXPECT_TRUE(program.w.file.Visible);
  EXPECT_EQ(cutCaptions(file), "");
}

// What the user can reach in the text frame: the depth and axis boxes of 3D Text lie under a cover
// in the Text Brush, and the Text Brush's own size box is on top there.
TEST(WindowLook, TheTextFrameShowsEachTextToolItsOwnBoxes) {
  HeadlessRuntime h;
  Program program(h.rt());
  FormView main(program.f);
  program.start();
  main.window().show();
  frmCanvas& f = program.f;
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
    c.mode->raiseClick();
    h.loop.advance(50);
    EXPECT_EQ(onTop(f.pCount), c.depthAndAxis) << c.mode->Caption.get().toStdString();
    EXPECT_EQ(onTop(f.pCoords), c.depthAndAxis) << c.mode->Caption.get().toStdString();
    EXPECT_EQ(onTop(f.ckTx), c.randomSize) << c.mode->Caption.get().toStdString();
  }
}

}  // namespace
}  // namespace qp
