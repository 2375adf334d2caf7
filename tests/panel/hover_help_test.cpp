// Instant Help as the pointer passes over the panel: live rows, dim rows, check boxes and the
// width controls each write their sentence to lHelp, or nothing.
#include "support/ProgramFixture.h"

namespace qp::test {

using HoverHelp = ProgramTest;

TEST_F(HoverHelp, EachPanelControlSpeaksAsThePointerPasses) {
  struct Case {
    const char* menu;
    const char* control;  // passed over
    int row, value;       // a bar set first (row 0: none)
    const char* help;     // lHelp afterwards; "-" when the control says nothing
  };
  const Case all[] = {
      {"mAir", "vVal1", 1, 9, "Click arrows to set Spread    Current Spread : 9"},
      {"mAir", "lVal1", 1, 11, "Click arrows to set Spread    Current Spread : 11"},
      {"mSngBox", "vVal2", 2, 3, "Click arrows to set Fill Style    Current Fill Style : V-Lines"},
      {"mEr", "vVal1", 1, 300, "Click arrows to set Eraser size    Curren Eraser size : 30"},
      {"mCircFx", "vVal2", 2, 60, "Click arrows to set Radius   Current Radius : 60"},
      {"mSingle", "vVal1", 0, 0, "-"},  // dim until a check box makes the offset matter
      {"mBubble", "vVal2", 0, 0, "-"},  // dim until Bubblez
      {"mShadow", "ckVal", 0, 0, "Click to enable Shadow Mode"},
      {"mSingle", "ckVal2", 0, 0, "Click to enable 3rd Line"},
      {"mShadow", "ckVal2", 0, 0, "Click to enable third color"},
      {"mBubble", "ckVal2", 0, 0, "Click to disable random size"},
      {"mPencil", "ckVal", 0, 0, "Click to enable AutoDraw"},
      {"mPencil", "vMax", 0, 0, "Click arrows to set Maximum on-the-fly Draw Width    Current Maximum : 24"},
      {"mPencil", "vMin", 0, 0, "Click arrows to set Minimum on-the-fly Draw Width    Current Minimum : 4"},
      {"mPencil", "ckHold", 0, 0,
       "Click to enable Hold (Draw width keeps changing after the ARROW key is released)"},
  };
  for (const Case& c : all) {
    SCOPED_TRACE(std::string(c.menu) + " " + c.control);
    choose(*dynamic_cast<Menu*>(f().find(c.menu)));
    if (c.row > 0) f().valueBar(c.row).Value = c.value;
    f().lHelp.Caption = "before";
    auto* control = dynamic_cast<VisualControl*>(f().find(c.control));
    ASSERT_NE(control, nullptr);
    control->raiseMouseMove(0, 0, 10, 10);
    EXPECT_EQ(f().lHelp.Caption.get(), QString(c.help == std::string("-") ? "before" : c.help));
  }
}

TEST_F(HoverHelp, ACheckBoxTellsWhatTheNextClickDoesAndKeepsItsJoke) {
  choose(f().mShadow);
  f().ckVal.raiseClick();  // on
  f().ckVal.raiseMouseMove(0, 0, 10, 10);
  EXPECT_EQ(f().lHelp.Caption.get(), "Click to disable Shadow Mode");
  choose(f().mBubble);
  f().ckVal2.raiseMouseMove(0, 0, 10, 10);
  EXPECT_EQ(f().ckVal2.ToolTipText.get(), "That's no moon!  IT'S A SPACESTATION!");
  EXPECT_EQ(f().lHelp.Caption.get(), "Click to disable random size");
  f().vPencil.raiseMouseMove(0, 0, 10, 10);
  EXPECT_TRUE(f().lHelp.Caption.get().startsWith("Click arrows to set Draw Width    Current Draw Width : "));
}

}  // namespace qp::test
