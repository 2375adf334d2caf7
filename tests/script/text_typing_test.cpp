// Typing into Text1 redraws the 3D text's stack at every key. A key must cost the same however
// long the text already is, and the stack it leaves must be the one a whole redraw gives.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "ScriptFixture.h"
#include "tools/TextTools.h"

namespace qp::script {
namespace {

class TextTyping : public ScriptTest {
 protected:
  void runOk(const QString& text) { ASSERT_EQ(run(text), 0) << errors.toStdString(); }
  // The stack as the plain drawing makes it from the whole text, every layer printed whole.
  QImage wholeRedraw() {
    const QImage typed = f().pPix.Image;
    Single r1 = f().HS1(0).Value, g1 = f().HS1(1).Value, b1 = f().HS1(2).Value;
    Single xAxis = f().Px(0).Value, yAxis = f().Px(1).Value;
    // A text too wide for the stack's 16-bit position ends the drawing after the clearing, trapped.
    trap([&] {
      Draw3DText(session.program().s, f().pPix, f().HScroll1.Value, r1, g1, b1, f().HS1(3).Value,
                 f().HS1(4).Value, f().HS1(5).Value, xAxis, yAxis, f().Text1.Text);
    });
    const QImage whole = f().pPix.Image;
    f().pPix.Picture = typed;
    return whole;
  }
  // Characters printed by typing `n` more of them.
  std::uint64_t printedByTyping(int n, QChar c) {
    const std::uint64_t before = f().pPix.charactersDrawn();
    runOk("type Text1 " + QString(n, c));
    return f().pPix.charactersDrawn() - before;
  }
};

// Printable Latin-1 in a mix like a sentence's, spaces included.
QString someText(int n, unsigned seed) {
  std::mt19937 rnd(seed);
  QString t;
  for (int i = 0; i < n; ++i) {
    const unsigned r = rnd() % 100;
    const int c = r < 60 ? 'a' + int(rnd() % 26) : r < 72 ? ' ' : r < 90 ? 'A' + int(rnd() % 26) : 0xC0 + int(rnd() % 64);
    t += QChar(static_cast<char16_t>(c));
  }
  return t;
}

TEST_F(TextTyping, TheStackAfterTypingIsTheWholeRedraw) {
  struct Case {
    const char* what;
    int length;     // typed after the text is cleared
    int erased;     // backspaces after it
    const char* setup;
  };
  // 8,200 small characters put the middle of the line, the part in view, across a piece of 4096.
  const Case cases[] = {
      {"long, deep stack, far axes", 8200, 0, "set vFont.Value 8\nset HScroll1.Value 60\nset Px(0).Value -40\nset Px(1).Value 40"},
      {"long, one layer, off centre", 8200, 3, "set vFont.Value 8\nset HScroll1.Value 1\nset vWid.Value 5\nset vHgt.Value 470"},
      {"long, backspaces past the typed keys", 3000, 40, "set Px(0).Value 37"},
      {"long, then the font shrinks", 3000, 0, "type Text1 z\nset vFont.Value 10"},
      {"too wide for the stack's position", 9000, 0, ""},
      {"a control character prints whole", 700, 0, "type Text1 \x9c"},
      {"empty after backspaces", 3, 3, ""},
  };
  unsigned seed = 1;
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    runOk("menu mText\nset vFont.Value 24\nset HScroll1.Value 30\nset vWid.Value 320\nset vHgt.Value 240\n"
          "set Px(0).Value 4\nset Px(1).Value 4");
    // The text goes in whole but for its last keys, which are typed.
    const QString text = someText(c.length, seed++);
    const qsizetype typedFrom = std::max<qsizetype>(0, text.size() - 30);
    f().Text1.Text = text.left(typedFrom);
    runOk("type Text1 " + text.mid(typedFrom));
    for (int i = 0; i < c.erased; ++i) runOk("key Backspace");
    if (*c.setup) runOk(c.setup);
    const QImage typed = f().pPix.Image;
    EXPECT_TRUE(typed == wholeRedraw());
  }
}

TEST_F(TextTyping, AKeyPrintsNoMoreWhenTheTextIsLong) {
  // A small font, so that the longer text still fits the stack's position and is printed.
  runOk("menu mText\nset vFont.Value 8\nset HScroll1.Value 10");
  f().Text1.Text = "";
  runOk("type Text1 " + QString(300, 'w'));
  const std::uint64_t early = printedByTyping(10, 'w');
  runOk("type Text1 " + QString(3500, 'w'));
  const std::uint64_t late = printedByTyping(10, 'w');
  // Ten keys on ten layers: the line's place under the box may let one more character in a layer.
  EXPECT_GT(early, 100u);
  EXPECT_LE(late, early + 100);
  const std::uint64_t before = f().pPix.charactersDrawn();
  runOk("key Backspace");
  EXPECT_LE(f().pPix.charactersDrawn() - before, early / 10 + 10);
}

}  // namespace
}  // namespace qp::script
