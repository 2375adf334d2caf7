// The window's global keys, each through the window's key events, and the draw width on the fly:
// arrow keys on the paint area, the width timers, their limits and Hold.
#include <QImage>

#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

class KeyboardTest : public PencilTest {
 protected:
  void key(int code, int times = 1) {
    for (int i = 0; i < times; ++i) windowKey(f(), code);
  }
  // Holds an arrow on the paint area for n ticks of its timer, then lets it go.
  void hold(int code, int n, bool letGo = true) {
    canvasKeyDown(f(), code);
    Timer& t = code == vbKeyUp || code == vbKeyRight ? f().tPenUp : f().tPenDwn;
    headless.loop.advance(static_cast<std::int64_t>(t.Interval) * n);
    if (letGo) canvasKeyUp(f(), code);
  }
};
using WidthKeysTest = KeyboardTest;

TEST_F(KeyboardTest, EnterAndShiftJumpTheWidthToItsLimitsAndATextPanelKeepsTheTypingKeys) {
  for (const auto& [code, width] : {std::pair{int(vbKeyReturn), 24}, std::pair{int(vbKeyShift), 4}}) {
    key(code);
    EXPECT_EQ(std::pair(int(m().DrawWidth), f().vPencil.Value.get()), std::pair(width, width));
  }
  // With a text panel open only the keys that type nothing act.
  f().fText.Visible = true;
  key(vbKeyReturn);
  key(vbKeyShift);  // a capital letter in the text box, not a width
  EXPECT_EQ(m().DrawWidth, 24);
  key(vbKey1 + 3);
  EXPECT_NE(m().ColorOption, 3);
  key(vbKeyCapital);
  EXPECT_FALSE(f().lnX.Visible);
  key(vbKeyNumpad0 + 3);  // the keypad still chooses
  EXPECT_EQ(m().ColorOption, 3);
  f().fText.Visible = false;
  f().fShad.Visible = true;  // the other text panel too
  key(vbKeyShift);
  EXPECT_EQ(m().DrawWidth, 24);
}

TEST_F(KeyboardTest, DeleteClearsForgetsTheFileAndBackspaceUndoesItAndKeysWithoutARowDoNothing) {
  m().CurrentFile = "C:\\pictures\\sky.bmp";
  drawDot(1500, 1500);
  for (int code : {int(vbKeyZ), int(vbKeyF9), int('W'), int('O'), int('S'), 65}) key(code);
  EXPECT_EQ(std::pair(int(m().PaintMode), int(m().DrawWidth)), std::pair(0, 1));
  EXPECT_FALSE(program->quitRequested());
  EXPECT_EQ(pixel(100, 100), kWhite);
  key(vbKeyDelete);
  EXPECT_EQ(pixel(100, 100), kBlack);
  EXPECT_TRUE(m().CurrentFile.isEmpty() && f().Caption.get().contains("Untitled.bmp"));
  key(vbKeyBack);
  EXPECT_EQ(pixel(100, 100), kWhite);
}

TEST_F(KeyboardTest, SpacebarCopiesTheCanvasAndSetsAReturnPointAndInsertFloatsTheCopy) {
  key(vbKeyInsert);  // nothing on the clipboard yet: nothing floats
  EXPECT_EQ(m().PaintMode, 0);
  drawDot(1500, 1500);
  key(vbKeySpace);
  const QImage copied = headless.clipboard.GetData();
  ASSERT_FALSE(copied.isNull());
  EXPECT_EQ(copied.pixel(100, 100) & 0xFFFFFF, 0xFFFFFFu);
  // Strokes after the return point come off with one undo; the dot stays.
  f().PicPaint.Line(0, 0, 6000, 6000, 0x0000FF);
  key(vbKeyBack);
  EXPECT_EQ(std::pair(pixel(100, 100), pixel(300, 300)), std::pair(kWhite, kBlack));
  key(vbKeyInsert);
  EXPECT_TRUE(m().PaintMode == 22 && f().pTemp.Visible);
}

TEST_F(KeyboardTest, FunctionKeysStepTheWidthIntervalAndTheColourMode) {
  // The key, how often it is pressed, then the width timers' interval or the colour mode.
  const struct { int code, times, interval, colourMode; } steps[] = {
      {vbKeyF8, 1, 110, 0}, {vbKeyF8, 20, 20, 0},  // the fastest
      {vbKeyF7, 50, 400, 0},                       // the slowest
      {vbKeyF12, 1, 400, 1}, {vbKeyF12, 5, 400, 3}, {vbKeyF11, 1, 400, 2}, {vbKeyF11, 5, 400, 0}};
  for (const auto& st : steps) {
    key(st.code, st.times);
    const int got[] = {f().tPenUp.Interval, f().tPenDwn.Interval, f().vColmode.Value};
    EXPECT_EQ(std::vector(std::begin(got), std::end(got)), (std::vector{st.interval, st.interval, st.colourMode}))
        << st.code << " x" << st.times;
  }
  EXPECT_EQ(f().lStats.Caption.get(), "Standard");
  key(vbKeyF7);
  EXPECT_EQ(f().lStats.Caption.get(), "Current Draw Width Interval : 400");
}

TEST_F(KeyboardTest, HelpKeyListAndGridKeys) {
  key(vbKeyF2);
  EXPECT_TRUE(f().fHelp.Visible && !f().txHelp.Text.get().isEmpty());
  key(vbKeyK);
  ASSERT_FALSE(headless.msgbox.shown().empty());
  const auto& box = headless.msgbox.shown().back();
  EXPECT_TRUE(box.title == "Keyboard Shortcuts" && box.prompt.startsWith("Copy : SpaceBar\r\nPaste:  Insert Key\r\n"));
  // Caps Lock shows the grid and C colours it.
  key(vbKeyCapital);
  EXPECT_TRUE(f().lnX.Visible);
  key(vbKeyC);
  EXPECT_EQ(std::pair(f().lnX.BorderColor.get(), f().lnY.BorderColor.get()), std::pair(m().ForeClr.value(), m().BackClr.value()));
  key(vbKeyCapital);
  EXPECT_FALSE(f().lnX.Visible);
}

TEST_F(WidthKeysTest, UpAndRightWidenWhileHeldLeftAndDownNarrow) {
  const int step = m().StepSize;
  const struct { int code, ticks, width; } holds[] = {
      {vbKeyUp, 3, 4}, {vbKeyRight, 4, 8}, {vbKeyLeft, 1, 7}, {vbKeyDown, 2, 5}};
  for (const auto& h : holds) {
    hold(h.code, h.ticks);
    EXPECT_EQ(m().DrawWidth, h.width) << h.code;
    EXPECT_EQ(f().vPencil.Value.get(), h.width);
    EXPECT_EQ(f().PicPaint.DrawWidth.get(), h.width);
    EXPECT_FALSE(f().tPenUp.Enabled || f().tPenDwn.Enabled);  // the key's release stops its timer
  }
  EXPECT_EQ(m().StepSize, step + 10 * (3 + 4 - 1 - 2));  // the spacing follows by ten a step
}

TEST_F(WidthKeysTest, TheWidthStopsWhenItMeetsItsLimit) {
  hold(vbKeyUp, 40, false);
  EXPECT_TRUE(m().DrawWidth == 24 && !f().tPenUp.Enabled);
  EXPECT_EQ(f().lTell.Caption.get(), "Maximum");
  canvasKeyUp(f(), vbKeyUp);
  EXPECT_EQ(f().lTell.Caption.get(), "");
  m().StepSize = 70;  // the spacing falls with the width, but not under 50
  hold(vbKeyDown, 40, false);
  EXPECT_EQ(std::pair(int(m().DrawWidth), int(m().StepSize)), std::pair(4, 50));
  EXPECT_FALSE(f().tPenDwn.Enabled);
  EXPECT_EQ(f().lTell.Caption.get(), "Minimum");
  // A width already past the limit runs on to the bar's end: only equality with the limit stops it.
  m().DrawWidth = 30;
  hold(vbKeyUp, 200, false);
  EXPECT_TRUE(m().DrawWidth == 160 && f().tPenUp.Enabled) << m().DrawWidth;
  EXPECT_EQ(m().StepSize, 951 + 9);  // the spacing has its own ceiling
}

TEST_F(WidthKeysTest, HoldKeepsTheWidthMovingUntilTheLimitAndTheTimersNeverRunTogether) {
  f().ckHold.Value = 1;
  hold(vbKeyUp, 2);
  EXPECT_TRUE(f().tPenUp.Enabled);
  headless.loop.advance(f().tPenUp.Interval * 40);
  EXPECT_TRUE(m().DrawWidth == 24 && !f().tPenUp.Enabled) << m().DrawWidth;
  f().ckHold.Value = 0;
  canvasKeyDown(f(), vbKeyDown);
  canvasKeyDown(f(), vbKeyRight);
  EXPECT_TRUE(f().tPenUp.Enabled && f().tPenDwn.Enabled);
  headless.loop.advance(f().tPenUp.Interval);
  EXPECT_NE(f().tPenUp.Enabled.get(), f().tPenDwn.Enabled.get());
}

TEST_F(WidthKeysTest, TheSprayFollowsTheWidthOnlyWithTheSecondBox) {
  m().PaintMode = 3;
  // The second box, the arrow held two ticks, the spread before and after.
  const struct { int box, code, before, after; } cases[] = {{0, vbKeyUp, 5, 5}, {1, vbKeyUp, 5, 9}, {0, vbKeyDown, 20, 20}};
  for (const auto& c : cases) {
    f().ckVal2.Value = c.box;
    f().AirSpread = c.before;
    hold(c.code, 2);
    EXPECT_EQ(f().AirSpread, c.after) << "box " << c.box << ", key " << c.code;
  }
}

TEST_F(WidthKeysTest, AKeyOnThePaintAreaStartsTheTransientColoursOnlyWithTheirBox) {
  for (int box : {0, 1}) {
    f().ckDcolz.Value = box;
    canvasKeyDown(f(), 'A');
    EXPECT_EQ(f().tDclrz.Enabled.get(), box == 1) << "box " << box;
    canvasKeyUp(f(), 'A');
  }
}

TEST_F(WidthKeysTest, ModesWithoutAWidthIgnoreTheArrows) {
  for (int mode : {14, 17, 18, 19, 21, 25, 26, 29}) {
    m().PaintMode = mode;
    canvasKeyDown(f(), vbKeyUp);
    canvasKeyDown(f(), vbKeyDown);
    EXPECT_FALSE(f().tPenUp.Enabled || f().tPenDwn.Enabled) << "mode " << mode;
  }
  // Simple Shapes widens only for its box run.
  m().PaintMode = 2;
  f().vVal3.Min = 3;
  f().vVal3.Max = 0;
  f().vVal3.Value = 0;
  canvasKeyDown(f(), vbKeyUp);
  EXPECT_FALSE(f().tPenUp.Enabled);
  f().vVal3.Value = 3;
  canvasKeyDown(f(), vbKeyUp);
  EXPECT_TRUE(f().tPenUp.Enabled);
}

TEST_F(WidthKeysTest, TheTextBrushGrowsItsFontInstead) {
  m().PaintMode = 20;
  const struct { int code, from, to; const char* tell; } cases[] = {
      {vbKeyUp, 108, 110, "Maximum"}, {vbKeyDown, 14, 12, "Minimum"}};
  for (const auto& c : cases) {
    f().vFont.Value = c.from;
    hold(c.code, 5, false);
    EXPECT_EQ(std::tuple(int(f().vFont.Value), f().lTell.Caption.get(), int(m().DrawWidth)), std::tuple(c.to, QString(c.tell), 1));
    canvasKeyUp(f(), c.code);
  }
}

TEST_F(KeyboardTest, TheSpiralSurfaceRunsTheWidthTimersAndCtrlRightPicksItsColour) {
  choose(f().mSpr3);  // Freehand Spiralz draws on the pixel surface
  for (const auto& [code, up] : {std::pair{int(vbKeyLeft), false}, std::pair{int(vbKeyUp), true}}) {
    int key = code;
    f().pPix.KeyDown(key, 0);
    EXPECT_EQ(std::pair(bool(f().tPenUp.Enabled), bool(f().tPenDwn.Enabled)), std::pair(up, !up)) << code;
    f().pPix.raiseMouseUp(vbRightButton, 0, 10, 10);  // any release stops both
    EXPECT_FALSE(f().tPenUp.Enabled || f().tPenDwn.Enabled) << code;
  }
  f().pPix.PSet(20, 20, 0x00FF00);
  windowKeyDown(f(), vbKeyControl);
  f().pPix.raiseMouseUp(vbRightButton, 2, 20, 20);
  windowKeyUp(f(), vbKeyControl);
  // The colour is picked up, and the surface is not undone under it.
  EXPECT_EQ(std::pair(m().ForeClr.value(), f().pPix.Point(20, 20)),
            std::pair(Colour(0x00FF00), Colour(0x00FF00)));
}

}  // namespace
}  // namespace qp::test
