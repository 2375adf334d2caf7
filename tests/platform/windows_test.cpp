// Several windows: which one takes the keys, a modal Show that waits for its window to hide, and a
// multi-line text box, headless and through the real Qt widgets.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QTimer>

#include "platform/Controls.h"
#include "platform/Headless.h"
#include "platform/qt/FormView.h"
#include "platform/qt/QtRuntime.h"
#include "surface/PictureBox.h"

using namespace qp;

namespace {

struct Main : Form {
  explicit Main(Runtime& rt) : Form(rt, "frmMain") { pic.Move(150, 150, 1500, 1500); }
  PictureBox pic{this, nullptr, "pic"};
};

struct Dialog : Form {
  explicit Dialog(Runtime& rt) : Form(rt, "frmDialog") { txt.Move(150, 150, 3000, 1200); }
  TextBox txt{this, nullptr, "txt"};
};

TEST(ModalShow, WaitsUntilTheInputSourceHidesTheWindow) {
  HeadlessRuntime h;
  Main main(h.rt());
  Dialog d(h.rt()), inner(h.rt());
  main.Show();
  // Show waits while the input lasts (the script runner's tests cover a plain wait); a modal window
  // opened from inside another returns first, and the outer one goes on waiting until it hides.
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
  EXPECT_EQ(h.loop.windows().active(), &main);
  h.loop.setInputSource({});
}

TEST(ModalShow, OnScreenRunsQtsLoopUntilTheWindowHides) {
  QtRuntime q;
  Main main(q.rt());
  Dialog d(q.rt());
  FormView mainView(main), dialogView(d);
  main.Show();
  mainView.sync();
  bool modalOnScreen = false;
  QTimer::singleShot(0, &dialogView, [&] {
    dialogView.sync();
    modalOnScreen = dialogView.window().isVisible() && dialogView.window().isModal();
    d.Hide();
  });
  d.Show(true);  // returns only once the timer above has hidden the window
  EXPECT_TRUE(modalOnScreen && !d.Visible);
}

TEST(WindowKeys, GoToTheWindowActiveNowOnceAnotherHides) {
  HeadlessRuntime h;
  Main main(h.rt());
  Dialog d(h.rt());
  FormView mainView(main), dialogView(d);
  std::vector<std::string> got;
  main.pic.KeyDown = [&](int&, int) { got.push_back("main"); };
  d.txt.KeyDown = [&](int&, int) { got.push_back("dialog"); };
  main.Show();
  mainView.sync();
  mainView.activate();
  mainView.widgetFor(&main.pic)->setFocus();
  if (QApplication::focusWidget() != mainView.widgetFor(&main.pic)) GTEST_SKIP() << "no keyboard focus here";
  const auto key = [] {
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
    if (QWidget* w = QApplication::focusWidget()) QApplication::sendEvent(w, &down);
  };
  d.Show();
  d.setFocusTo(&d.txt);
  dialogView.sync();
  key();
  d.Hide();
  dialogView.sync();
  key();
  EXPECT_EQ(got, (std::vector<std::string>{"dialog", "main"}));
  EXPECT_EQ(h.loop.windows().active(), &main);
}

TEST(MultiLineTextBox, ShowsAndEditsSeveralLines) {
  HeadlessRuntime h;
  Dialog d(h.rt());
  d.txt.MultiLine = true;
  d.txt.Text = "Quillora\r\nPro";
  FormView view(d);
  auto* edit = qobject_cast<QPlainTextEdit*>(view.widgetFor(&d.txt));
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->toPlainText(), "Quillora\nPro");
  int changes = 0;
  d.txt.Change = [&] { ++changes; };
  edit->moveCursor(QTextCursor::End);
  edit->insertPlainText("\nPaint");  // the user typing Enter and a word
  EXPECT_TRUE(d.txt.Text.get() == "Quillora\r\nPro\r\nPaint" && changes > 0) << d.txt.Text.get().toStdString();
  d.txt.Text = "one\r\ntwo\r\nthree";
  view.sync();
  EXPECT_EQ(edit->document()->blockCount(), 3);
}

}  // namespace
