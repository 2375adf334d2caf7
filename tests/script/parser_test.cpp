// Reading scripts: each line kind, its defaults, and the messages for lines that are not right.
#include <gtest/gtest.h>

#include "script/Command.h"
#include "script/Value.h"

namespace qp::script {

namespace {
std::vector<Command> parse(const QString& text) {
  std::vector<Command> out;
  ParseError err;
  EXPECT_TRUE(parseScript(text, out, err)) << "line " << err.line << ": " << err.message.toStdString();
  return out;
}
ParseError failure(const QString& text) {
  std::vector<Command> out;
  ParseError err;
  EXPECT_FALSE(parseScript(text, out, err));
  return err;
}
}  // namespace

TEST(ScriptParser, PointerLinesTakeButtonsAndModifiers) {
  const auto c = parse("press PicPaint 10 20\nmove pPix 3.5 4 none\nrelease PicPaint 1 2 right ctrl shift\n"
                       "click cSwap\nclick PicPaint right\nmove PicPaint 1 1");
  ASSERT_EQ(c.size(), 6u);
  EXPECT_EQ(c[0].op, Op::Press);
  EXPECT_EQ(c[0].name, "PicPaint");
  EXPECT_EQ(c[0].button, 1);  // left unless said
  EXPECT_EQ(c[0].x, 10);
  EXPECT_EQ(c[1].button, 0);
  EXPECT_DOUBLE_EQ(c[1].x, 3.5);
  EXPECT_EQ(c[2].button, 2);
  EXPECT_EQ(c[2].shift, 3);
  EXPECT_EQ(c[2].line, 3);
  EXPECT_EQ(c[4].button, 2);
  EXPECT_EQ(c[5].button, 1);  // a move holds the left button unless told `none`
}

TEST(ScriptParser, CommentsBlankLinesAndQuotes) {
  const auto c = parse("# a comment\n\n   \nwait 250 # after it\r\nexpect lMode.Caption \"Draw # Line\"\n"
                       "type Text1 Hello  world\nset Text1.Text \"say \\\"hi\\\" \\\\ there\"");
  ASSERT_EQ(c.size(), 4u);
  EXPECT_EQ(c[0].op, Op::Wait);
  EXPECT_EQ(c[0].number, 250);
  EXPECT_EQ(c[0].line, 4);
  EXPECT_EQ(c[1].text, "\"Draw # Line\"");  // a # inside quotes is text
  EXPECT_EQ(c[2].text, "Hello  world");    // the rest of the line, spacing kept
  EXPECT_EQ(c[3].name, "Text1");
  EXPECT_EQ(c[3].property, "Text");
  EXPECT_EQ(c[3].text, "say \"hi\" \\ there");
}

TEST(ScriptParser, KeysByNameOrCode) {
  const auto c = parse("key Up\nkey 38 down\nkey F12 up\nkey A\nkey 7\nkey Num3\nkey NumMinus\nkey Esc");
  ASSERT_EQ(c.size(), 8u);
  EXPECT_EQ(c[0].key, 38);
  EXPECT_EQ(c[0].keyAction, KeyAction::DownAndUp);
  EXPECT_EQ(c[1].key, 38);
  EXPECT_EQ(c[1].keyAction, KeyAction::Down);
  EXPECT_EQ(c[2].key, 123);
  EXPECT_EQ(c[2].keyAction, KeyAction::Up);
  EXPECT_EQ(c[3].key, 65);
  EXPECT_EQ(c[4].key, 55);  // the digit key, not code 7
  EXPECT_EQ(c[5].key, 99);
  EXPECT_EQ(c[6].key, 109);
  EXPECT_EQ(c[7].key, 27);
  EXPECT_EQ(keyNameForCode(38), "Up");
  EXPECT_EQ(keyNameForCode(112), "F1");
  EXPECT_EQ(keyCodeForName(keyNameForCode(100)), 100);
  EXPECT_EQ(keyAsciiForCode(65, 0), 'a');
  EXPECT_EQ(keyAsciiForCode(65, 1), 'A');
  EXPECT_EQ(keyAsciiForCode(38, 0), 0);
}

TEST(ScriptParser, ReadOutsAndFiles) {
  const auto c = parse("print pixel PicPaint 3 4\nexpect pixel pPix 1 2 0xFFFFFF\nexpect msgbox \"a\\nb\"\n"
                       "clipboard load pics/a b.bmp\nclipboard clear\nsave PicPaint out.bmp\nscreenshot shot.png\n"
                       "drop PicPaint \"my pic.bmp\"\nseed 42\nmenu mPencil\ndblclick lHelp\nfocus PicPaint");
  ASSERT_EQ(c.size(), 12u);
  EXPECT_TRUE(c[0].pixel);
  EXPECT_EQ(c[0].y, 4);
  EXPECT_EQ(c[1].text, "0xFFFFFF");
  EXPECT_EQ(c[3].text, "pics/a b.bmp");
  EXPECT_EQ(c[4].op, Op::ClipboardClear);
  EXPECT_EQ(c[7].text, "my pic.bmp");
  EXPECT_EQ(c[8].number, 42);
  EXPECT_EQ(c[10].op, Op::DblClick);
  EXPECT_FALSE(c[10].hasPoint);
}

TEST(ScriptParser, BadLinesNameTheirLine) {
  EXPECT_EQ(failure("wait 5\njump PicPaint").line, 2);
  EXPECT_TRUE(failure("jump PicPaint").message.contains("unknown command"));
  EXPECT_TRUE(failure("press PicPaint 10").message.contains("too few"));
  EXPECT_TRUE(failure("press PicPaint ten 10").message.contains("not a number"));
  EXPECT_TRUE(failure("press PicPaint 1 1 sideways").message.contains("not a button"));
  EXPECT_TRUE(failure("press PicPaint 1 1 none").message.contains("not a button"));  // only a move has none
  EXPECT_TRUE(failure("key Hyper").message.contains("not a key"));
  EXPECT_TRUE(failure("wait -5").message.contains("whole number"));
  EXPECT_TRUE(failure("set vVal1 4").message.contains("NAME.PROPERTY"));
  EXPECT_TRUE(failure("clipboard paste").message.contains("clipboard"));
  EXPECT_EQ(failure("expect vVal1.Value").line, 1);
  EXPECT_TRUE(failure("menu mPencil extra").message.contains("unexpected"));
}

TEST(ScriptValues, PrintAsTheProgramHoldsThem) {
  EXPECT_EQ(Value::of(-12).format(), "-12");
  EXPECT_EQ(Value::colour(0xFF).format(), "0x0000FF");
  EXPECT_EQ(Value::colour(0x80000005LL).format(), "0x80000005");
  EXPECT_EQ(Value::colour(-1).format(), "-1");
  EXPECT_EQ(Value::boolean(true).format(), "-1");
  EXPECT_EQ(Value::boolean(false).format(), "0");
  EXPECT_EQ(Value::single(1.5).format(), "1.5");
  EXPECT_EQ(Value::single(300).format(), "300");
  EXPECT_EQ(Value::string("a \"b\" \\ c\nd").format(), "\"a \\\"b\\\" \\\\ c\\nd\"");
}

TEST(ScriptValues, ExpectedTextMatchesByMeaning) {
  EXPECT_TRUE(Value::colour(0xFF).matches("0xFF"));
  EXPECT_TRUE(Value::colour(0xFF).matches("255"));
  EXPECT_FALSE(Value::colour(0xFF).matches("0xFF00"));
  EXPECT_TRUE(Value::boolean(true).matches("-1"));
  EXPECT_TRUE(Value::boolean(true).matches("True"));
  EXPECT_TRUE(Value::single(1.5).matches("1.50"));
  EXPECT_FALSE(Value::single(1.5).matches("1"));
  EXPECT_TRUE(Value::string("Draw Line").matches("\"Draw Line\""));
  EXPECT_TRUE(Value::string("Draw Line").matches("Draw Line"));
  EXPECT_FALSE(Value::string("Draw Line").matches("\"Draw\""));
  EXPECT_FALSE(Value::of(3).matches("three"));
}

}  // namespace qp::script
