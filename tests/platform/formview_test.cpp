// The desktop view of forms, driven through real Qt widgets on the offscreen platform: where the
// widgets sit, what the user's pointer, keys and drops reach, several windows and a modal Show.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>

#include "platform/Controls.h"
#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "platform/qt/Keys.h"
#include "platform/qt/QtRuntime.h"
#include "surface/PictureBox.h"

using namespace qp;

namespace {

struct Canvas : Form {
  explicit Canvas(Runtime& rt) : Form(rt, "frmCanvas") {
    PicPaint.BorderStyle = 0;
    PicPaint.Move(1500, 750, 3000, 1500);  // 200 x 100 pixels at (100, 50)
    vVal1.Min = 120;
    vVal1.Max = 8;
    vVal1.Value = 24;
    vVal1.SmallChange = 2;
    lHelp.Move(150, 300, 1500, 450);
    txHelp.MultiLine = true;
    txHelp.Text = "Quillora\r\nPro";
  }
  PictureBox PicPaint{this, nullptr, "PicPaint"};
  VScrollBar vVal1{this, nullptr, "vVal1"};
  Label lHelp{this, nullptr, "lHelp"};
  CheckBox ckHold{this, nullptr, "ckHold"};
  TextBox txHelp{this, nullptr, "txHelp"};
  Menu mnuToolz{this, nullptr, "mnuToolz", "&Toolz"};
  Menu mPencil{this, &mnuToolz, "mPencil", "Pencil"};
  Menu mSep{this, &mnuToolz, "mSep", "-"};
  Menu mEraser{this, &mnuToolz, "mEraser", "Eraser"};
};

struct Dialog : Form {
  explicit Dialog(Runtime& rt) : Form(rt, "frmDialog") { txt.Move(150, 150, 3000, 1200); }
  TextBox txt{this, nullptr, "txt"};
};

struct FormViewTest : ::testing::Test {
  HeadlessRuntime h;
  Canvas f{h.rt()};
  FormView view{f};
  struct Press { int button, shift; float x, y; bool operator==(const Press&) const = default; };
  std::vector<Press> presses;

  void press(QWidget* w, QPoint at, Qt::MouseButton b, Qt::KeyboardModifiers mods = {}) {
    QMouseEvent e(QEvent::MouseButtonPress, QPointF(at), w->mapToGlobal(QPointF(at)), b, b, mods);
    QApplication::sendEvent(w, &e);
  }
};

TEST_F(FormViewTest, WidgetsSitWhereTheControlsAreInPixels) {
  QWidget* pic = view.widgetFor(&f.PicPaint);
  ASSERT_NE(pic, nullptr);
  EXPECT_EQ(pic->geometry(), QRect(100, 50, 200, 100));
  EXPECT_EQ(view.widgetFor(&f.lHelp)->geometry(), QRect(10, 20, 100, 30));
  // Later writes reach the widgets at the next sync.
  f.lHelp.Visible = false;
  f.PicPaint.Left = 3000;
  f.Caption = "Untitled - Quillora Pro";
  f.mPencil.Enabled = false;
  f.mEraser.Caption = "Eraser!";
  view.sync();
  EXPECT_TRUE(view.widgetFor(&f.lHelp)->isHidden());
  EXPECT_EQ(pic->x(), 200);
  EXPECT_EQ(view.window().windowTitle(), "Untitled - Quillora Pro");
  EXPECT_TRUE(!view.actionFor(&f.mPencil)->isEnabled() && view.actionFor(&f.mSep)->isSeparator());
  EXPECT_EQ(view.actionFor(&f.mEraser)->text(), "Eraser!");
}

TEST_F(FormViewTest, PressOnPictureReachesMouseDownInItsScale) {
  f.PicPaint.MouseDown = [&](int b, int s, Single x, Single y) { presses.push_back({b, s, x, y}); };
  QWidget* pic = view.widgetFor(&f.PicPaint);
  press(pic, {10, 20}, Qt::LeftButton);
  f.PicPaint.ScaleMode = 3;  // pixels
  view.sync();
  press(pic, {10, 20}, Qt::RightButton, Qt::ControlModifier | Qt::ShiftModifier);
  // In twips first, fifteen to a pixel, then in pixels.
  EXPECT_EQ(presses, (std::vector<Press>{{vbLeftButton, 0, 150, 300}, {vbRightButton, vbShiftMask | vbCtrlMask, 10, 20}}));
  // An error in a handler stays inside the view.
  f.PicPaint.MouseDown = [&](int, int, Single, Single) { raiseError(RuntimeError::Overflow); };
  EXPECT_NO_THROW(press(pic, {1, 1}, Qt::LeftButton));
}

TEST_F(FormViewTest, ScrollBarAndCheckBoxWidgetsDriveTheirControlsBothWays) {
  auto* bar = qobject_cast<QScrollBar*>(view.widgetFor(&f.vVal1));
  auto* box = qobject_cast<QCheckBox*>(view.widgetFor(&f.ckHold));
  ASSERT_TRUE(bar && box);
  int changes = 0;
  f.vVal1.Change = [&] { ++changes; };
  EXPECT_EQ(bar->value(), 24);
  // Min 120 above Max 8: a step toward the bar's top end raises the value.
  bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(f.vVal1.Value, 26);
  bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
  EXPECT_EQ(std::pair(int(f.vVal1.Value), changes), std::pair(24, 2));
  f.vVal1.Value = 100;
  view.sync();
  EXPECT_EQ(std::pair(bar->value(), changes), std::pair(100, 3)) << "showing the program's value raises nothing more";
  int clicks = 0;  // a check box clicked on screen goes through the control
  f.ckHold.Click = [&] { ++clicks; };
  box->click();
  EXPECT_EQ(std::pair(int(f.ckHold.Value), clicks), std::pair(1, 1));
  f.ckHold.Value = 2;
  view.sync();
  EXPECT_EQ(box->checkState(), Qt::PartiallyChecked);
  // A multi-line text box shows the program's line breaks and hands back the user's.
  auto* edit = qobject_cast<QPlainTextEdit*>(view.widgetFor(&f.txHelp));
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->toPlainText(), "Quillora\nPro");
  f.txHelp.Change = [&] { ++changes; };
  edit->moveCursor(QTextCursor::End);
  edit->insertPlainText("\nPaint");  // the user typing Enter and a word
  EXPECT_TRUE(f.txHelp.Text.get() == "Quillora\r\nPro\r\nPaint" && changes > 3) << f.txHelp.Text.get().toStdString();
  f.txHelp.Text = "one\r\ntwo\r\nthree";
  view.sync();
  EXPECT_EQ(edit->document()->blockCount(), 3);
}

// Keys reach the form first with KeyPreview, then the focused control; a second window takes them
// while it shows and gives them back to the window active again once it hides.
TEST_F(FormViewTest, KeysGoToTheFormFirstAndToTheActiveWindow) {
  std::vector<std::string> order;
  const auto log = [&](const char* who, int n) { order.push_back(who + std::to_string(n)); };
  f.KeyPreview = true;
  f.KeyDown = [&](int& code, int shift) { log("form ", code * 10 + shift); };
  f.PicPaint.KeyDown = [&](int& code, int) { log("pic ", code); };
  f.PicPaint.KeyPress = [&](int& ascii) { log("press ", ascii); };
  Dialog d(h.rt());
  FormView dialogView(d);
  d.txt.KeyDown = [&](int& code, int) { log("dialog ", code); };
  f.Show();
  view.sync();
  QWidget* pic = view.widgetFor(&f.PicPaint);
  view.activate();
  pic->setFocus();
  if (QApplication::focusWidget() != pic) GTEST_SKIP() << "this platform gives no keyboard focus";
  EXPECT_EQ(f.ActiveControl(), &f.PicPaint);
  const auto key = [](Qt::Key k, Qt::KeyboardModifiers mods, const QString& text) {
    QKeyEvent down(QEvent::KeyPress, k, mods, text);
    if (QWidget* w = QApplication::focusWidget()) QApplication::sendEvent(w, &down);
  };
  key(Qt::Key_Z, Qt::ControlModifier, QString(QChar(26)));
  d.Show();
  d.setFocusTo(&d.txt);
  dialogView.sync();
  key(Qt::Key_F12, {}, {});
  d.Hide();
  dialogView.sync();
  key(Qt::Key_F12, {}, {});
  EXPECT_EQ(order, (std::vector<std::string>{"form 902", "pic 90", "press 26", "dialog 123", "form 1230", "pic 123"}));
  EXPECT_EQ(h.loop.windows().active(), &f);
}

TEST(KeysTest, QtKeysBecomeTheRuntimesCodes) {
  // The keypad has codes of its own; Shift+1 is still 1.
  const std::tuple<int, Qt::KeyboardModifiers, int> keys[] = {
      {Qt::Key_7, {}, 55}, {Qt::Key_7, Qt::KeypadModifier, 103}, {Qt::Key_Enter, Qt::KeypadModifier, 13},
      {Qt::Key_F12, {}, 123}, {Qt::Key_Down, {}, 40}, {Qt::Key_Exclam, Qt::ShiftModifier, 49}};
  for (const auto& [key, mods, code] : keys) EXPECT_EQ(keyCodeFor(key, mods), code) << key;
  EXPECT_EQ(shiftStateFor(Qt::ShiftModifier | Qt::AltModifier), vbShiftMask | vbAltMask);
}

TEST_F(FormViewTest, DroppedFilesReachOLEDragDrop) {
  QStringList got;
  f.PicPaint.OLEDragDrop = [&](const QStringList& files, int, int, Single, Single) { got = files; };
  QWidget* pic = view.widgetFor(&f.PicPaint);
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile("/tmp/a.bmp"), QUrl("https://example.org/b.bmp")});
  QDragEnterEvent refused(QPoint(5, 5), Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
  refused.ignore();
  QApplication::sendEvent(pic, &refused);
  EXPECT_FALSE(refused.isAccepted()) << "a picture box takes drops only when OLEDropEnabled";
  f.PicPaint.OLEDropEnabled = true;
  view.sync();
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(pic, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(pic, &drop);
  EXPECT_EQ(got, QStringList{"/tmp/a.bmp"});
}

TEST_F(FormViewTest, ModalShowWaitsUntilTheInputSourceHidesItsWindow) {
  // A modal window opened from inside another returns first; the outer one goes on waiting until
  // it hides too, and the window below is active again.
  Dialog d(h.rt()), inner(h.rt());
  f.Show();
  std::vector<std::string> order;
  int step = 0;
  h.loop.setInputSource([&] {
    ++step;
    EXPECT_NE(h.loop.windows().modal(), nullptr) << "a window is modal while Show waits";
    if (step == 1) {
      inner.Show(true);
      order.push_back("inner returned");
    }
    if (step == 2) inner.Hide();
    if (step == 3) d.Hide();
    return step < 10;
  });
  d.Show(true);
  order.push_back("outer returned");
  EXPECT_EQ(order, (std::vector<std::string>{"inner returned", "outer returned"}));
  EXPECT_EQ(step, 3);
  EXPECT_EQ(h.loop.windows().active(), &f);
  h.loop.setInputSource({});
}

TEST(ModalShow, OnScreenRunsQtsLoopUntilTheWindowHides) {
  QtRuntime q;
  Dialog d(q.rt());
  FormView dialogView(d);
  bool modalOnScreen = false;
  QTimer::singleShot(0, &dialogView, [&] {
    dialogView.sync();
    modalOnScreen = dialogView.window().isVisible() && dialogView.window().isModal();
    d.Hide();
  });
  d.Show(true);  // returns only once the timer above has hidden the window
  EXPECT_TRUE(modalOnScreen && !d.Visible);
}

}  // namespace
