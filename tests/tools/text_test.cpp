// The text tools: Text Brush, 3D Text and Shadow Text, through their controls and the clock.
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

using TextTest = ToolTest;

TEST_F(TextTest, TheFontOptionsGoRoundOneCounterForBothLists) {
  choose(f().mText);
  auto next = [](ListBox& list) { list.raiseMouseUp(vbRightButton, 0, 0, 0); };
  next(f().lstFont);  // Bold, on the list's own surface
  next(f().lstShad);  // Bold off, on the canvas and the sample
  EXPECT_EQ(std::tuple(bool(f().pPix.FontBold), bool(f().PicPaint.FontBold), bool(f().pShadTest.FontBold)),
            std::tuple(true, false, false));
  next(f().lstShad);  // Italic
  EXPECT_TRUE(f().PicPaint.FontItalic);
  next(f().lstFont);  // Italic off
  next(f().lstFont);  // Underline
  EXPECT_EQ(std::tuple(bool(f().pPix.FontUnderline), bool(f().pPix.FontItalic)), std::tuple(true, false));
  next(f().lstFont);  // round to the start
  f().lstShad.raiseMouseUp(vbLeftButton, 0, 0, 0);  // a left release takes no option
  EXPECT_EQ(f().FontOptionStep, 0);
}

TEST_F(TextTest, DraggingTheShadowSizeLeavesTheCanvasFontUntilTheDrop) {
  choose(f().mShadTx);
  const Single before = f().PicPaint.FontSize;
  f().vShad.Value.setRaw(40);  // the thumb is dragged: Scroll
  f().vShad.Scroll();
  EXPECT_EQ(std::tuple(Single(f().pShadTest.FontSize), f().lShadFnt.Caption.get(), Single(f().PicPaint.FontSize)),
            std::tuple(Single(40), QString("40"), before));
  f().vShad.Value = 50;  // Change
  EXPECT_EQ(std::pair(Single(f().PicPaint.FontSize), Single(f().pShadTest.FontSize)), std::pair(Single(50), Single(50)));
}

TEST_F(TextTest, A3DStackOfOneLayerStandsAtTheCentreInTheFullFrontColour) {
  enter(f().mText);
  for (int i = 0; i < 6; ++i) f().HS1(i).Value = i == 3 ? 255 : 0;  // black to red
  f().HScroll1.Value = 1;  // a stack of one: no step between the colours
  const Ink ink = inkOf(f().pPix);
  ASSERT_GT(ink.lit, 0);
  EXPECT_NEAR(ink.box.center().x(), 320, 6);
  EXPECT_NEAR(ink.box.center().y(), 240, 8);
  EXPECT_EQ(countColour(f().pPix, 0x0000FF), ink.lit);
}

TEST_F(TextTest, WithCtrlThe3DAxisBoxStopsAtItsEnds) {
  enter(f().mText);
  f().pCoords.raiseMouseMove(0, 0, 25, 12.6f);
  EXPECT_EQ(f().Px(0).Value, 4);  // without Ctrl the box only helps
  f().CtrlDown = -1;
  struct Case { Single x, y; int px0, px1; };
  // Past an end the axis stops there, and the refused value ends the handler.
  for (Case c : {Case{25, 12.6f, 25, 13}, Case{-55, 0, -40, 13}, Case{10, 55, 10, 40}, Case{-3, -41, -3, -40}}) {
    f().pCoords.raiseMouseMove(0, 0, c.x, c.y);
    EXPECT_EQ(f().Px(0).Value, c.px0) << c.x << ", " << c.y;
    EXPECT_EQ(f().Px(1).Value, c.px1) << c.x << ", " << c.y;
  }
  EXPECT_EQ(f().pCoords.ToolTipText.get(), "X Axis : 25  Y Axis : 13");  // the refused moves ended early
  // Over the picture, Ctrl carries the text; left of it or above it, the text stops at the edge.
  f().vWid.Value = 200;
  f().vHgt.Value = 150;
  f().pPix.raiseMouseMove(0, 0, -5, -7);
  EXPECT_EQ(f().vWid.Value.get(), 0);
  EXPECT_EQ(f().vHgt.Value.get(), 0);
}

TEST_F(TextTest, TextBrushRandomSizesAtTheLeftEdgePrintNothingAndKeepTheColours) {
  enter(f().mTxBrush);
  f().ckFreeTx.Value = 1;
  f().ckTx.Value = 1;
  f().ckTxGrad.Value = 1;
  m().ColorOption = 0;
  press(100, 1500);  // the print position falls on 0: nothing printed, the colour kept
  EXPECT_EQ(std::pair(count(kWhite), int(m().ColorOption)), std::pair(0, 0));
  move(1600, 1500);
  EXPECT_GT(count(kWhite), 0);
  EXPECT_NE(m().ColorOption, 0);
  f().vFont.Value = 8;
  for (int i = 0; i < 20; ++i) {
    move(1600, 1500);
    EXPECT_TRUE(f().PicPaint.FontSize >= 4 && f().PicPaint.FontSize <= 12) << f().PicPaint.FontSize;
  }
}

TEST_F(TextTest, TheTextBrushStampsAnyTextWithoutHarm) {
  enter(f().mTxBrush);
  f().ckFreeTx.Value = 1;
  const QString texts[] = {"", QString(10000, 'W'), QString("a\x01\x07\tb\x1b"),
                           QString::fromUtf8("\xff\xfe bad \xc3"), QString::fromUtf8("é漢😀")};
  for (const QString& t : texts) {
    f().PicPaint.Picture = QImage();
    f().Text1.Text = t;
    stroke({{1500, 1500}, {1500, 3000}});
    EXPECT_EQ(countColour(f().PicPaint, kWhite) > 0, !t.isEmpty()) << t.size();
  }
}

TEST_F(TextTest, AMissingFontFallsBackAndANamelessOneIsRefused) {
  PictureBox& p = f().PicPaint;
  p.Picture = QImage();
  p.FontName = "No Such Font Anywhere";
  p.ForeColor = kWhite;
  p.Print("Quillora");
  EXPECT_GT(inkOf(p).lit, 0);
  EXPECT_FALSE(trap([&] { p.FontName = ""; }));
  EXPECT_EQ(p.FontName.get(), "No Such Font Anywhere");
}

TEST_F(TextTest, AListWithoutFontsLeavesTheTextToolsQuiet) {
  headless.screen = FixedScreen(1280, 1024, QStringList{"Solo"});
  program = std::make_unique<Program>(headless.rt());
  program->start();
  EXPECT_EQ(f().lstFont.ListCount(), 0);  // the first font is skipped
  choose(f().mTxBrush);
  press(1500, 1500);
  headless.loop.advance(400);
  release(1500, 1500);
  EXPECT_EQ(inkOf(f().PicPaint).lit, 0);
  choose(f().mText);
  f().lstFont.raiseMouseDown(vbLeftButton, 0, 0, 0);
  choose(f().mShadTx);
  f().lstShad.raiseMouseDown(vbLeftButton, 0, 0, 0);
  EXPECT_TRUE(f().fShad.Visible);
}

}  // namespace
}  // namespace qp::test
