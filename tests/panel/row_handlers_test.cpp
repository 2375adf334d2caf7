// The panel's value bars and check boxes as the user moves them, and Instant Help as the pointer passes.
#include "core/Panel.h"
#include "support/ProgramFixture.h"

namespace qp::test {

using RowHandlers = ProgramTest;

TEST_F(RowHandlers, EachBarWritesItsLabelAndToolTipAndFeedsItsVariable) {
  // label nullptr: the row's label is not checked; read empty: the row feeds nothing checked here
  struct Case { const char* menu; int row, value; const char* label; std::function<int()> read; };
  const Case all[] = {
      {"mAir", 1, 9, "Spread : 9", [this] { return int(f().AirSpread); }},
      {"mShadow", 1, 120, "Offset : 12", [this] { return int(m().StepSize); }},
      {"mSngBox", 2, 3, "V-Lines", {}},
      {"mSngBox", 2, 5, "Down\\", {}},
      {"mEr", 1, 300, "Eraser size: 30", [this] { return f().shErSize.Height.get(); }},
      {"mSaw", 1, 125, "Offset  : 12.5", {}},
      {"mBallz", 4, 3, nullptr, [this] { return int(m().ColorOption); }},
  };
  for (const Case& c : all) {
    SCOPED_TRACE(std::string(c.menu) + " row " + std::to_string(c.row));
    choose(c.menu);
    f().valueBar(c.row).Value = c.value;
    if (c.label) {
      EXPECT_EQ(f().valueLabel(c.row).Caption.get(), c.label);
      EXPECT_EQ(f().valueLabel(c.row).ToolTipText.get(), c.label);
    }
    if (c.read) {
      EXPECT_EQ(c.read(), c.value);
    }
  }
  choose(f().mAir);
  const int spread = f().AirSpread;
  f().vVal1.arrowUp();  // the up arrow raises the value
  EXPECT_EQ(int(f().AirSpread), spread + 1);
  // The drag of the thumb reports through Scroll before the drop.
  choose(f().mSpr3);
  f().vVal1.dragTo(48);
  EXPECT_EQ(int(m().SpiralStep), 48);
  EXPECT_EQ(f().lVal1.Caption.get(), "Lines/Pass : 48");
}

TEST_F(RowHandlers, GradientStylesLightTheRowTheyUse) {
  choose(f().mMini);
  f().vVal1.Value = 1;  // squares use the intensity row
  f().vVal2.Value = 5;
  EXPECT_EQ(f().lVal2.Caption.get(), "Intensity : 5");
  f().vVal1.Value = 2;  // circles use the aspect row
  EXPECT_EQ(std::pair(f().Shadow(2).BorderColor.get(), f().Shadow(3).BorderColor.get()), std::pair(kDimFrame, kLiveFrame));
}

TEST_F(RowHandlers, SpiralStyleOneAloneUsesTheOffsetRow) {
  choose(f().mSpir2);
  f().vVal4.Value = 1;
  EXPECT_EQ(f().lVal4.Caption.get(), "Style : 1");
  f().vVal5.Value = 720;
  EXPECT_EQ(int(m().StepSize), 720);
  EXPECT_EQ(f().lVal5.Caption.get(), "Offset : 720");
  f().vVal4.Value = 2;
  EXPECT_EQ(f().Shadow(5).BorderColor.get(), kDimFrame);
}

TEST_F(RowHandlers, ADimRowClearsItsTipAndDoesNothingElse) {
  choose(f().mSingle);
  EXPECT_EQ(int(m().StepSize), 60);
  const QString before = f().lVal1.Caption;
  f().lVal1.ToolTipText = "old tip";
  f().vVal1.Value = 400;
  EXPECT_EQ(int(m().StepSize), 60);
  EXPECT_EQ(f().lVal1.Caption.get(), before);
  EXPECT_EQ(f().lVal1.ToolTipText.get(), "");
  // Either box makes the offset row live; with both clear it is dim again.
  f().ckVal2.raiseClick();
  EXPECT_EQ(f().Shadow(1).BorderColor.get(), kLiveFrame);
  f().vVal1.Value = 200;
  EXPECT_EQ(int(m().StepSize), 200);
  EXPECT_EQ(f().lVal1.Caption.get(), "Offset : 20");
  f().ckVal2.raiseClick();
  EXPECT_EQ(f().Shadow(1).BorderColor.get(), kDimFrame);
}

TEST_F(RowHandlers, CrazyPencilMapsTheBarOnlyWhenItMovesAndSkipsEleven) {
  choose(f().mCrzyPen);  // the bar moves from the pencil's 4 to 13: the map gives 15
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 15);
  choose(f().mCrzyPen);  // the bar stays at 13: no Change, the entry's 13 stands
  EXPECT_EQ(f().PicPaint.DrawMode.get(), 13);
  // The bar's value, the mixing mode, the value the label tells: 11 has no mode and keeps the 9's.
  for (const auto& [v, mode, told] : {std::tuple{0, 2, 0}, std::tuple{8, 10, 8}, std::tuple{9, 12, 9},
                                      std::tuple{11, 12, 9}, std::tuple{12, 14, 12}}) {
    f().vVal1.Value = v;
    EXPECT_EQ(f().PicPaint.DrawMode.get(), mode) << v;
    EXPECT_EQ(f().lVal1.Caption.get(), QString("DrawMode : %1").arg(told)) << v;
  }
}

TEST_F(RowHandlers, CheckBoxesWriteTheirWords) {
  struct Case { const char* menu; bool second; const char* on; const char* off; };
  const Case all[] = {
      {"mSingle", true, "3rd Line", "Two Lines"}, {"mBubble", false, "Bubblez", "Boxes"}, {"mGpen", true, "Freehand", "Linez"},
      {"mBrushes", false, "Draw", "Click"}};
  for (const Case& c : all) {
    SCOPED_TRACE(std::string(c.menu) + (c.second ? " ckVal2" : " ckVal"));
    choose(c.menu);
    CheckBox& box = c.second ? f().ckVal2 : f().ckVal;
    box.Value = box.Value == 1 ? 0 : 1;
    EXPECT_EQ(f().lStats.Caption.get(), box.Value == 1 ? c.on : c.off);
    box.raiseClick();
    EXPECT_EQ(f().lStats.Caption.get(), box.Value == 1 ? c.on : c.off);
  }
}

TEST_F(RowHandlers, BoxesSwitchTheirGroups) {
  choose(f().mBubble);  // Bubblez use the size and aspect rows
  EXPECT_FALSE(f().vVal2.Enabled.get());
  f().ckVal.raiseClick();
  EXPECT_TRUE(f().vVal2.Enabled && f().vVal3.Enabled);
  EXPECT_EQ(f().Shadow(2).BorderColor.get(), kLiveFrame);
  f().ckVal.raiseClick();
  EXPECT_TRUE(!f().vVal2.Enabled && f().Shadow(3).BorderColor == kDimFrame);

  choose(f().mSpir2);  // a mini spiral needs no full-canvas button
  f().ckVal.raiseClick();
  EXPECT_TRUE(!f().cCan.Visible && f().ckHide.Visible);
  f().ckVal.raiseClick();
  EXPECT_TRUE(f().cCan.Visible && !f().Shadow(38).Visible);

  choose(f().mSpr3);  // in MiniSpirals, a mode of its own, the spiral bar keeps its meaning
  f().ckVal2.raiseClick();
  f().vVal1.Value = 18;
  EXPECT_EQ(int(m().SpiralStep), 18);

  choose(f().mPencil);  // AutoDraw lights the speed row
  f().ckVal.raiseClick();
  EXPECT_EQ(f().Shadow(1).BorderColor.get(), kLiveFrame);
  f().vVal1.Value = 12;
  EXPECT_EQ(f().lVal1.Caption.get(), "Speed : 12");
}

TEST_F(RowHandlers, EachPanelControlSpeaksAsThePointerPasses) {
  struct Case {
    const char* menu;
    const char* control;  // passed over
    int row, value;       // a bar set first (row 0: none)
    bool click;           // the control clicked first
    const char* help;     // the start of lHelp afterwards; "-" when the control says nothing
  };
  const Case all[] = {
      {"mAir", "vVal1", 1, 9, false, "Click arrows to set Spread    Current Spread : 9"},
      {"mEr", "vVal1", 1, 300, false, "Click arrows to set Eraser size    Curren Eraser size : 30"},
      {"mSingle", "vVal1", 0, 0, false, "-"},  // dim until a check box makes the offset matter
      {"mPencil", "vMax", 0, 0, false, "Click arrows to set Maximum on-the-fly Draw Width    Current Maximum : 24"},
      {"mPencil", "vPencil", 0, 0, false, "Click arrows to set Draw Width    Current Draw Width : "},
      // A check box tells what the next click does.
      {"mShadow", "ckVal", 0, 0, true, "Click to disable Shadow Mode"},
      {"mBubble", "ckVal2", 0, 0, false, "Click to disable random size"},
  };
  for (const Case& c : all) {
    SCOPED_TRACE(std::string(c.menu) + " " + c.control);
    choose(c.menu);
    if (c.row > 0) f().valueBar(c.row).Value = c.value;
    auto* control = dynamic_cast<VisualControl*>(f().find(c.control));
    ASSERT_NE(control, nullptr);
    if (c.click) control->raiseClick();
    f().lHelp.Caption = "before";
    control->raiseMouseMove(0, 0, 10, 10);
    const QString help = f().lHelp.Caption;
    EXPECT_TRUE(c.help == std::string("-") ? help == "before" : help.startsWith(c.help)) << help.toStdString();
  }
}

}  // namespace qp::test
