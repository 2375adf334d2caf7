// Entering a paint mode: the panel's value rows it arms, and what it switches on or off besides.
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
    EXPECT_EQ(f().ckVal.Visible.get(), e.ckVal >= 0);
    EXPECT_EQ(f().Shadow(24).Visible.get(), e.ckVal >= 0);
    EXPECT_EQ(f().ckVal.Value.get(), e.ckVal >= 0 ? e.ckVal : 0);
    EXPECT_EQ(f().ckVal2.Visible.get(), e.ckVal2 >= 0);
    EXPECT_EQ(f().Shadow(34).Visible.get(), e.ckVal2 >= 0);
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
  EXPECT_TRUE(f().mnuOpen.Enabled.get());
  EXPECT_TRUE(f().mnuPaste.Enabled.get());
}

TEST_F(ModeEntry, GroupsOfTheModesThatUseThem) {
  choose(f().mCrzyPen);  // Crazy Pencil: a wide pen, and a single warning
  EXPECT_EQ(std::pair(f().vPencil.Value.get(), int(m().DrawWidth)), std::pair(60, 60));
  EXPECT_EQ(headless.msgbox.shown().size(), 1u);

  choose(f().mSpir2);  // GeoSpiralz: the full-canvas button instead of the pointer box
  EXPECT_TRUE(f().cCan.Visible.get());
  EXPECT_FALSE(f().ckHide.Visible.get());

  choose(f().mtCvShapes);  // Canvas Gradients: direction buttons, no stepping colours
  EXPECT_TRUE(f().opVert(0).Visible.get());
  EXPECT_FALSE(f().vColmode.Visible.get());

  choose(f().mText);  // 3D Text: the text frame without its cover
  EXPECT_TRUE(f().fText.Visible.get());
  EXPECT_FALSE(f().fTcover.Visible.get());

  choose(f().mEr);  // the eraser's preview has the bar's size and the draw colour
  EXPECT_TRUE(f().shErSize.Visible.get());
  EXPECT_EQ(f().shErSize.Height.get(), 120);
  EXPECT_EQ(f().shErSize.FillColor.get(), Colour(m().ForeClr.value()));

  choose(f().mAir);  // AirBrush sprays at the fastest interval
  EXPECT_EQ(f().vInt.Value.get(), 1);
  EXPECT_EQ(f().tAir.Interval.get(), 1);

  choose(f().mPwp);  // Collage Mode: the picture button waits for a picture
  EXPECT_TRUE(f().cCan.Visible.get());
  EXPECT_FALSE(f().cCan.Enabled.get());
  choose(f().mSpir2);
  EXPECT_TRUE(f().cCan.Enabled.get());
}

namespace {

constexpr int kColourOption = -1;  // the bar takes the session's colour option
enum Frame { Hidden, Dim, Live, HiddenLive };  // a row's look: not shown, shown dim or live

struct Row {
  int min = 0, max = 0, value = 0, small = 0, large = 0;
  Frame look = Hidden;
};

struct ModeExpect {
  const char* menu;
  int mode;
  std::array<Row, 5> rows;
  int panelRows;        // -1: the height of the mode before
  const char* display;  // nullptr: the display of the mode before
  const char* stats;    // nullptr: the state word is not touched
};

const Row off{};

// One mode for each kind of row and panel: dim, live, hidden but live, the colour option, a
// mode that leaves the display alone and one that keeps the panel height.
const ModeExpect kModes[] = {
    {"mPencil", 0, {Row{40, 1, 4, 1, 1, Dim}, off, off, off, off}, 0, "Freehand Pencil", "Proceed..."},
    {"mSngBox", 2, {Row{960, 40, 40, 10, 10, Dim}, Row{7, 0, 1, 1, 1, Live}, Row{3, 0, 0, 1, 1, Live}, off, off},
     2, "Draw Shapes", "Proceed..."},
    {"mBrushes", 7, {Row{55, 0, 0, 1, 1, Live}, Row{20, 1, 4, 1, 1, Live}, Row{0, 0, 0, 0, 0, HiddenLive}, off, off},
     0, "Brushes", "Horizontal"},
    {"mBallz", 8, {Row{500, 20, 50, 2, 2, Live}, Row{25, 1, 10, 1, 1, Live}, Row{24, 1, 6, 1, 1, Live},
                   Row{6, 0, kColourOption, 1, 1, Live}, off}, 2, "Gradient Spheres", "Proceed..."},
    {"mSelClr", 18, {off, off, off, off, off}, 0, nullptr, nullptr},
    {"mTxBrush", 20, {off, off, off, off, off}, -1, "Text Brush", "Interval : 200"},
};

void PrintTo(const ModeExpect& e, std::ostream* os) { *os << e.menu; }

class ModeRows : public ProgramTest, public ::testing::WithParamInterface<ModeExpect> {};

}  // namespace

TEST_P(ModeRows, EnteringTheModeArmsItsRows) {
  const ModeExpect& e = GetParam();
  // Shadow Text first: no rows, the tallest panel, a display and a state word of its own, so that
  // whatever a mode leaves alone shows.
  choose(f().mShadTx);
  f().lStats.Caption = "left alone";
  choose(e.menu);
  ASSERT_EQ(m().PaintMode, e.mode);

  for (int n = 1; n <= 5; ++n) {
    SCOPED_TRACE("row " + std::to_string(n));
    const Row& r = e.rows[static_cast<size_t>(n - 1)];
    const VScrollBar& bar = f().valueBar(n);
    const bool shown = r.look == Dim || r.look == Live;
    EXPECT_EQ(bar.Visible.get(), shown);
    EXPECT_EQ(f().valueLabel(n).Visible.get(), shown);
    EXPECT_EQ(f().Shadow(n).Visible.get(), shown);
    const bool live = r.look == Live || r.look == HiddenLive;
    EXPECT_EQ(f().Shadow(n).BorderColor.get(), live ? 0xFF8080u : 0x808080u);
    if (r.small == 0) continue;  // a frame without a bar of its own
    EXPECT_EQ(bar.Min.get(), r.min);
    EXPECT_EQ(bar.Max.get(), r.max);
    EXPECT_EQ(bar.Value.get(), r.value == kColourOption ? int(m().ColorOption) : r.value);
    EXPECT_EQ(bar.SmallChange.get(), r.small);
    EXPECT_EQ(bar.LargeChange.get(), r.large);
  }
  EXPECT_EQ(int(f().PanelRows), e.panelRows < 0 ? 4 : e.panelRows);
  EXPECT_EQ(f().lMode.Caption.get(), e.display ? e.display : "Shadow Text");
  EXPECT_EQ(f().lModeB.Caption.get(), e.display ? e.display : "Shadow Text");
  if (e.display) {
    EXPECT_EQ(f().PriorMode, e.mode);
  }
  EXPECT_EQ(f().lStats.Caption.get(), e.stats ? e.stats : "left alone");
}

INSTANTIATE_TEST_SUITE_P(EveryMode, ModeRows, ::testing::ValuesIn(kModes),
                         [](const auto& info) { return std::string(info.param.menu); });

}  // namespace qp::test
