// The main window on screen (offscreen): real menu choices and real pointer events reach the
// program through the view exactly as a user's would.
#include <QAction>
#include <QApplication>
#include <QMouseEvent>

#include "platform/qt/FormView.h"
#include "support/ProgramFixture.h"

namespace qp::test {

class Window : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    view = std::make_unique<FormView>(f());
    view->sync();
  }
  void TearDown() override { view.reset(); }

  void mouse(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
    QWidget* w = view->widgetFor(&f().PicPaint);
    ASSERT_NE(w, nullptr);
    QMouseEvent e(type, QPointF(at), w->mapToGlobal(QPointF(at)), button, held, Qt::NoModifier);
    QApplication::sendEvent(w, &e);
  }
  std::unique_ptr<FormView> view;
};

TEST_F(Window, APointerStrokeOnThePaintAreaRunsTheStroke) {
  view->actionFor(&f().mPencil)->trigger();  // a menu item chosen on screen
  ASSERT_EQ(f().lMode.Caption.get(), "Freehand Pencil");
  f().vColmode.Value = 0;  // Standard: the fore colour, white
  view->sync();
  mouse(QEvent::MouseButtonPress, {20, 30}, Qt::LeftButton, Qt::LeftButton);
  mouse(QEvent::MouseMove, {60, 30}, Qt::NoButton, Qt::LeftButton);
  mouse(QEvent::MouseButtonRelease, {60, 30}, Qt::LeftButton, Qt::NoButton);
  EXPECT_EQ(f().lX.Caption.get(), "X : 60");
  EXPECT_EQ(f().lY.Caption.get(), "Y : 30");
  EXPECT_TRUE(f().lXb.ToolTipText.get().startsWith("Mouse Down X : 20   Mouse Up X : 60"));
  EXPECT_EQ(pixel(40, 30), 0xFFFFFF);
  // The press took the snapshot before the stroke: a real right click takes the stroke away.
  mouse(QEvent::MouseButtonPress, {5, 5}, Qt::RightButton, Qt::RightButton);
  mouse(QEvent::MouseButtonRelease, {5, 5}, Qt::RightButton, Qt::NoButton);
  EXPECT_EQ(pixel(40, 30), 0x000000);
}

}  // namespace qp::test
