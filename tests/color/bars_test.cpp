// The bars of the colour block and the RGB strips.
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

class ColourBarsTest : public ProgramTest {};

TEST_F(ColourBarsTest, ColorModeBarShowsItsRows) {
  struct Row {
    int value;
    const char* name;
    bool transient, variance, option;
  };
  // The session starts in Freehand Spiralz, which sets Rainbow: begin with a real change.
  for (const Row& r : {Row{0, "Standard", false, false, true}, Row{1, "Rainbow", false, true, false},
                       Row{2, "Glow", true, true, true}, Row{3, "Gradient", false, false, true}}) {
    SCOPED_TRACE(r.name);
    f().vColmode.Value = r.value;
    EXPECT_EQ(f().lStats.Caption.get(), r.name);
    EXPECT_EQ(f().lColMode.Caption.get(), QString("Color Mode : ") + r.name);
    EXPECT_EQ(f().lColMode.ToolTipText.get(), f().lColMode.Caption.get());
    EXPECT_EQ(f().ckDcolz.Visible, r.transient);
    EXPECT_EQ(f().vVar.Visible, r.variance);
    EXPECT_EQ(f().vColors.Visible, r.option);
  }
}

TEST_F(ColourBarsTest, VarianceAndColorOptionTellTheirValues) {
  f().vVar.dragTo(52);
  EXPECT_EQ(f().lHelp.Caption.get(), "Current Color Variance : 52");
  EXPECT_EQ(f().lVar.ToolTipText.get(), "Current Color Variance : 52");
  EXPECT_EQ(f().lStats.Caption.get(), "Color Variance : 52");

  f().vColors.Value = 4;
  EXPECT_EQ(m().ColorOption, 4);
  EXPECT_EQ(f().lStats.Caption.get(), "Yellow");
  EXPECT_EQ(f().lColorVal.ToolTipText.get(), "Color : Yellow");
  EXPECT_EQ(f().lHelp.Caption.get(), "Current Color : Yellow");
  EXPECT_EQ(f().lForclr.BackColor, RGB(255, 255, 0));
  EXPECT_EQ(m().ForeClr, RGB(255, 255, 0));
}

TEST_F(ColourBarsTest, StripsMixTheCustomColourInTheColorOptionBox) {
  const Colour fore = m().ForeClr;
  f().pR.raiseMouseMove(0, 0, 60, 100);  // no button: only the help line
  EXPECT_EQ(f().lHelp.Caption.get(),
            "Hold left mouse button and move pointer to set RED value in custom color    "
            "Current Red value: 0");
  EXPECT_EQ(f().vRed.Value, 0);
  f().pR.raiseMouseMove(vbLeftButton, 0, 60, 99.6f);
  f().pG.raiseMouseMove(vbLeftButton, 0, 60, 400);  // below the strip: full
  f().pB.raiseMouseMove(vbLeftButton, 0, 60, -3);   // above it: none
  EXPECT_EQ(f().vRed.Value, 100);
  EXPECT_EQ(f().vGrn.Value, 255);
  EXPECT_EQ(f().vBlu.Value, 0);
  EXPECT_EQ(f().lColor.BackColor, RGB(100, 255, 0));
  EXPECT_EQ(f().pG.ToolTipText.get(), "Green : 255");
  EXPECT_EQ(f().pB.ToolTipText.get(), "Blue : 0");
  EXPECT_EQ(m().ForeClr, fore);
  EXPECT_EQ(f().lForclr.BackColor, fore);

  f().CtrlDown = -1;  // Ctrl: a gray
  f().pB.raiseMouseMove(vbLeftButton, 0, 60, 128);
  EXPECT_EQ(f().lColor.BackColor, RGB(128, 128, 128));
  EXPECT_EQ(f().pR.ToolTipText.get(), "Red : 128");
  f().pG.raiseMouseMove(vbLeftButton, 0, 60, 900);
  EXPECT_EQ(f().lColor.BackColor, RGB(255, 255, 255));
}

TEST_F(ColourBarsTest, RainbowGoesOnFromAHandMixedColour) {
  f().pR.raiseMouseMove(vbLeftButton, 0, 60, 200);
  f().pB.raiseMouseMove(vbLeftButton, 0, 60, 60);
  EXPECT_EQ(m().ClrRed, 200);
  EXPECT_EQ(m().ClrBlue, 60);
}

}  // namespace
}  // namespace qp::test

namespace qp::test {
namespace {

TEST_F(ColourBarsTest, FilmLineTipsBelongToOneModeOnly) {
  choose(f().mShadow);
  ASSERT_EQ(m().PaintMode, 4);
  f().lColor.raiseMouseMove(0, 0, 10, 10);
  EXPECT_TRUE(f().lColor.ToolTipText.get().startsWith("It's the cold!"));
  f().lColorVal.raiseMouseMove(0, 0, 10, 10);
  EXPECT_EQ(f().lColorVal.ToolTipText.get(), "Color : White");
  choose(f().mPencil);
  f().lColor.raiseMouseMove(0, 0, 10, 10);
  EXPECT_EQ(f().lColor.ToolTipText.get(), "");
}

}  // namespace
}  // namespace qp::test
