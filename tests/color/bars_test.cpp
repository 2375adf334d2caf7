// The bars of the colour block and the RGB strips.
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

using ColourBarsTest = ProgramTest;

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
  // Every Colour Option: its name and the colour it gives.
  const std::pair<const char*, Colour> options[] = {{"White", 0xFFFFFF}, {"Red", 0x0000FF},    {"Green", 0x00FF00},
                                                    {"Blue", 0xFF0000},  {"Yellow", 0x00FFFF}, {"Cyan", 0xFFFF00},
                                                    {"Magenta", 0xFF00FF}};
  for (int option : {1, 2, 3, 4, 5, 6, 0}) {
    const auto& [name, colour] = options[option];
    f().vColors.Value = option;
    EXPECT_EQ(m().ColorOption, option);
    EXPECT_EQ(f().lStats.Caption.get(), name);
    EXPECT_EQ(f().lColorVal.ToolTipText.get(), QString("Color : ") + name);
    EXPECT_EQ(f().lHelp.Caption.get(), QString("Current Color : ") + name);
    EXPECT_EQ(f().lForclr.BackColor, colour) << name;
    EXPECT_EQ(m().ForeClr, colour) << name;
  }
}

TEST_F(ColourBarsTest, StripsMixTheCustomColourInTheColorOptionBox) {
  const Colour fore = m().ForeClr;
  for (VScrollBar* bar : {&f().vRed, &f().vGrn, &f().vBlu}) bar->Value = 0;
  f().pR.raiseMouseMove(0, 0, 60, 100);  // no button: only the help line
  EXPECT_EQ(f().lHelp.Caption.get(),
            "Hold left mouse button and move pointer to set RED value in custom color    Current Red value: 0");
  EXPECT_EQ(f().vRed.Value, 0);
  // Each move with the button held: the strip, the height in twips, the colour mixed so far.
  const struct { PictureBox* strip; Single y; bool ctrl; Colour mixed; const char* tip; } moves[] = {
      {&f().pR, 99.6f, false, RGB(100, 0, 0), "Red : 100"},
      {&f().pG, 400, false, RGB(100, 255, 0), "Green : 255"},  // below the strip: full
      {&f().pB, -3, false, RGB(100, 255, 0), "Blue : 0"},      // above it: none
      {&f().pB, 128, true, RGB(128, 128, 128), "Blue : 128"},  // Ctrl: a gray
      {&f().pG, 900, true, RGB(255, 255, 255), "Green : 255"}};
  for (const auto& mv : moves) {
    f().CtrlDown = mv.ctrl ? -1 : 0;
    mv.strip->raiseMouseMove(vbLeftButton, 0, 60, mv.y);
    EXPECT_EQ(f().lColor.BackColor, mv.mixed) << mv.strip->Name().toStdString() << " " << mv.y;
    EXPECT_EQ(f().vRed.Value, redOf(mv.mixed));
    EXPECT_EQ(f().vGrn.Value, greenOf(mv.mixed));
    EXPECT_EQ(f().vBlu.Value, blueOf(mv.mixed));
    EXPECT_EQ(mv.strip->ToolTipText.get(), mv.tip);
    EXPECT_EQ(m().ClrRed, redOf(mv.mixed));  // the next Rainbow step goes on from the mixed colour
    EXPECT_EQ(m().ClrBlue, blueOf(mv.mixed));
    EXPECT_EQ(m().ForeClr, fore);  // the colour only waits in the box
  }
  EXPECT_EQ(f().pR.ToolTipText.get(), "Red : 255");
}

TEST_F(ColourBarsTest, FilmLineTipsBelongToOneModeOnly) {
  // The mode, the control the pointer passes over, the start of its tip in that mode only.
  const struct { Menu* item; VisualControl* over; const char* film; } tips[] = {
      {&f().mShadow, &f().lColor, "It's the cold!"},
      {&f().mShadow, &f().cSwap, "It's just a jump to the left... And then step the the right..."},
      {&f().mBubble, &f().pColor, "Mister President! We have have martians"},
      {&f().mSpir2, &f().lColMode, "It's big...  And terrible..."},
      {&f().mTxBrush, &f().lColorVal, "No way, man!  I DON'T DO NANOWALLS!"}};
  for (const auto& t : tips) {
    choose(*t.item);
    t.over->raiseMouseMove(0, 0, 10, 10);
    EXPECT_TRUE(t.over->ToolTipText.get().startsWith(t.film)) << t.over->ToolTipText.get().toStdString();
    choose(f().mPencil);
    t.over->raiseMouseMove(0, 0, 10, 10);
    EXPECT_FALSE(t.over->ToolTipText.get().startsWith(t.film)) << t.film;
  }
  f().lColorVal.raiseMouseMove(0, 0, 10, 10);
  EXPECT_EQ(f().lColorVal.ToolTipText.get(), "Color : White");
}

}  // namespace
}  // namespace qp::test
