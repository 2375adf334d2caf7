// The workshops on screen (offscreen): each opens from the main window's menu as a top-level
// window of its own beside the main one, and a real resize of the stretcher's window stretches.
#include <QAction>
#include <QApplication>
#include <QMainWindow>

#include "platform/qt/FormView.h"
#include "support/ProgramFixture.h"

namespace qp::test {

TEST_F(ProgramTest, EachWorkshopOpensAsATopLevelWindowOfItsOwn) {
  FormView main(f());
  main.sync();
  struct Case { Menu& item; Form& form; };
  for (const Case c : {Case{f().mTileSet, program->w.tile}, {f().mBlend, program->w.blend},
                       {f().mStretch, program->w.stretch}}) {
    FormView view(c.form);
    EXPECT_FALSE(view.window().isVisible());
    main.actionFor(&c.item)->trigger();
    view.sync();
    EXPECT_TRUE(view.window().isVisible()) << c.form.Name().toStdString();
    EXPECT_TRUE(view.window().isWindow());
    EXPECT_NE(view.window().parentWidget(), &main.window());
    EXPECT_EQ(view.window().windowTitle(), c.form.Caption.get());
  }
  FormView stretchView(program->w.stretch);
  stretchView.sync();
  stretchView.window().resize(300, 200);
  QApplication::processEvents();
  stretchView.sync();
  EXPECT_EQ(program->w.stretch.pLO.bitmap().size(), QSize(300 - 24, 200 - 48));
}

}  // namespace qp::test
