// Choosing a paint mode: the panel's value rows it arms, what it switches on or off besides, the
// display, the reset of the panel, the panel height, the exceptions.
#include "core/Panel.h"
#include "support/ProgramFixture.h"

namespace qp::test {

using ModeEntry = ProgramTest;

TEST_F(ModeEntry, CheckBoxesShowWithTheirStartValues) {
  struct Expect { const char* menu; int ckVal; int ckVal2; };  // -1: the box is not shown
  const Expect all[] = {{"mPencil", 0, -1}, {"mAir", -1, 0}, {"mEr", -1, -1}, {"mBrushes", 1, 0}, {"mBubble", 0, 1}};
  for (const Expect& e : all) {
    SCOPED_TRACE(e.menu);
    f().ckVal.Value.setRaw(1);  // left ticked by the mode before: a new mode clears it
    choose(e.menu);
    // Each box shows with its frame; a box not shown is left clear.
    EXPECT_EQ((std::vector<bool>{f().ckVal.Visible, f().Shadow(24).Visible, f().ckVal2.Visible, f().Shadow(34).Visible}),
              (std::vector<bool>{e.ckVal >= 0, e.ckVal >= 0, e.ckVal2 >= 0, e.ckVal2 >= 0}));
    EXPECT_EQ(f().ckVal.Value.get(), e.ckVal >= 0 ? e.ckVal : 0);
    if (e.ckVal2 >= 0) {
      EXPECT_EQ(f().ckVal2.Value.get(), e.ckVal2);
    }
  }
}

TEST_F(ModeEntry, PixelModesPaintOnACopyOfTheCanvas) {
  struct Expect { const char* menu; bool canvasHidden; bool openOn; bool pasteOn; };
  const Expect all[] = {
      {"mFF", false, false, false}, {"mSpr3", true, true, false}, {"mText", true, true, false},
      {"mBluScrn", false, false, true},
  };
  for (const Expect& e : all) {
    SCOPED_TRACE(e.menu);
    choose(f().mPencil);
    f().PicPaint.Line(300, 300, 1500, 900, 0x0000FF);
    choose(e.menu);
    EXPECT_TRUE(f().pPix.Visible.get());
    EXPECT_EQ(f().PicPaint.Visible.get(), !e.canvasHidden);
    EXPECT_EQ(f().pPix.Picture.get(), f().PicPaint.Image.get());
    EXPECT_EQ(f().mnuOpen.Enabled.get(), e.openOn);
    EXPECT_EQ(f().mnuPaste.Enabled.get(), e.pasteOn);
  }
  choose(f().mPencil);  // any other mode gives the menu items back
  EXPECT_TRUE(f().mnuOpen.Enabled && f().mnuPaste.Enabled);
}

TEST_F(ModeEntry, GroupsOfTheModesThatUseThem) {
  choose(f().mCrzyPen);  // Crazy Pencil: a wide pen, and a single warning
  EXPECT_EQ(std::pair(f().vPencil.Value.get(), int(m().DrawWidth)), std::pair(60, 60));
  EXPECT_EQ(headless.msgbox.shown().size(), 1u);

  choose(f().mSpir2);  // GeoSpiralz: the full-canvas button instead of the pointer box
  EXPECT_TRUE(f().cCan.Visible && !f().ckHide.Visible);

  for (CheckBox* c : {&f().ckVert, &f().ckHoriz}) c->Value = 0;
  choose(f().mGpen);  // Mirrors N More: both mirrors on again
  EXPECT_TRUE(f().ckVert.Value == 1 && f().ckHoriz.Value == 1);

  choose(f().mtCvShapes);  // Canvas Gradients: direction buttons, no stepping colours
  EXPECT_TRUE(f().opVert(0).Visible && !f().vColmode.Visible);

  choose(f().mText);  // 3D Text: the text frame without its cover
  EXPECT_TRUE(f().fText.Visible && !f().fTcover.Visible);

  choose(f().mEr);  // the eraser's preview has the bar's size and the draw colour
  EXPECT_EQ(std::tuple(bool(f().shErSize.Visible), f().shErSize.Height.get(), f().shErSize.FillColor.get()),
            std::tuple(true, 120, Colour(m().ForeClr.value())));

  choose(f().mAir);  // AirBrush sprays at the fastest interval
  EXPECT_EQ(f().vInt.Value.get(), 1);

  choose(f().mPwp);  // Collage Mode: the picture button waits for a picture
  EXPECT_TRUE(f().cCan.Visible && !f().cCan.Enabled);
  choose(f().mSpir2);
  EXPECT_TRUE(f().cCan.Enabled.get());
}

// One mode for each kind of row and panel: dim, live, hidden but live, the colour option, a mode
// that leaves the display alone and one that keeps the panel height.
TEST_F(ModeEntry, EnteringTheModeArmsItsRows) {
  enum Look { Hidden, Dim, Live, HiddenLive };  // a row not shown, shown dim or live, or hidden but live
  constexpr int kColourOption = -1;             // the bar takes the session's colour option
  struct Row { Look look = Hidden; int min = 0, max = 0, value = 0, small = 0, large = 0; };
  // The rows, the panel's rows, the display and the state word (nullptr: left alone).
  struct Mode { const char* menu; std::array<Row, 4> rows; int panelRows; const char *display, *stats; };
  const Mode modes[] = {
      {"mPencil", {Row{Dim, 40, 1, 4, 1, 1}}, 0, "Freehand Pencil", "Proceed..."},
      {"mSngBox", {Row{Dim, 960, 40, 40, 10, 10}, {Live, 7, 0, 1, 1, 1}, {Live, 3, 0, 0, 1, 1}}, 2, "Draw Shapes", "Proceed..."},
      {"mBrushes", {Row{Live, 55, 0, 0, 1, 1}, {Live, 20, 1, 4, 1, 1}, {HiddenLive}}, 0, "Brushes", "Horizontal"},
      {"mBallz", {Row{Live, 500, 20, 50, 2, 2}, {Live, 25, 1, 10, 1, 1}, {Live, 24, 1, 6, 1, 1}, {Live, 6, 0, kColourOption, 1, 1}},
       2, "Gradient Spheres", "Proceed..."},
      {"mSelClr", {}, 0, nullptr, nullptr},
      {"mTxBrush", {}, 4, "Text Brush", "Interval : 200"}};
  for (const Mode& e : modes) {
    SCOPED_TRACE(e.menu);
    // Shadow Text first: no rows, the tallest panel, a display and a state word of its own.
    choose(f().mShadTx);
    f().lStats.Caption = "left alone";
    choose(e.menu);
    for (int n = 1; n <= 5; ++n) {
      const Row r = n <= 4 ? e.rows[size_t(n - 1)] : Row{};
      const VScrollBar& bar = f().valueBar(n);
      const bool shown = r.look == Dim || r.look == Live;
      EXPECT_EQ((std::vector<bool>{bar.Visible, f().valueLabel(n).Visible, f().Shadow(n).Visible}), std::vector<bool>(3, shown)) << n;
      EXPECT_EQ(f().Shadow(n).BorderColor.get(), r.look == Live || r.look == HiddenLive ? kLiveFrame : kDimFrame) << n;
      if (r.small == 0) continue;  // a frame without a bar of its own
      const int value = r.value == kColourOption ? int(m().ColorOption) : r.value;
      EXPECT_EQ((std::vector<int>{bar.Min, bar.Max, bar.Value, bar.SmallChange, bar.LargeChange}),
                (std::vector<int>{r.min, r.max, value, r.small, r.large})) << n;
    }
    EXPECT_EQ(int(f().PanelRows), e.panelRows);
    EXPECT_EQ(std::pair(f().lMode.Caption.get(), f().lModeB.Caption.get()),
              std::pair(QString(e.display ? e.display : "Shadow Text"), QString(e.display ? e.display : "Shadow Text")));
    EXPECT_EQ(f().lStats.Caption.get(), e.stats ? e.stats : "left alone");
  }
}

using Modes = ProgramTest;

TEST_F(Modes, SelectionItemsKeepTheDisplayOfTheModeBefore) {
  choose(f().mAir);
  choose(f().mSelRect);
  EXPECT_TRUE(m().PaintMode == 19 && f().lMode.Caption.get() == "AirBrush");
  // Transparency selection sets its flag and the smallest panel, without re-arming the panel.
  f().lStats.Caption = "kept";
  choose(f().mTrans);
  EXPECT_TRUE(f().TransparencySelect == -1 && m().PaintMode == 19 && f().PanelHeight == 2040);
  EXPECT_EQ(f().lStats.Caption.get(), "kept");
}

TEST_F(Modes, ModeChangeResetsThePanelBeforeTheModesOwnSettings) {
  choose(f().mBallz);  // four live rows
  f().PicPaint.DrawMode = 7;
  f().PicPaint.FillStyle = 0;
  f().vInt.Value = 300;
  choose(f().mPencil);
  EXPECT_FALSE(f().vVal4.Visible);
  EXPECT_EQ(f().Shadow(1).BorderColor.get(), kDimFrame);  // the speed row waits for AutoDraw
  const int reset[] = {f().PicPaint.DrawMode, f().PicPaint.FillStyle, f().vInt.Value};
  EXPECT_EQ(std::vector(std::begin(reset), std::end(reset)), (std::vector{13, 1, 20}));
  f().ckVal2.Value = 1;  // a ticked box does not carry over into a mode that has no use for it
  choose(f().mFF);
  EXPECT_EQ(f().ckVal2.Value.get(), 0);
}

TEST_F(Modes, ChoosingTheSameModeAgainBakesTheCanvasAndResetsTheArrowPointer) {
  choose(f().mPencil);
  f().mArrow.raiseClick();
  f().PointerShape = 1;
  f().PicPaint.Line(0, 0, 1500, 0, 0x0000FF);
  choose(f().mPencil);
  EXPECT_EQ(f().PointerShape, 2);
  release(30, 30, vbRightButton);  // the drawing is now the snapshot: a quick undo keeps it
  EXPECT_EQ(pixel(50, 0), 0x0000FF);
}

TEST_F(Modes, PanelHeightFollowsTheModeAndSomeModesKeepTheHeightBefore) {
  // The item chosen, the panel height and where the help line then stands.
  for (const auto& [item, height, helpTop] : {std::tuple{&f().mSngBox, 3000, 3015},
                                              std::tuple{&f().mCircFx, 3000, 3615},  // keeps the height before
                                              std::tuple{&f().mPencil, 2040, 2055}}) {
    choose(*item);
    EXPECT_EQ(f().PanelHeight, height) << item->Name().toStdString();
    EXPECT_EQ(f().lHelp.Top.get(), helpTop) << item->Name().toStdString();
  }
}

TEST_F(Modes, LeavingAModeTakesItsOwnPanelAway) {
  choose(f().mShadTx);
  ASSERT_TRUE(f().fShad.Visible);
  choose(f().mPencil);
  EXPECT_FALSE(f().fShad.Visible);
}

// A mode's bar may take its value from a session variable that another mode's wider bar has
// pushed past this bar's end. The mode still builds its whole panel, the bar standing at its end.
TEST_F(Modes, AnOffsetTooWideForTheNextModesBarStillGivesThatModeItsPanel) {
  choose(f().mSingle);
  f().ckVal.Value = 1;  // the offset row answers once the shadow line is on
  f().vVal1.Value = 1200;
  ASSERT_EQ(m().StepSize, 1200);
  choose(f().mShadow);  // its offset bar ends at 960
  for (const Control* c : std::initializer_list<const Control*>{&f().ckVal, &f().ckVal2, &f().cSwap, &f().fBow})
    EXPECT_TRUE(c->Visible) << c->key().toStdString();
  EXPECT_EQ(f().lStats.Caption.get(), "Proceed...");
  EXPECT_EQ(std::pair(int(f().vVal1.Value), int(m().StepSize)), std::pair(960, 960));
}

}  // namespace qp::test
