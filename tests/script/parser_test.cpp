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
  EXPECT_EQ(c[0].button, 1);  // left unless said
  EXPECT_EQ(c[1].button, 0);
  EXPECT_DOUBLE_EQ(c[1].x, 3.5);
  EXPECT_EQ(c[2].button, 2);
  EXPECT_EQ(c[2].shift, 3);
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
  EXPECT_EQ(c[3].text, "say \"hi\" \\ there");
}

TEST(ScriptParser, KeysByNameOrCode) {
  struct Case { const char* line; int key; KeyAction action; };
  for (const Case& k : {Case{"key Up", 38, KeyAction::DownAndUp}, {"key 38 down", 38, KeyAction::Down},
                        {"key F12 up", 123, KeyAction::Up}, {"key 7", 55, KeyAction::DownAndUp}}) {  // 7: the digit key
    const auto c = parse(k.line);
    ASSERT_EQ(c.size(), 1u);
    EXPECT_EQ(c[0].key, k.key) << k.line;
    EXPECT_EQ(c[0].keyAction, k.action) << k.line;
  }
  EXPECT_EQ(keyCodeForName(keyNameForCode(100)), 100);
  EXPECT_EQ(keyAsciiForCode(65, 0), 'a');
  EXPECT_EQ(keyAsciiForCode(65, 1), 'A');
  EXPECT_EQ(keyAsciiForCode(38, 0), 0);
}

// The other line kinds are read in the runner's tests; here, names that hold spaces.
TEST(ScriptParser, FileNamesMayHoldSpaces) {
  const auto c = parse("clipboard load pics/a b.bmp\ndrop PicPaint \"my pic.bmp\"\ndblclick lHelp");
  ASSERT_EQ(c.size(), 3u);
  EXPECT_EQ(c[0].text, "pics/a b.bmp");
  EXPECT_EQ(c[1].text, "my pic.bmp");
  EXPECT_FALSE(c[2].hasPoint);
}

TEST(ScriptParser, BadLinesNameTheirLine) {
  EXPECT_EQ(failure("wait 5\njump PicPaint").line, 2);
  EXPECT_EQ(failure("expect vVal1.Value").line, 1);
  const std::pair<const char*, const char*> cases[] = {
      {"jump PicPaint", "unknown command"}, {"press PicPaint 10", "too few"},
      {"press PicPaint ten 10", "not a number"}, {"press PicPaint 1 1 sideways", "not a button"},
      {"press PicPaint 1 1 none", "not a button"},  // only a move has none
      {"key Hyper", "not a key"}, {"wait -5", "whole number"}, {"set vVal1 4", "NAME.PROPERTY"},
      {"clipboard paste", "clipboard"}, {"menu mPencil extra", "unexpected"}};
  for (const auto& [line, message] : cases) EXPECT_TRUE(failure(line).message.contains(message)) << line;
}

TEST(ScriptValues, PrintAndMatchAsTheProgramHoldsThem) {
  const std::pair<Value, const char*> printed[] = {
      {Value::colour(0xFF), "0x0000FF"}, {Value::colour(-1), "-1"}, {Value::boolean(true), "-1"},
      {Value::single(1.5), "1.5"}, {Value::string("a \"b\" \\ c\nd"), "\"a \\\"b\\\" \\\\ c\\nd\""}};
  for (const auto& [value, text] : printed) EXPECT_EQ(value.format(), text);
  struct Match { Value value; const char* text; bool matches; };
  const Match matches[] = {
      {Value::colour(0xFF), "255", true}, {Value::colour(0xFF), "0xFF00", false}, {Value::boolean(true), "True", true},
      {Value::single(1.5), "1.50", true}, {Value::single(1.5), "1", false}, {Value::string("Draw Line"), "Draw Line", true},
      {Value::string("Draw Line"), "\"Draw\"", false}};
  for (const Match& m : matches) EXPECT_EQ(m.value.matches(m.text), m.matches) << m.text;
}

}  // namespace qp::script
