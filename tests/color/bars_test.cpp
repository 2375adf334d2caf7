// The bars of the colour block and the RGB strips.
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

using ColourBarsTest = ProgramTest;

TEST_F(ColourBarsTest, ColorModeAndColorOptionBarsTellTheirRowsAndGiveTheirColour) {
  // The session starts in Freehand Spiralz, which sets Rainbow: begin with a real change.
  const struct { int value; const char* name; bool transient, variance, option; } rows[] = {
      {0, "Standard", false, false, true}, {1, "Rainbow", false, true, false}, {2, "Glow", true, true, true}};
  for (const auto& r : rows) {
    f().vColmode.Value = r.value;
    EXPECT_EQ(f().lColMode.Caption.get(), QString("Color Mode : ") + r.name);
    EXPECT_EQ(f().lColMode.ToolTipText.get(), f().lColMode.Caption.get());
    EXPECT_EQ((std::vector<bool>{f().ckDcolz.Visible, f().vVar.Visible, f().vColors.Visible}),
              (std::vector<bool>{r.transient, r.variance, r.option})) << r.name;
  }
  f().vVar.dragTo(52);
  EXPECT_EQ(f().lHelp.Caption.get(), "Current Color Variance : 52");
  for (const auto& [option, name, colour] : {std::tuple{1, "Red", Colour(0x0000FF)}, std::tuple{0, "White", Colour(0xFFFFFF)}}) {
    f().vColors.Value = option;
    EXPECT_EQ(m().ColorOption, option);
    EXPECT_EQ(f().lColorVal.ToolTipText.get(), QString("Color : ") + name);
    EXPECT_EQ(std::pair(f().lForclr.BackColor.get(), m().ForeClr.value()), std::pair(colour, colour)) << name;
  }
}

TEST_F(ColourBarsTest, StripsMixTheCustomColourInTheColorOptionBox) {
  const Colour fore = m().ForeClr;
  for (VScrollBar* bar : {&f().vRed, &f().vGrn, &f().vBlu}) bar->Value = 0;
  f().pR.raiseMouseMove(0, 0, 60, 100);  // no button: no colour
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
    EXPECT_EQ(RGB(f().vRed.Value, f().vGrn.Value, f().vBlu.Value), mv.mixed);
    EXPECT_EQ(mv.strip->ToolTipText.get(), mv.tip);
    EXPECT_EQ(RGB(m().ClrRed, m().ClrGreen, m().ClrBlue), mv.mixed);  // the next Rainbow step goes on from it
    EXPECT_EQ(m().ForeClr, fore);  // the colour only waits in the box
  }
  EXPECT_EQ(f().pR.ToolTipText.get(), "Red : 255");
}

}  // namespace
}  // namespace qp::test
