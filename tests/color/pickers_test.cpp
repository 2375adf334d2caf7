// Picking colours: the colour block's bars, the RGB strips, the swatch, the Color Option box, the
// swap, the number keys, the colour parts.
#include "color/ColourPickers.h"
#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"
#include "surface/Device.h"

namespace qp::test {
namespace {

class ColourPickersTest : public ProgramTest {
 protected:
  // Moves over the swatch at a pixel of its chart.
  void hoverSwatch(int x, int y) { f().pColor.raiseMouseMove(0, 0, x * 15.0f + 7, y * 15.0f + 7); }
};

TEST_F(ColourPickersTest, SwatchAndColorOptionBoxGiveTheirColourToForeOrBack) {
  const Colour back = m().BackClr;
  hoverSwatch(100, 10);
  const Colour picked = GetPixel(f().pColor, 100, 10);
  EXPECT_EQ(std::pair(f().lColor.BackColor.get(), f().shErSize.FillColor.get()), std::pair(picked, picked));
  EXPECT_NE(m().ForeClr, picked);  // the colour only waits in the box
  ASSERT_NE(GetPixel(f().pColor, 200, 40), picked);  // the chart holds more than one colour
  f().CtrlDown = -1;  // with Ctrl the box stays as it is
  hoverSwatch(200, 40);
  EXPECT_EQ(f().lColor.BackColor, picked);
  f().pColor.raiseMouseDown(vbLeftButton, 0, 1500, 150);
  const auto fore = [&] { return std::vector<Colour>{m().ForeClr.value(), f().lForclr.BackColor, f().PicPaint.ForeColor}; };
  const auto backs = [&] { return std::pair(m().BackClr.value(), f().lBkclr.BackColor.get()); };
  EXPECT_EQ(fore(), std::vector<Colour>(3, picked));
  EXPECT_EQ(m().BackClr, back);
  f().pColor.raiseMouseUp(vbRightButton, 0, 1500, 150);
  EXPECT_EQ(backs(), std::pair(picked, picked));
  f().lColor.BackColor = 0x123456;
  f().lColor.raiseMouseDown(vbRightButton, 0, 10, 10);  // the right button acts at its release
  EXPECT_EQ(m().ForeClr, picked);
  f().lColor.raiseMouseUp(vbRightButton, 0, 10, 10);
  EXPECT_EQ(backs(), std::pair(Colour(0x123456), Colour(0x123456)));
  f().lColor.raiseMouseDown(vbLeftButton, 0, 10, 10);
  EXPECT_EQ(std::pair(m().ForeClr.value(), f().lForclr.BackColor.get()), std::pair(Colour(0x123456), Colour(0x123456)));
}

TEST_F(ColourPickersTest, PickersRestInTransparentMode) {
  choose(f().mBluScrn);
  const Colour fore = m().ForeClr;
  const QString help = f().lHelp.Caption;
  f().lColor.BackColor = 0x00AA00;
  f().pColor.raiseMouseDown(vbLeftButton, 0, 150, 150);
  EXPECT_EQ(std::pair(m().ForeClr.value(), f().lForclr.BackColor.get()), std::pair(fore, fore));
  f().pB.raiseMouseMove(vbLeftButton, 0, 60, 100);
  EXPECT_EQ(f().vBlu.Value, 255);  // the strip still mixes, but the box and the help line rest
  EXPECT_EQ(f().lHelp.Caption.get(), help);
  EXPECT_EQ(f().lColor.BackColor, 0x00AA00);
}

TEST_F(ColourPickersTest, SwapExchangesColoursButLeavesTheCanvasPen) {
  f().lForclr.BackColor = 0x0000FF;
  f().lBkclr.BackColor = 0x00FF00;
  ApplyColors(s());
  f().cSwap.raiseClick();
  const auto colours = [&] { return std::vector<Colour>{m().ForeClr.value(), m().BackClr.value(), f().lForclr.BackColor, f().lBkclr.BackColor}; };
  EXPECT_EQ(colours(), (std::vector<Colour>{0x00FF00, 0x0000FF, 0x00FF00, 0x0000FF}));
  EXPECT_EQ(f().PicPaint.ForeColor, 0x0000FF);  // until a tool or ApplyColors sets it
  // The text tools' bars follow: second colour in 0 to 2, draw colour in 3 to 5, red first.
  const int bars[] = {0xFF, 0, 0, 0, 0xFF, 0};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(f().HS1(i).Value.get(), bars[i]) << "HS1(" << i << ")";
  f().lForclr.raiseMouseUp(vbRightButton, 0, 10, 10);  // a right click on a colour box swaps too
  EXPECT_EQ(colours(), (std::vector<Colour>{0x0000FF, 0x00FF00, 0x0000FF, 0x00FF00}));
  f().lForclr.raiseMouseUp(vbLeftButton, 0, 10, 10);
  EXPECT_EQ(m().ForeClr, 0x0000FF);
}

TEST_F(ColourPickersTest, ColorPartSplitsBytesAndAlwaysStoresRed) {
  m().ClrRed = 7;
  // Colour, part, the byte; -1, the colour of a point off the picture, reads as white.
  for (const auto& [c, part, byte, red] : {std::tuple{0x336699, 0, 0x99, 0x99}, std::tuple{0x336699, 1, 0x66, 0x99},
                                            std::tuple{0x336699, 2, 0x33, 0x99}, std::tuple{-1, 1, 255, 255},
                                            std::tuple{0x336699, 3, 0, 0x99}, std::tuple{0x336699, -1, 0, 0x99}}) {
    EXPECT_EQ(ColorPart(s(), c, part), byte) << c << " part " << part;
    EXPECT_EQ(m().ClrRed, red);
  }
}

TEST_F(ColourPickersTest, NumberKeysChooseAColourAndItsOption) {
  // The key, then the Colour Option and the colour it leaves.
  const struct { int key, option; Colour c; } keys[] = {
      {vbKey1 + 3, 3, 0xFF0000}, {vbKey8, 3, RGB(155, 155, 155)}};  // gray is no Colour Option
  for (const auto& k : keys) {
    windowKeyDown(f(), k.key);
    EXPECT_EQ(m().ColorOption, k.option) << k.key;
    EXPECT_EQ((std::vector<Colour>{m().ForeClr.value(), f().lColor.BackColor, f().lForclr.BackColor}), std::vector<Colour>(3, k.c)) << k.key;
  }
  EXPECT_EQ(f().SwatchKey, 7);
}

TEST_F(ColourPickersTest, ColorModeAndColorOptionBarsTellTheirRowsAndGiveTheirColour) {
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

TEST_F(ColourPickersTest, StripsMixTheCustomColourInTheColorOptionBox) {
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
