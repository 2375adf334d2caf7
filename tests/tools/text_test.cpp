// The text tools: Text Brush, 3D Text and Shadow Text, through their controls and the clock.
#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "tools/ToolFixture.h"

namespace qp::test {
namespace {

// The box around every pixel that is not black.
QRect inked(const QImage& img) {
  QRect box;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x)
      if ((img.pixel(x, y) & 0xFFFFFF) != 0) box |= QRect(x, y, 1, 1);
  return box;
}

class TextTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    f().vColmode.Value = 0;
  }
  void blank() { f().PicPaint.Picture = QImage(); }
};

TEST_F(TextTest, TheFontOptionsGoRoundOneCounterForBothLists) {
  choose(f().mText);
  f().lstFont.raiseMouseUp(vbRightButton, 0, 0, 0);
  EXPECT_TRUE(f().pPix.FontBold);
  f().lstShad.raiseMouseUp(vbRightButton, 0, 0, 0);  // step 2: Bold off, on the canvas and sample
  EXPECT_FALSE(f().PicPaint.FontBold);
  EXPECT_FALSE(f().pShadTest.FontBold);
  EXPECT_TRUE(f().pPix.FontBold);
  f().lstShad.raiseMouseUp(vbRightButton, 0, 0, 0);
  EXPECT_TRUE(f().PicPaint.FontItalic);
  f().lstFont.raiseMouseUp(vbRightButton, 0, 0, 0);  // Italic off, on the list's own surface
  f().lstFont.raiseMouseUp(vbRightButton, 0, 0, 0);
  EXPECT_TRUE(f().pPix.FontUnderline);
  EXPECT_FALSE(f().pPix.FontItalic);
  f().lstFont.raiseMouseUp(vbRightButton, 0, 0, 0);
  EXPECT_EQ(f().FontOptionStep, 0);
  f().lstShad.raiseMouseUp(vbLeftButton, 0, 0, 0);  // a left release takes no option
  EXPECT_EQ(f().FontOptionStep, 0);
}

TEST_F(TextTest, DraggingTheShadowSizeLeavesTheCanvasFontUntilTheDrop) {
  choose(f().mShadTx);
  const Single before = f().PicPaint.FontSize;
  f().vShad.Value.setRaw(40);  // the thumb is dragged: Scroll
  f().vShad.Scroll();
  EXPECT_EQ(f().pShadTest.FontSize, 40);
  EXPECT_EQ(f().lShadFnt.Caption.get(), "40");
  EXPECT_EQ(f().PicPaint.FontSize, before);
  f().vShad.Value = 50;  // Change
  EXPECT_EQ(f().PicPaint.FontSize, 50);
  EXPECT_EQ(f().pShadTest.FontSize, 50);
}

TEST_F(TextTest, TextPanelsTakeTheKeysThatWouldBeTyped) {
  struct Case { Menu* mode; bool typed; };
  for (Case c : {Case{&f().mTxBrush, true}, Case{&f().mText, true}, Case{&f().mShadTx, true},
                 Case{&f().mBrushes, false}}) {
    choose(*c.mode);
    m().ColorOption = 0;
    windowKeyDown(f(), vbKey1 + 2);
    EXPECT_EQ(m().ColorOption, c.typed ? 0 : 2) << f().lMode.Caption.get().toStdString();
    windowKeyDown(f(), vbKeyNumpad0 + 2);  // the keypad's keys always act
    EXPECT_EQ(m().ColorOption, 2);
  }
}

class Text3DTest : public TextTest {
 protected:
  void SetUp() override {
    TextTest::SetUp();
    choose(f().mText);
    for (int i = 0; i < 6; ++i) f().HS1(i).Value = i == 3 ? 255 : 0;  // black to red
  }
};

TEST_F(Text3DTest, TheStackRunsFromOneLayerToSixtyAboutTheSameCentre) {
  f().HScroll1.Value = 1;  // one layer, in the full front colour, shifted by nothing
  const QRect one = inked(f().pPix.bitmap());
  ASSERT_FALSE(one.isEmpty());
  EXPECT_NEAR(one.center().x(), 320, 6);
  EXPECT_NEAR(one.center().y(), 240, 8);
  const QImage& img = f().pPix.bitmap();
  EXPECT_EQ(countColour(f().pPix, 0x0000FF), img.width() * img.height() - countColour(f().pPix, kBlack));
  f().Px(0).Value = 40;
  f().Px(1).Value = 40;
  f().HScroll1.Value = 60;  // each layer 4 pixels on from the last
  const QRect stack = inked(f().pPix.bitmap());
  EXPECT_NEAR(stack.width() - one.width(), 59 * 4, 2);
  EXPECT_NEAR(stack.center().x(), one.center().x(), 3);
  EXPECT_NEAR(stack.center().y(), one.center().y(), 3);
  // The rightmost ink belongs to the last layer, drawn on top in the front colour.
  Colour last = kBlack;
  for (int y = stack.top(); y <= stack.bottom() && last == kBlack; ++y) last = GetPixel(f().pPix, stack.right(), y);
  EXPECT_EQ(last, 0x0000FF);
}

TEST_F(Text3DTest, WithCtrlTheAxisBoxStopsAtItsEnds) {
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

class TextBrushTest : public TextTest {
 protected:
  void SetUp() override {
    TextTest::SetUp();
    choose(f().mTxBrush);
    blank();
  }
};

TEST_F(TextBrushTest, RandomSizesAtTheLeftEdgePrintNothingAndKeepTheColours) {
  f().ckFreeTx.Value = 1;
  f().ckTx.Value = 1;
  f().ckTxGrad.Value = 1;
  m().ColorOption = 0;
  press(100, 1500);  // the print position falls on 0
  EXPECT_EQ(countColour(f().PicPaint, kWhite), 0);
  EXPECT_EQ(m().ColorOption, 0);
  move(1600, 1500);
  EXPECT_GT(countColour(f().PicPaint, kWhite), 0);
  EXPECT_NE(m().ColorOption, 0);
  f().vFont.Value = 8;
  for (int i = 0; i < 20; ++i) {
    move(1600, 1500);
    EXPECT_GE(f().PicPaint.FontSize, 4);
    EXPECT_LE(f().PicPaint.FontSize, 12);
  }
}

TEST_F(TextBrushTest, AnyTextStampsWithoutHarm) {
  f().ckFreeTx.Value = 1;
  const QString texts[] = {"", QString(10000, 'W'), QString("a\x01\x07\tb\x1b"),
                           QString::fromUtf8("\xff\xfe bad \xc3"), QString::fromUtf8("é漢😀")};
  for (const QString& t : texts) {
    blank();
    f().Text1.Text = t;
    press(1500, 1500);
    move(1500, 3000);
    release(1500, 3000);
    EXPECT_EQ(countColour(f().PicPaint, kWhite) > 0, !t.isEmpty()) << t.size();
  }
  for (int size : {120, 8}) {
    f().vFont.Value = size;
    f().Text1.Text = "Size";
    press(1500, 1500);
    release(1500, 1500);
  }
}

TEST_F(TextBrushTest, ArialIsItsMetricTwinAndAMissingFontFallsBack) {
  PictureBox& p = f().PicPaint;
  auto printed = [&](const QString& font) {
    blank();
    p.FontName = font;
    p.FontSize = 24;
    p.ForeColor = kWhite;
    p.CurrentX = 150;
    p.CurrentY = 150;
    p.Print("Quillora");
    return p.bitmap().copy();
  };
  EXPECT_EQ(printed("Arial"), printed("Liberation Sans"));
  EXPECT_FALSE(inked(printed("No Such Font Anywhere")).isEmpty());
  EXPECT_FALSE(trap([&] { p.FontName = ""; }));
  EXPECT_EQ(p.FontName.get(), "No Such Font Anywhere");
}

class OneFontTest : public ::testing::Test {
 protected:
  void SetUp() override {
    headless.screen = FixedScreen(1280, 1024, QStringList{"Solo"});
    program = std::make_unique<Program>(headless.rt());
    program->start();
  }
  HeadlessRuntime headless;
  std::unique_ptr<Program> program;
};

TEST_F(OneFontTest, AListWithoutFontsLeavesTheTextToolsQuiet) {
  frmCanvas& f = program->f;
  EXPECT_EQ(f.lstFont.ListCount(), 0);  // the first font is skipped
  f.mTxBrush.raiseClick();
  f.PicPaint.raiseMouseDown(vbLeftButton, 0, 1500, 1500);
  headless.loop.advance(400);
  f.PicPaint.raiseMouseUp(vbLeftButton, 0, 1500, 1500);
  EXPECT_TRUE(inked(f.PicPaint.bitmap()).isEmpty());
  f.mText.raiseClick();
  f.lstFont.raiseMouseDown(vbLeftButton, 0, 0, 0);
  f.mShadTx.raiseClick();
  f.lstShad.raiseMouseDown(vbLeftButton, 0, 0, 0);
  EXPECT_TRUE(f.fShad.Visible);
}

}  // namespace
}  // namespace qp::test
