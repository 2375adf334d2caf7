// The window's global keys, each through the window's key events.
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
};

TEST_F(KeyboardTest, EnterAndShiftJumpTheWidthToItsLimits) {
  for (const auto& [code, width] : {std::pair{int(vbKeyReturn), 24}, std::pair{int(vbKeyShift), 4}}) {
    key(code);
    EXPECT_EQ(m().DrawWidth, width);
    EXPECT_EQ(f().vPencil.Value.get(), width);
  }
}

TEST_F(KeyboardTest, WithATextPanelOpenOnlyTheKeysThatTypeNothingAct) {
  f().fText.Visible = true;
  key(vbKeyShift);  // a capital letter in the text box, not a width
  EXPECT_EQ(m().DrawWidth, 1);
  key(vbKey1 + 3);
  EXPECT_NE(m().ColorOption, 3);
  drawDot(1500, 1500);
  key(vbKeyBack);
  EXPECT_EQ(pixel(100, 100), kWhite);
  key(vbKeyCapital);
  EXPECT_FALSE(f().lnX.Visible);
  key(vbKeyNumpad0 + 3);  // the keypad still chooses
  EXPECT_EQ(m().ColorOption, 3);
  key(vbKeyReturn);
  f().fText.Visible = false;
  f().fShad.Visible = true;  // the other text panel too
  key(vbKeyShift);
  EXPECT_EQ(m().DrawWidth, 24);
}

TEST_F(KeyboardTest, DeleteClearsForgetsTheFileAndBackspaceUndoesIt) {
  m().CurrentFile = "C:\\pictures\\sky.bmp";
  drawDot(1500, 1500);
  key(vbKeyDelete);
  EXPECT_EQ(pixel(100, 100), kBlack);
  EXPECT_TRUE(m().CurrentFile.isEmpty() && f().Caption.get().contains("Untitled.bmp"));
  key(vbKeyBack);
  EXPECT_EQ(pixel(100, 100), kWhite);
}

TEST_F(KeyboardTest, SpacebarCopiesTheCanvasAndSetsAReturnPoint) {
  drawDot(1500, 1500);
  key(vbKeySpace);
  const QImage copied = headless.clipboard.GetData();
  ASSERT_FALSE(copied.isNull());
  EXPECT_EQ(copied.pixel(100, 100) & 0xFFFFFF, 0xFFFFFFu);
  // Strokes after the return point come off with one undo; the dot stays.
  f().PicPaint.Line(0, 0, 6000, 6000, 0x0000FF);
  key(vbKeyBack);
  EXPECT_EQ(std::pair(pixel(100, 100), pixel(300, 300)), std::pair(kWhite, kBlack));
}

TEST_F(KeyboardTest, InsertFloatsTheClipboardsPictureWhenThereIsOne) {
  key(vbKeyInsert);
  EXPECT_EQ(m().PaintMode, 0);
  QImage red(20, 10, QImage::Format_RGB32);
  red.fill(qRgb(255, 0, 0));
  headless.clipboard.SetData(red);
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
  int help = 0, keys = 0;
  f().mHelp.Click = [&] { ++help; };
  f().mKeys.Click = [&] { ++keys; };
  key(vbKeyF2);
  key(vbKeyK);
  EXPECT_EQ(std::pair(help, keys), std::pair(1, 1));
  // Caps Lock shows the grid and C colours it.
  key(vbKeyCapital);
  EXPECT_TRUE(f().lnX.Visible);
  key(vbKeyC);
  EXPECT_EQ(std::pair(f().lnX.BorderColor.get(), f().lnY.BorderColor.get()), std::pair(m().ForeClr.value(), m().BackClr.value()));
  key(vbKeyCapital);
  EXPECT_FALSE(f().lnX.Visible);
}

TEST_F(KeyboardTest, KeysWithoutARowLeaveTheSessionAlone) {
  drawDot(1500, 1500);
  for (int code : {int(vbKeyZ), int(vbKeyF9), int('W'), int('O'), int('S'), 65}) key(code);
  EXPECT_EQ(std::pair(int(m().PaintMode), int(m().DrawWidth)), std::pair(0, 1));
  EXPECT_EQ(pixel(100, 100), kWhite);
  EXPECT_FALSE(program->quitRequested());
  // Any key up shows the width bar's value.
  f().vPencil.Value = 7;
  f().lPenVal.Caption = "";
  windowKeyUp(f(), 'A');
  EXPECT_EQ(f().lPenVal.Caption.get(), "Draw Width : 7");
}

}  // namespace
}  // namespace qp::test
