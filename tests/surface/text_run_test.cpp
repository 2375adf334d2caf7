// Printing a line through a TextRun that follows it key by key gives the pixels, the position
// and the measures of printing it whole, and draws only what can land on the surface.
#include <QFontMetrics>

#include "surface/SurfaceFixture.h"
#include "surface/TextRun.h"

namespace qp::test {
namespace {

using TextRunTest = SurfaceTest;

QString sentence(int n) {
  const QString words = "AVAST Wavy Type, fjord LT. To yVo'AW: \u00c9t\u00e9 \u00e0 l'\u00eele \u00fcber ";
  QString t;
  while (t.size() < n) t += words;
  return t.left(n);
}

TEST_F(TextRunTest, TheLineKeyByKeyPrintsAsTheWholeLine) {
  struct Case {
    const char *what, *font;
    Single size;
    int style;  // 1 bold, 2 italic, 4 underline, 8 strikeout
    int length, erased, viewAt;  // viewAt: the character brought near the box's left edge
    int scaleMode;
    bool transparent;
  };
  const Case cases[] = {
      {"short, in pixels", "Arial", 24, 0, 9, 0, 0, 3, true},
      {"long, its middle in view", "Arial", 24, 0, 6000, 0, 3001, 3, true},
      {"across a piece of the shaper", "DejaVu Sans", 12, 4, 4300, 0, 4085, 3, true},
      {"bold italic, backspaces", "Liberation Serif", 18, 3, 900, 25, 850, 3, true},
      {"opaque cell, twips", "Arial", 10, 8, 700, 0, 333, 1, false},
      {"end in view", "Arial", 14, 0, 1500, 0, 1480, 3, true},
      {"empty", "Arial", 14, 0, 0, 0, 0, 3, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    PictureBox& whole = box(300, 60, c.scaleMode, 0x203040);
    PictureBox& keyed = box(300, 60, c.scaleMode, 0x203040);
    for (PictureBox* b : {&whole, &keyed}) {
      b->FontName = c.font;
      b->FontSize = c.size;
      b->FontBold = c.style & 1;
      b->FontItalic = c.style & 2;
      b->FontUnderline = c.style & 4;
      b->FontStrikethru = c.style & 8;
      b->FontTransparent = c.transparent;
      b->ForeColor = 0xFFFFFF;
    }
    const QString text = sentence(c.length);
    const Single unit = c.scaleMode == 3 ? 1 : 15, x = 5 * unit - whole.TextWidth(text.left(c.viewAt));
    for (PictureBox* b : {&whole, &keyed}) b->CurrentX = x, b->CurrentY = 10 * unit;
    TextRun run;
    for (int i = 1; i <= text.size(); ++i) run.follow(keyed, text.left(i), i - 1);
    const QString left = text.left(text.size() - c.erased);
    run.follow(keyed, left, left.size());
    whole.takeDirty();
    keyed.takeDirty();
    whole.Print(left);
    keyed.PrintRun(left, run);
    EXPECT_TRUE(whole.bitmap() == keyed.bitmap());
    EXPECT_EQ(whole.takeDirty(), keyed.takeDirty());  // the view repaints the same rectangle
    EXPECT_EQ(at(whole), at(keyed));
    EXPECT_EQ(std::pair(whole.TextWidth(left), whole.TextHeight(left)),
              std::pair(keyed.TextWidth(left, run), keyed.TextHeight(left, run)));
    EXPECT_LE(keyed.charactersDrawn(), 80u);  // a box's width of characters, not the line
  }
}

// What the run cannot follow exactly it leaves to the whole printing: a line break, a control.
TEST_F(TextRunTest, LinesAndControlsPrintWhole) {
  for (const QString& text : {QString("two\nlines"), QString("a\tb"), QString("soft\u00adhyphen")}) {
    PictureBox& whole = box(200, 60);
    PictureBox& keyed = box(200, 60);
    TextRun run;
    run.follow(keyed, text, 0);
    EXPECT_FALSE(run.exact());
    whole.Print(text);
    keyed.PrintRun(text, run);
    EXPECT_TRUE(whole.bitmap() == keyed.bitmap()) << text.toStdString();
    EXPECT_EQ(whole.TextHeight(text), keyed.TextHeight(text, run));
    // Taking the odd character away makes it exact again.
    run.follow(keyed, text.left(1), 1);
    EXPECT_TRUE(run.exact());
  }
}

}  // namespace
}  // namespace qp::test
