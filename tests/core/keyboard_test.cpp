// The window's global keys, each through the window's key events.
#include <QImage>

#include "core/Keyboard.h"
#include "support/KeyInput.h"
#include "support/ProgramFixture.h"

namespace qp::test {
namespace {

class KeyboardTest : public PencilTest {
 protected:
  void key(int code) {
    windowKeyDown(f(), code);
    windowKeyUp(f(), code);
  }
};

TEST_F(KeyboardTest, EnterAndShiftJumpTheWidthToItsLimits) {
  key(vbKeyReturn);
  EXPECT_EQ(m().DrawWidth, 24);
  EXPECT_EQ(f().vPencil.Value.get(), 24);
  EXPECT_EQ(f().lPenVal.Caption.get(), "Draw Width : 24");
  key(vbKeyShift);
  EXPECT_EQ(m().DrawWidth, 4);
  EXPECT_EQ(f().vPencil.Value.get(), 4);
  EXPECT_EQ(f().lPenVal.Caption.get(), "Draw Width : 4");
}

TEST_F(KeyboardTest, ColourKeysChooseAColourOptionAndItsColour) {
  key(vbKey1 + 2);  // "3"
  EXPECT_EQ(m().ColorOption, 2);
  EXPECT_EQ(f().SwatchKey, 2);
  key(vbKeyNumpad0 + 5);
  EXPECT_EQ(m().ColorOption, 5);
  key(vbKey8);  // gray is a colour, not an option
  EXPECT_EQ(f().SwatchKey, 7);
  EXPECT_EQ(m().ColorOption, 5);
}

TEST_F(KeyboardTest, WithATextPanelOpenOnlyTheKeysThatTypeNothingAct) {
  f().fText.Visible = true;
  key(vbKeyShift);  // a capital letter in the text box, not a width
  EXPECT_EQ(m().DrawWidth, 1);
  key(vbKey1 + 3);
  EXPECT_NE(m().ColorOption, 3);
  drawDot(1500, 1500);
  key(vbKeyBack);
  EXPECT_EQ(pixel(100, 100), 0xFFFFFF);
  key(vbKeyNumpad0 + 3);  // the keypad still chooses
  EXPECT_EQ(m().ColorOption, 3);
  key(vbKeyReturn);
  EXPECT_EQ(m().DrawWidth, 24);

  f().fText.Visible = false;
  f().fShad.Visible = true;
  key(vbKeyShift);
  EXPECT_EQ(m().DrawWidth, 24);
}

TEST_F(KeyboardTest, BackspaceUndoesOnceAndWithCtrlTwice) {
  drawDot(1500, 1500);
  drawDot(3000, 3000);
  key(vbKeyBack);
  EXPECT_EQ(pixel(100, 100), 0xFFFFFF);
  EXPECT_EQ(pixel(200, 200), 0x000000);
  windowKeyDown(f(), vbKeyControl);
  key(vbKeyBack);
  windowKeyUp(f(), vbKeyControl);
  EXPECT_EQ(pixel(100, 100), 0x000000);
}

TEST_F(KeyboardTest, DeleteClearsForgetsTheFileAndCanBeUndone) {
  m().CurrentFile = "C:\\pictures\\sky.bmp";
  drawDot(1500, 1500);
  key(vbKeyDelete);
  EXPECT_EQ(pixel(100, 100), 0x000000);
  EXPECT_EQ(m().CurrentFile, "");
  EXPECT_TRUE(f().Caption.get().contains("Untitled.bmp"));
  key(vbKeyBack);
  EXPECT_EQ(pixel(100, 100), 0xFFFFFF);
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
  EXPECT_EQ(pixel(100, 100), 0xFFFFFF);
  EXPECT_EQ(pixel(300, 300), 0x000000);
}

TEST_F(KeyboardTest, InsertFloatsTheClipboardsPicture) {
  key(vbKeyInsert);  // nothing there yet: nothing happens
  EXPECT_EQ(m().PaintMode, 0);
  EXPECT_FALSE(f().pTemp.Visible);
  QImage red(20, 10, QImage::Format_RGB32);
  red.fill(qRgb(255, 0, 0));
  headless.clipboard.SetData(red);
  key(vbKeyInsert);
  EXPECT_EQ(m().PaintMode, 22);
  EXPECT_TRUE(f().pTemp.Visible);
}

TEST_F(KeyboardTest, FunctionKeysStepTheWidthIntervalAndTheColourMode) {
  key(vbKeyF8);
  EXPECT_EQ(f().tPenUp.Interval.get(), 110);
  EXPECT_EQ(f().tPenDwn.Interval.get(), 110);
  EXPECT_EQ(f().lStats.Caption.get(), "Current Draw Width Interval : 110");
  for (int i = 0; i < 20; ++i) key(vbKeyF8);
  EXPECT_EQ(f().tPenUp.Interval.get(), 20);  // the fastest
  for (int i = 0; i < 50; ++i) key(vbKeyF7);
  EXPECT_EQ(f().tPenDwn.Interval.get(), 400);  // the slowest
  EXPECT_EQ(f().lStats.Caption.get(), "Current Draw Width Interval : 400");

  key(vbKeyF12);
  EXPECT_EQ(f().vColmode.Value.get(), 1);
  for (int i = 0; i < 5; ++i) key(vbKeyF12);
  EXPECT_EQ(f().vColmode.Value.get(), 3);
  key(vbKeyF11);
  EXPECT_EQ(f().vColmode.Value.get(), 2);
  for (int i = 0; i < 5; ++i) key(vbKeyF11);
  EXPECT_EQ(f().vColmode.Value.get(), 0);
}

TEST_F(KeyboardTest, HelpAndKeyListKeysReachTheirMenuItems) {
  int help = 0, keys = 0;
  f().mHelp.Click = [&] { ++help; };
  f().mKeys.Click = [&] { ++keys; };
  key(vbKeyF2);
  key(vbKeyK);
  EXPECT_EQ(help, 1);
  EXPECT_EQ(keys, 1);
  f().fShad.Visible = true;  // K types into the text box then; F2 still helps
  key(vbKeyK);
  key(vbKeyF2);
  EXPECT_EQ(keys, 1);
  EXPECT_EQ(help, 2);
}

TEST_F(KeyboardTest, CapsLockShowsTheGridAndCColoursIt) {
  key(vbKeyCapital);
  EXPECT_TRUE(f().lnX.Visible);
  key(vbKeyC);
  EXPECT_EQ(f().lnX.BorderColor.get(), m().ForeClr.value());
  EXPECT_EQ(f().lnY.BorderColor.get(), m().BackClr.value());
  key(vbKeyCapital);
  EXPECT_FALSE(f().lnX.Visible);
  f().fText.Visible = true;
  key(vbKeyCapital);
  EXPECT_FALSE(f().lnX.Visible);
}

TEST_F(KeyboardTest, KeysWithoutARowLeaveTheSessionAlone) {
  drawDot(1500, 1500);
  for (int code : {int(vbKeyZ), int(vbKeyF9), int('W'), int('O'), int('S'), 65}) key(code);
  EXPECT_EQ(m().PaintMode, 0);
  EXPECT_EQ(m().DrawWidth, 1);
  EXPECT_EQ(pixel(100, 100), 0xFFFFFF);
  EXPECT_FALSE(program->quitRequested());
}

TEST_F(KeyboardTest, AnyKeyUpShowsTheWidthBarsValue) {
  f().lPenVal.Caption = "";
  f().vPencil.Value = 7;
  windowKeyUp(f(), 'A');
  EXPECT_EQ(f().lPenVal.Caption.get(), "Draw Width : 7");
}

}  // namespace
}  // namespace qp::test
