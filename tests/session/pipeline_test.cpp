// The road of a stroke: the common steps of press, move and release, whatever the mode.
#include "support/ProgramFixture.h"
#include "core/Pipeline.h"
#include "core/ToolTable.h"

namespace qp::test {

ToolHooks strokeHooks(StrokeHook press, StrokeHook move, StrokeHook release) {
  ToolHooks h;
  std::tie(h.press, h.move, h.release) = std::tie(press, move, release);
  return h;
}

class Pipeline : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    choose(f().mSingle);  // a mode whose hooks we watch below
    program->tools.set(1, strokeHooks(record('P'), record('M'), record('R')));
  }
  StrokeHook record(char what) {
    return [this, what](Session&, int, Single x, Single y) { calls.push_back({what, x, y}); };
  }
  struct Call { char what; Single x, y; };
  std::vector<Call> calls;
};

TEST_F(Pipeline, PressRecordsWhereAndSnapshotsBeforeTheTool) {
  f().PicPaint.Line(0, 0, 600, 0, 0x00FFFF);  // drawn, not yet baked
  press(151.5f, 300.4f);
  ASSERT_TRUE(calls.size() == 1 && calls[0].what == 'P');
  EXPECT_FLOAT_EQ(f().PointerX, 151.5f);  // X keeps its fraction
  EXPECT_EQ(f().PointerY, 300);           // Y is rounded to whole twips
  EXPECT_EQ(m().CurrentFile, "Untitled.bmp");
  // The snapshot holds the line: a quick undo after the press keeps it.
  f().PicPaint.Line(0, 150, 600, 150, 0xFF0000);
  release(10, 10);
  release(10, 10, vbRightButton);
  EXPECT_EQ(std::pair(pixel(20, 0), pixel(20, 10)), std::pair(Colour(0x00FFFF), kBlack));
}

TEST_F(Pipeline, MoveWithoutTheLeftButtonOnlyReportsAndGuidesFollowThePointer) {
  move(300, 450, vbRightButton);
  EXPECT_TRUE(calls.empty());
  move(315, 465);
  ASSERT_TRUE(calls.size() == 1 && calls[0].what == 'M');
  f().lnX.Visible = true;
  move(900, 600, 0);
  EXPECT_EQ(QPointF(f().lnX.X1, f().lnY.Y2), QPointF(900, 600));
  EXPECT_EQ(f().lLnY.Caption.get(), "Y : 40");
  press(900, 600);  // a press puts the guides away
  EXPECT_FALSE(f().lnX.Visible);
}

// A canvas scrolled far down or a wide screen lets the pointer leave the canvas by more twips than
// a whole number of twips can hold: such a release still closes the stroke.
TEST_F(Pipeline, ReleaseRunsTheToolThenTheClosingStepsWhereverItFalls) {
  f().ckDcolz.Value = 1;
  f().ckHide.Value = 1;
  for (const auto& [x, y] : {std::pair{307.5f, 450.0f}, std::pair{40000.0f, 150.0f}, std::pair{150.0f, 40000.0f},
                             std::pair{-40000.0f, -40000.0f}}) {
    press(150, 150);
    ASSERT_TRUE(f().tDclrz.Enabled);
    ASSERT_EQ(f().PicPaint.MousePointer.get(), 99);
    f().tGrad.Enabled = true;
    f().tSphere.Enabled = true;
    f().lTell.Caption = "Maximum";
    f().mSel.Enabled = false;
    f().PicPaint.ScaleWidth = f().PicPaint.Height;  // as Mirror Lines leaves it during a stroke
    release(x, y);
    // The timers stopped, the message cleared, the menu back, the pointer and the scale restored.
    EXPECT_EQ(std::tuple(f().tDclrz.Enabled || f().tGrad.Enabled || f().tSphere.Enabled, f().lTell.Caption.get(),
                         bool(f().mSel.Enabled), int(f().PicPaint.MousePointer)),
              std::tuple(false, QString(), true, 2)) << x << "," << y;
    EXPECT_EQ(f().PicPaint.ScaleWidth.get(), f().PicPaint.Width.get());
    if (x == 307.5f) {
      ASSERT_EQ(calls.back().what, 'R');
      EXPECT_EQ(f().lXb.ToolTipText.get(), "Mouse Down X : 10   Mouse Up X : 20.5");
      EXPECT_EQ(QPoint(f().AutoDrawX, f().AutoDrawY), QPoint(308, 450));  // 307.5 rounds to even
      EXPECT_FLOAT_EQ(f().PicPaint.CurrentX, 207.5f);
    }
  }
  // AutoDraw goes on from the last place it could hold.
  release(600, 750);
  release(40000, 40000);
  EXPECT_EQ(QPoint(f().AutoDrawX, f().AutoDrawY), QPoint(600, 750));
}

TEST_F(Pipeline, AFailingToolEndsOnlyItsOwnStepAndAReleaseGoesToTheModeOfTheMoment) {
  const StrokeHook fails = [](Session&, int, Single, Single) { raiseError(RuntimeError::Overflow); };
  program->tools.set(1, strokeHooks(fails, {}, fails));
  press(150, 150);
  press(300, 300);
  EXPECT_EQ(f().DownButtonX, 20);  // the common steps before the tool ran, at each press
  f().tGrad.Enabled = true;
  release(150, 150);
  EXPECT_FALSE(f().tGrad.Enabled);  // the closing steps still ran
  // A release after a mode change runs the new mode's release.
  program->tools.set(1, strokeHooks(record('P'), record('M'), record('R')));
  press(150, 150);
  std::vector<char> other;
  program->tools.set(3, strokeHooks({}, {}, [&](Session&, int, Single, Single) { other.push_back('R'); }));
  m().PaintMode = 3;
  release(150, 150);
  EXPECT_TRUE(other.size() == 1 && calls.back().what == 'P');
}

TEST_F(Pipeline, RightPressDoesNothingButItsFirstStepAndItsReleaseShowsThePointerOrPicksWithCtrl) {
  f().ckHide.Value = 1;
  press(150, 150);
  f().lTell.Caption = "Maximum";
  f().lXb.ToolTipText = "";
  press(150, 150, vbRightButton);
  EXPECT_EQ(calls.size(), 1u);
  EXPECT_TRUE(f().lTell.Caption.get().isEmpty() && f().lXb.ToolTipText.get().isEmpty());
  release(150, 150, vbRightButton);
  EXPECT_EQ(f().PicPaint.MousePointer.get(), 2);
  // With Ctrl the right release picks the colour and skips the closing steps.
  f().PicPaint.Line(0, 300, 600, 300, 0x123456);
  f().CtrlDown = -1;
  f().tGrad.Enabled = true;
  release(150, 300, vbRightButton);
  for (Colour c : {m().ForeClr.value(), f().lForclr.BackColor.get(), f().lColor.BackColor.get(), f().shErSize.FillColor.get()})
    EXPECT_EQ(c, 0x123456);
  EXPECT_TRUE(f().tGrad.Enabled);
  EXPECT_EQ(pixel(10, 20), 0x123456);  // no undo: the picture is left alone
  release(-150, -150, vbRightButton);  // off the canvas the pick gives -1, stored as it is
  EXPECT_EQ(m().ForeClr, -1);
}

TEST_F(Pipeline, IntervalBarRetunesThePaintTimersUnlessAutoDrawRuns) {
  f().vInt.Value = 75;
  for (Timer* t : {&f().tAir, &f().tDraw, &f().tGrdTx, &f().tBrushTime, &f().tBrush, &f().tSphere, &f().tPix})
    EXPECT_EQ(t->Interval.get(), 75) << t->Name().toStdString();
  EXPECT_EQ(f().lStats.Caption.get(), "Interval : 75");
  f().tDraw.Enabled = true;
  f().vInt.Value = 90;
  EXPECT_EQ(f().tAir.Interval.get(), 75);
}

}  // namespace qp::test
