// Instant Help: the help line of each mode, the key list, the help panel, the film lines in the
// tool tips, and the Toolz menu popping up.
#include "core/Help.h"
#include "support/ProgramFixture.h"

namespace qp::test {

using Help = ProgramTest;

TEST_F(Help, TheHelpLineFollowsTheModeAndItsSwitches) {
  // The mode chosen, a switch set after, whether the pointer passes over the canvas (else the
  // window), the start of the line.
  const struct { Menu* item; std::function<void()> set; bool canvas; const char* line; } cases[] = {
      {&f().mPencil, {}, false, "Hold left mouse button to draw - Select colors below"},
      {&f().mPencil, [this] { f().ckVal.Value = 1; }, true, "Click paint area to set starting point"},  // AutoDraw
      {&f().mSngBox, [this] { f().vVal3.Value = 2; }, false, "Hold left mouse button and drag to set size of circle"}};
  for (const auto& c : cases) {
    choose(*c.item);
    if (c.set) c.set();
    if (c.canvas) move(100, 100, 0);
    else f().MouseMove(0, 0, 0, 0);
    EXPECT_TRUE(f().lHelp.Caption.get().startsWith(c.line)) << f().lHelp.Caption.get().toStdString();
    EXPECT_EQ(f().lHelpb.Caption.get(), f().lHelp.Caption.get());  // the shadow follows
  }
  // A mode without a line of its own keeps the text it had.
  choose(f().mFF);
  f().lHelp.Caption = "kept";
  f().MouseMove(0, 0, 0, 0);
  EXPECT_EQ(f().lHelp.Caption.get(), "kept");
}

TEST_F(Help, KeyListHelpPanelAndToolzMenu) {
  choose(f().mKeys);
  ASSERT_FALSE(headless.msgbox.shown().empty());
  const auto& box = headless.msgbox.shown().back();
  EXPECT_TRUE(box.title == "Keyboard Shortcuts" && box.prompt.startsWith("Copy : SpaceBar\r\nPaste:  Insert Key\r\n"));
  choose(f().mHelp);
  EXPECT_TRUE(f().fHelp.Visible && !f().txHelp.Text.get().isEmpty());
  f().cXhelp.raiseClick();
  EXPECT_TRUE(!f().fHelp.Visible && f().lastPopup() == nullptr);
  f().fVal.raiseMouseUp(vbRightButton, 0, 100, 100);  // a right click on the panel pops the Toolz menu up
  EXPECT_EQ(f().lastPopup(), &f().mToolz);
}

TEST_F(Help, AFilmLineStandsInOneModeOnlyAndGoesAtTheNextPass) {
  choose(f().mBallz);
  f().ckHide.MouseMove(0, 0, 0, 0);
  EXPECT_EQ(f().ckHide.ToolTipText.get(), "Trolls...  NOT TROLLS...!  I HATE TROLLS!");
  choose(f().mPencil);
  EXPECT_FALSE(f().ckHide.ToolTipText.get().isEmpty());  // until the pointer passes again
  f().ckHide.MouseMove(0, 0, 0, 0);
  EXPECT_TRUE(f().ckHide.ToolTipText.get().isEmpty());
  choose(f().mCrazyLn);
  f().lPenVal.MouseMove(0, 0, 0, 0);  // a control with a tip of its own keeps it in parentheses
  EXPECT_TRUE(f().lPenVal.ToolTipText.get().endsWith("(" + f().lPenVal.Caption.get() + ")"));
}

}  // namespace qp::test
