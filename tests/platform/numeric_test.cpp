// The runtime's 16-bit arithmetic and conversions, which the drawing code relies on to stop.
#include <gtest/gtest.h>

#include "platform/Numeric.h"

using namespace qp;

namespace {

int codeOf(auto f) {
  try {
    f();
  } catch (const RuntimeError& e) {
    return e.code();
  }
  return 0;
}

TEST(NumericTest, ConversionsRoundHalfToEven) {
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(3.5), 4);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CInt(2.6), 3);
  EXPECT_EQ(CLng(0.5), 0);
  EXPECT_EQ(CLng(1.5), 2);
  EXPECT_EQ(CByte(254.5), 254);
}

TEST(NumericTest, IntegerRangeIsCheckedOnEveryStore) {
  EXPECT_EQ(Integer(32767), 32767);
  EXPECT_EQ(Integer(-32768), -32768);
  EXPECT_EQ(codeOf([] { Integer x(32768); }), RuntimeError::Overflow);
  EXPECT_EQ(codeOf([] { Integer x(32767.5); }), RuntimeError::Overflow);
  EXPECT_EQ(codeOf([] { Integer x(std::nan("")); }), RuntimeError::Overflow);
  EXPECT_EQ(codeOf([] { Byte b(-1); }), RuntimeError::Overflow);
  EXPECT_EQ(codeOf([] { Byte b(256u); }), RuntimeError::Overflow);
  EXPECT_EQ(codeOf([] { Long l(3e9); }), RuntimeError::Overflow);
  Integer i = 32000;
  EXPECT_EQ(codeOf([&] { i += 1000; }), RuntimeError::Overflow);
  EXPECT_EQ(i, 32000) << "a failed store leaves the old value";
  i += 767;
  EXPECT_EQ(codeOf([&] { ++i; }), RuntimeError::Overflow);
  EXPECT_EQ(Integer(true), -1);
}

TEST(NumericTest, SixteenBitArithmetic) {
  EXPECT_EQ(add16(20000, 12767), 32767);
  EXPECT_EQ(codeOf([] { add16(20000, 12768); }), RuntimeError::Overflow);
  EXPECT_EQ(codeOf([] { mul16(200, 200); }), RuntimeError::Overflow);
  EXPECT_EQ(div16(7, 2), 3);
  EXPECT_EQ(div16(-7, 2), -3);
  EXPECT_EQ(codeOf([] { div16(1, 0); }), RuntimeError::DivisionByZero);
  EXPECT_EQ(codeOf([] { div16(std::numeric_limits<int>::min(), -1); }), RuntimeError::Overflow);
  EXPECT_EQ(codeOf([] { divide(1.0, 0.0); }), RuntimeError::DivisionByZero);
  EXPECT_EQ(Int(-2.5), -3);
  EXPECT_EQ(Fix(-2.5), -2);
}

TEST(NumericTest, ColoursKeepRedInTheLowByte) {
  const Colour c = RGB(1, 2, 3);
  EXPECT_EQ(c, 0x030201);
  EXPECT_EQ(redOf(c), 1);
  EXPECT_EQ(greenOf(c), 2);
  EXPECT_EQ(blueOf(c), 3);
  EXPECT_EQ(RGB(300, 0, 0), 0x0000FF) << "components above 255 are held at 255";
  EXPECT_EQ(codeOf([] { RGB(0, -1, 0); }), RuntimeError::InvalidCall);
  EXPECT_EQ(QBColor(0), 0x000000);
  EXPECT_EQ(QBColor(4), RGB(128, 0, 0));
  EXPECT_EQ(QBColor(9), RGB(0, 0, 255));
  EXPECT_EQ(QBColor(14), RGB(255, 255, 0));
  EXPECT_EQ(QBColor(15), 0xFFFFFF);
  EXPECT_EQ(codeOf([] { QBColor(16); }), RuntimeError::InvalidCall);
  EXPECT_EQ(codeOf([] { QBColor(-1); }), RuntimeError::InvalidCall);
}

}  // namespace
