// On the desktop the Transparency Tool is a window of its own, with its menus, shown in place of
// the main window while a picture is prepared and gone again after Done.
#include <QAction>
#include <QMenuBar>

#include "platform/qt/FormView.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

TEST_F(ProgramTest, TheTransparencyToolIsAWindowOfItsOwnOnTheDesktop) {
  FormView mainView(f());
  FormView blueView(program->w.blue);
  mainView.sync();
  choose(f().mBluScrn);
  mainView.sync();
  blueView.sync();
  QMainWindow& w = blueView.window();
  EXPECT_TRUE(w.isWindow());
  EXPECT_TRUE(w.isVisible());
  EXPECT_FALSE(mainView.window().isVisible());
  EXPECT_EQ(w.windowTitle(), "Transparency Tool");
  QStringList menus;
  for (QAction* a : w.menuBar()->actions()) menus << a->text();
  EXPECT_TRUE(menus.contains("Done")) << menus.join(", ").toStdString();
  EXPECT_TRUE(menus.contains("Zoom"));
  EXPECT_FALSE(w.grab().isNull());
  program->w.blue.Unload();
  mainView.sync();
  blueView.sync();
  EXPECT_FALSE(w.isVisible());
  EXPECT_TRUE(mainView.window().isVisible());
}

}  // namespace
}  // namespace qp::test
