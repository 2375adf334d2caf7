// Entering each paint mode arms the panel's value rows: their ranges and values, which rows show
// and which are live, the panel height, the mode display and the state word.
#include "core/Panel.h"
#include "support/ProgramFixture.h"

namespace qp::test {

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

// Written out from what each mode's panel looks like, not from the program's own tables.
const ModeExpect kModes[] = {
    {"mPencil", 0, {Row{40, 1, 4, 1, 1, Dim}, off, off, off, off}, 0, "Freehand Pencil", "Proceed..."},
    {"mSingle", 1, {Row{1200, 40, 60, 20, 20, Dim}, off, off, off, off}, 0, "Draw Line", "Single Mode"},
    {"mSngBox", 2, {Row{960, 40, 40, 10, 10, Dim}, Row{7, 0, 1, 1, 1, Live}, Row{3, 0, 0, 1, 1, Live}, off, off},
     2, "Draw Shapes", "Proceed..."},
    {"mAir", 3, {Row{160, 1, 5, 1, 1, Live}, off, off, off, off}, 0, "AirBrush", "Proceed..."},
    {"mShadow", 4, {Row{960, 40, 40, 10, 10, Live}, off, off, off, off}, 0, "Shadow Draw", "Proceed..."},
    {"mMirLine", 5, {off, off, off, off, off}, 2, "Mirror Line", "Proceed..."},
    {"mEr", 6, {Row{1600, 20, 120, 10, 10, Live}, off, off, off, off}, 0, "Eraser", "Proceed..."},
    {"mBrushes", 7, {Row{55, 0, 0, 1, 1, Live}, Row{20, 1, 4, 1, 1, Live}, Row{0, 0, 0, 0, 0, HiddenLive}, off, off},
     0, "Brushes", "Horizontal"},
    {"mBallz", 8, {Row{500, 20, 50, 2, 2, Live}, Row{25, 1, 10, 1, 1, Live}, Row{24, 1, 6, 1, 1, Live},
                   Row{6, 0, kColourOption, 1, 1, Live}, off}, 2, "Gradient Spheres", "Proceed..."},
    {"mBubble", 9, {Row{12, 1, 2, 1, 1, Live}, Row{960, 120, 240, 20, 20, Dim}, Row{24, 3, 6, 1, 1, Dim}, off, off},
     1, "Boxes N Bubblez", "Proceed..."},
    {"mCrazyLn", 10, {Row{50, 1, 1, 1, 1, Live}, off, off, off, off}, 0, "Crazy Linez", "Equation : 1"},
    {"mCircFx", 11, {Row{10, 1, 3, 1, 1, Live}, Row{500, 20, 50, 2, 2, Live}, Row{20, 1, 12, 1, 1, Live},
                     Row{60, 1, 5, 1, 1, Live}, Row{36, 1, 6, 1, 1, Live}}, -1, "Circle FX", "Proceed..."},
    {"mSpir2", 12, {Row{15, 0, 0, 1, 1, Live}, Row{32, 1, 3, 1, 1, Live}, Row{8, 1, 3, 1, 1, Live},
                    Row{2, 0, 0, 1, 1, Live}, Row{1200, 60, 120, 20, 20, Dim}}, 3, "GeoSpiralz", "Proceed..."},
    {"mPwp", 14, {off, off, off, off, off}, -1, "Paint w/Pix", "Proceed..."},
    {"mFF", 15, {off, off, off, off, off}, 0, "FloodFill", "Proceed..."},
    {"mSpr3", 16, {Row{72, 6, 12, 6, 6, Live}, off, off, off, off}, 0, "Freehand Spiralz", "Proceed..."},
    {"mMini", 17, {Row{0, 2, 0, 1, 1, Live}, Row{1, 20, 2, 1, 1, Dim}, Row{24, 1, 6, 1, 1, Dim},
                   Row{6, 0, kColourOption, 1, 1, Live}, off}, 2, "Mini Gradients", "Proceed..."},
    {"mSelClr", 18, {off, off, off, off, off}, 0, nullptr, nullptr},
    {"mSelCpy", 19, {off, off, off, off, off}, 0, nullptr, nullptr},
    // Text Brush leaves the state word to the interval bar, which it sets to 200.
    {"mTxBrush", 20, {off, off, off, off, off}, -1, "Text Brush", "Interval : 200"},
    {"mText", 21, {off, off, off, off, off}, -1, "3D Text", "Proceed..."},
    {"mCrzyPen", 23, {Row{13, 0, 13, 1, 1, Live}, off, off, off, off}, 0, "kRAzY peNCiL", "pROcEed..."},
    {"mGpen", 24, {Row{50, 2, 16, 1, 1, HiddenLive}, off, off, off, off}, 2, "Mirror Draw", "Proceed..."},
    {"mtCvShapes", 25, {Row{0, 3, 0, 1, 1, Live}, Row{20, 2, 2, 1, 1, Dim}, Row{24, 1, 6, 1, 1, Dim}, off,
                        Row{0, 0, 0, 0, 0, HiddenLive}}, 3, "Canvas Gradients", "Diamonds"},
    {"mBluScrn", 26, {off, off, off, off, off}, -1, "Paint w/TransPix", "Proceed..."},
    {"mShadTx", 29, {off, off, off, off, off}, 4, "Shadow Text", "Proceed..."},
    {"mSaw", 30, {Row{960, 60, 60, 10, 10, Live}, off, off, off, off}, 0, "Polygons Plus", "Proceed..."},
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
  auto* item = dynamic_cast<Menu*>(f().find(e.menu));
  ASSERT_NE(item, nullptr);
  choose(*item);
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
  if (e.display) EXPECT_EQ(f().PriorMode, e.mode);
  EXPECT_EQ(f().lStats.Caption.get(), e.stats ? e.stats : "left alone");
}

INSTANTIATE_TEST_SUITE_P(EveryMode, ModeRows, ::testing::ValuesIn(kModes),
                         [](const auto& info) { return std::string(info.param.menu); });

}  // namespace qp::test
