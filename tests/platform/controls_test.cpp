// The controls' own rules, driven through their properties and user actions.
#include <gtest/gtest.h>

#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Headless.h"
#include "support/ErrorCode.h"

using namespace qp;
using qp::test::errorCode;

namespace {

struct Panel : Form {
  explicit Panel(Runtime& rt) : Form(rt, "frmPanel") {}
  VScrollBar vVal1{this, nullptr, "vVal1"};
  Label lHelp{this, nullptr, "lHelp"};
  Frame fOpts{this, nullptr, "fOpts"};
  CheckBox ckVal{this, nullptr, "ckVal"};
  ControlArray<OptionButton> opVert;
  ControlArray<OptionButton> opOther;  // in another container
  ListBox lstFont{this, nullptr, "lstFont"};
  TextBox tName{this, nullptr, "tName"};
  Menu mnuEdit{this, nullptr, "mnuEdit", "&Edit"};
  Menu mnuPaste{this, &mnuEdit, "mnuPaste", "&Paste"};
  ControlArray<Shape> Shadow;
};

struct ControlsTest : ::testing::Test {
  HeadlessRuntime h;
  Panel f{h.rt()};
  int changes = 0, clicks = 0;
};

TEST_F(ControlsTest, ScrollBarWithMinAboveMaxCountsUpwardFromTheTopArrow) {
  auto& v = f.vVal1;
  v.Min = 120;
  v.Max = 8;
  v.Value = 24;
  v.SmallChange = 2;
  v.LargeChange = 10;
  std::vector<std::pair<char, int>> seen;  // a handler reads the value it was told about
  v.Change = [&] { seen.push_back({'C', v.Value}); };
  v.Scroll = [&] { seen.push_back({'S', v.Value}); };
  for (auto step : {&VScrollBar::arrowUp, &VScrollBar::pageUp, &VScrollBar::arrowDown, &VScrollBar::pageDown})
    (v.*step)();
  v.Value = 119;
  v.pageUp();  // at the end of the range the arrow stops there and reports nothing more
  v.arrowUp();
  // A drag tells Scroll as the thumb moves and Change at the drop, only for a new value; the thumb
  // stops at the end of the range.
  v.dragTo(40);
  v.dragTo(40);
  v.dragTo(1000);
  EXPECT_EQ(seen, (std::vector<std::pair<char, int>>{{'C', 26}, {'C', 36}, {'C', 34}, {'C', 24}, {'C', 119}, {'C', 120},
                                                     {'S', 40}, {'C', 40}, {'S', 40}, {'S', 120}, {'C', 120}}));
}

TEST_F(ControlsTest, ScrollBarKeepsItsValueInsideItsRange) {
  auto& v = f.vVal1;
  v.Max = 500;
  v.Value = 400;
  v.Change = [&] { ++changes; };
  v.Max = 300;  // a new end pulls the value inside
  v.Min = 350;  // above Max: the range is 300..350 and the value stays
  EXPECT_EQ(std::pair(int(v.Value), changes), std::pair(300, 1));
  for (int outside : {351, 299}) EXPECT_EQ(errorCode([&] { v.Value = outside; }), RuntimeError::InvalidPropertyValue);
  EXPECT_EQ(std::pair(int(v.Value), changes), std::pair(300, 1)) << "a refused value keeps the old";
  v.Max = 360;
  EXPECT_EQ(std::pair(int(v.Value), changes), std::pair(350, 2));
  EXPECT_TRUE(trap([&] { v.Value = 360; }));
}

TEST_F(ControlsTest, ChangeEventsOfLabelsTextBoxesAndCheckBoxes) {
  QStringList seen;
  f.lHelp.Change = [&] { seen << f.lHelp.Caption; };  // a caption tells every write
  for (const char* text : {"Pencil", "Pencil", ""}) f.lHelp.Caption = text;
  EXPECT_EQ(seen, (QStringList{"Pencil", "Pencil", ""}));
  f.tName.Change = [&] { ++changes; };  // a text box only real changes
  for (const char* text : {"a", "a", "ab"}) f.tName.Text = text;
  EXPECT_EQ(changes, 2);
  auto& ck = f.ckVal;  // a check box: a click toggles, a written value clicks
  std::vector<int> clicked;
  ck.Click = [&] { clicked.push_back(ck.Value); };
  for (int i = 0; i < 2; ++i) ck.raiseClick();
  ck.Value = 0;  // no change, no Click
  ck.Value = 2;
  ck.raiseClick();  // a grey box becomes checked
  EXPECT_EQ(clicked, (std::vector<int>{1, 0, 2, 1}));
  EXPECT_FALSE(trap([&] { ck.Value = 3; }));
  EXPECT_EQ(ck.Value, 1);
}

TEST_F(ControlsTest, OptionButtonsOfOneContainerExcludeEachOther) {
  auto &a = f.opVert.add(0, &f, &f.fOpts, "opVert"), &b = f.opVert.add(1, &f, &f.fOpts, "opVert");
  auto& other = f.opOther.add(0, &f, nullptr, "opOther");
  std::vector<int> clicked;
  a.Click = [&] { clicked.push_back(0); };
  b.Click = [&] { clicked.push_back(1); };
  other.Value = true;
  a.raiseClick();
  EXPECT_TRUE(a.Value);
  b.Value = true;
  EXPECT_TRUE(!a.Value && b.Value);
  EXPECT_TRUE(other.Value) << "a button in another container stays on";
  b.Value = true;  // already on: no second Click
  EXPECT_EQ(clicked, (std::vector<int>{0, 1}));
}

TEST_F(ControlsTest, ListIndexRules) {
  auto& l = f.lstFont;
  l.Click = [&] { ++clicks; };
  EXPECT_EQ(l.ListIndex, -1);
  EXPECT_FALSE(trap([&] { l.ListIndex = 0; })) << "an empty list has no entry 0";
  for (auto s : {"Arial", "Courier", "Times"}) l.AddItem(s);
  l.ListIndex = 2;
  l.ListIndex = 2;
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(l.Text(), "Times");
  for (int outside : {3, -2}) EXPECT_FALSE(trap([&] { l.ListIndex = outside; }));
  EXPECT_EQ(l.ListIndex, 2);
  const auto chosen = [&] { return std::pair(int(l.ListIndex), l.Text()); };
  l.RemoveItem(0);  // the chosen entry moves up with the list
  EXPECT_EQ(chosen(), std::pair(1, QString("Times")));
  l.RemoveItem(1);
  EXPECT_EQ(chosen(), std::pair(-1, QString()));
  EXPECT_EQ(l.List(5), "");
  EXPECT_FALSE(trap([&] { l.RemoveItem(7); }));
  l.ListIndex = 0;
  l.Clear();
  EXPECT_EQ(std::pair(l.ListCount(), int(l.ListIndex)), std::pair(0, -1));
}

TEST_F(ControlsTest, MenuItemsAndDisabledMenusDoNotClick) {
  ASSERT_EQ(f.mnuEdit.items().size(), 1u);
  f.mnuPaste.Click = [&] { ++clicks; };
  f.mnuPaste.raiseClick();
  f.mnuPaste.Enabled = false;
  f.mnuPaste.raiseClick();
  f.mnuPaste.Enabled = true;
  f.mnuPaste.Visible = false;
  f.mnuPaste.raiseClick();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, RegistryFindsControlsByNameAndArrayIndex) {
  for (int i : {5, 24}) f.Shadow.add(i, &f, nullptr, "Shadow");
  EXPECT_EQ(f.find("Shadow(5)"), &f.Shadow(5));
  EXPECT_EQ(f.find("Shadow"), nullptr);
  EXPECT_FALSE(trap([&] { f.Shadow(6).Visible = false; }));
  {
    Label temp(&f, nullptr, "lTemp");
    EXPECT_EQ(f.find("lTemp"), &temp);
  }
  EXPECT_EQ(f.find("lTemp"), nullptr);
}

TEST_F(ControlsTest, FormAndFocusEventsComeInOrder) {
  std::vector<std::string> events;
  f.Load = [&] { events.push_back("Load"); };
  f.Resize = [&] { events.push_back("Resize"); };
  f.Activate = [&] { events.push_back("Activate"); };
  f.Show();
  for (int i = 0; i < 2; ++i) f.Width = 9000;
  f.Hide();
  f.Show();
  EXPECT_EQ(events, (std::vector<std::string>{"Load", "Resize", "Activate", "Resize", "Activate"}));
  events.clear();
  f.tName.GotFocus = [&] { events.push_back("tName+"); };
  f.tName.LostFocus = [&] { events.push_back("tName-"); };
  f.lstFont.GotFocus = [&] { events.push_back("lstFont+"); };
  f.tName.SetFocus();
  f.lstFont.SetFocus();
  EXPECT_TRUE(f.lstFont.hasFocus() && f.ActiveControl() == &f.lstFont);
  f.tName.Enabled = false;
  EXPECT_FALSE(trap([&] { f.tName.SetFocus(); }));
  EXPECT_EQ(events, (std::vector<std::string>{"tName+", "tName-", "lstFont+"}));
}

}  // namespace
