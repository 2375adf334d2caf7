// A session recorded through the real window replays headless to the same picture.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QScrollBar>

#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "script/Recorder.h"
#include "script/Runner.h"
#include "script/Sessions.h"
#include "app/Program.h"

namespace qp::script {

namespace {

void mouse(QWidget* w, QEvent::Type t, QPoint at, Qt::MouseButton b, Qt::MouseButtons held) {
  QMouseEvent e(t, QPointF(at), w->mapToGlobal(QPointF(at)), b, held, Qt::NoModifier);
  QApplication::sendEvent(w, &e);
}

// Chooses a menu item the way a user's click on the open menu does.
void chooseFromMenu(FormView& view, Menu& item) {
  QAction* a = view.actionFor(&item);
  ASSERT_TRUE(a);
  auto* menu = qobject_cast<QMenu*>(a->parent());
  ASSERT_TRUE(menu);
  menu->popup(QPoint(0, 0));
  const QPoint at = menu->actionGeometry(a).center();
  mouse(menu, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
  mouse(menu, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
  menu->hide();
}

// One step of a bar's arrow, the way that raises the value (bars may run either way round).
void stepUp(FormView& view, ScrollBar& control) {
  auto* bar = qobject_cast<QScrollBar*>(view.widgetFor(&control));
  ASSERT_TRUE(bar);
  const int before = control.Value;
  bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
  if (control.Value <= before) bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  if (control.Value <= before) bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
}

}  // namespace

// One session through the real window, the canvas's and a workshop window's input alike (the latter
// recorded under its window's name), replays headless to the same pictures.
TEST(Recorder, ARecordedSessionReplaysToTheSamePictures) {
  QBuffer file;
  file.open(QIODevice::ReadWrite);
  HeadlessRuntime live(4242);
  Program program(live.rt());
  FormView view(program.f), tileView(program.w.tile);
  Recorder recorder(view, live.loop, 4242, file);
  recorder.watch(tileView);
  program.start();
  view.sync();
  view.window().show();

  // A wider pen, from the draw-width bar's arrow; the mode takes the width from the bar.
  stepUp(view, program.f.vPencil);
  stepUp(view, program.f.vPencil);
  chooseFromMenu(view, program.f.mPencil);
  const int width = program.m.DrawWidth;
  ASSERT_GT(width, 1);
  // A rainbow stroke: the colour steps with every event, so the replay must match them one for one.
  QWidget* canvas = view.widgetFor(&program.f.PicPaint);
  ASSERT_TRUE(canvas);
  canvas->setFocus();
  QKeyEvent f12(QEvent::KeyPress, Qt::Key_F12, Qt::NoModifier);
  QKeyEvent f12up(QEvent::KeyRelease, Qt::Key_F12, Qt::NoModifier);
  const int colourMode = program.f.vColmode.Value;
  QApplication::sendEvent(canvas, &f12);
  QApplication::sendEvent(canvas, &f12up);
  ASSERT_EQ(program.f.vColmode.Value, colourMode + 1);
  mouse(canvas, QEvent::MouseButtonPress, {30, 40}, Qt::LeftButton, Qt::LeftButton);
  live.loop.advance(16);
  for (int i = 1; i <= 40; ++i) {
    mouse(canvas, QEvent::MouseMove, {30 + i * 5, 40 + (i % 7) * 6}, Qt::NoButton, Qt::LeftButton);
    live.loop.advance(10);
  }
  mouse(canvas, QEvent::MouseButtonRelease, {230, 80}, Qt::LeftButton, Qt::NoButton);
  QKeyEvent ctrl(QEvent::KeyPress, Qt::Key_Control, Qt::ControlModifier);
  QApplication::sendEvent(canvas, &ctrl);
  ASSERT_EQ(program.f.CtrlDown, -1);

  frmTile& tile = program.w.tile;
  chooseFromMenu(view, program.f.mTileSet);
  tileView.sync();
  chooseFromMenu(tileView, tile.mQuillora);
  stepUp(tileView, tile.vTile);
  auto* go = qobject_cast<QAbstractButton*>(tileView.widgetFor(&tile.cTile));
  ASSERT_TRUE(go);
  go->click();
  live.loop.advance(500);
  ASSERT_EQ(tile.lT2.Caption.get(), "1");
  // The time the tiling took reaches the script with the next input.
  mouse(tileView.widgetFor(&tile.pLO), QEvent::MouseMove, {5, 5}, Qt::NoButton, Qt::NoButton);
  // A key to the workshop window itself, where no control has the focus.
  if (QWidget* focus = QApplication::focusWidget()) focus->clearFocus();
  QApplication::sendEvent(tileView.window().centralWidget(), &ctrl);
  ASSERT_EQ(tile.CtrlDown, -1);

  // Most lines are checked by the replay below; the pauses between moves are not.
  const QString script = QString::fromUtf8(file.data());
  EXPECT_TRUE(script.contains("wait 10\nmove PicPaint 40 52 left\n")) << script.toStdString();

  std::vector<Command> commands;
  ParseError perr;
  ASSERT_TRUE(parseScript(script, commands, perr)) << perr.line << ": " << perr.message.toStdString();
  EXPECT_EQ(takeLeadingSeed(commands), 4242u);
  QString printed;
  QTextStream out(&printed);
  HeadlessSession replay(4242, QSize(1280, 1024), out);
  Runner runner(replay.program(), replay.rt(), replay, out, out);
  ASSERT_EQ(runner.runAll(commands), 0) << printed.toStdString();
  EXPECT_EQ(replay.program().m.DrawWidth, width);
  EXPECT_EQ(replay.program().f.CtrlDown, -1);
  EXPECT_EQ(replay.program().w.tile.CtrlDown, -1);
  const QImage a = program.f.PicPaint.bitmap(), b = replay.program().f.PicPaint.bitmap();
  EXPECT_EQ(a, b);
  EXPECT_NE(a.pixel(30, 40) & 0xFFFFFF, 0u);  // the stroke is there
  const QImage tiled = tile.pLO.bitmap();
  EXPECT_EQ(tiled, replay.program().w.tile.pLO.bitmap());
  QImage black(tiled.size(), tiled.format());
  black.fill(Qt::black);
  EXPECT_NE(tiled, black);  // the stroke, tiled
}

}  // namespace qp::script
