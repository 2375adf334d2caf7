// Entering each paint mode arms the panel's value rows.
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
  if (e.display) {
    EXPECT_EQ(f().PriorMode, e.mode);
  }
  EXPECT_EQ(f().lStats.Caption.get(), e.stats ? e.stats : "left alone");
}

INSTANTIATE_TEST_SUITE_P(EveryMode, ModeRows, ::testing::ValuesIn(kModes),
                         [](const auto& info) { return std::string(info.param.menu); });

}  // namespace qp::test
