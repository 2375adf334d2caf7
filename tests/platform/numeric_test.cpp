// The runtime's 16-bit arithmetic and conversions, which the drawing code relies on to stop.
#include <gtest/gtest.h>

#include "platform/Numeric.h"
#include "support/ErrorCode.h"

using namespace qp;
using qp::test::errorCode;

namespace {

TEST(NumericTest, ConversionsRoundHalfToEvenAndIntFixTruncate) {
  const std::pair<long, long> cases[] = {{CInt(2.5), 2},  {CInt(3.5), 4},     {CInt(-2.5), -2}, {CInt(2.6), 3},
                                         {CLng(0.5), 0},  {CLng(1.5), 2},     {CByte(254.5), 254},
                                         {Int(-2.5), -3}, {Fix(-2.5), -2},    {div16(7, 2), 3}, {div16(-7, 2), -3},
                                         {add16(20000, 12767), 32767},        {Integer(true), -1}};
  for (size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(cases[i].first, cases[i].second) << "case " << i;
}

TEST(NumericTest, RangesAreCheckedOnEveryStore) {
  using E = RuntimeError;
  const std::pair<std::function<void()>, int> cases[] = {
      {[] { Integer x(32767); Integer y(-32768); }, 0}, {[] { Integer x(32768); }, E::Overflow},
      {[] { Integer x(-32769); }, E::Overflow},         {[] { Integer x(32767.5); }, E::Overflow},
      {[] { Integer x(std::nan("")); }, E::Overflow},   {[] { Byte b(-1); }, E::Overflow},
      {[] { Byte b(256u); }, E::Overflow},              {[] { Byte b(255); }, 0},
      {[] { Long l(3e9); }, E::Overflow},               {[] { add16(20000, 12768); }, E::Overflow},
      {[] { mul16(200, 200); }, E::Overflow},           {[] { mul16(181, 181); }, 0},
      {[] { div16(1, 0); }, E::DivisionByZero},         {[] { divide(1.0, 0.0); }, E::DivisionByZero},
      {[] { div16(std::numeric_limits<int>::min(), -1); }, E::Overflow}};
  for (size_t i = 0; i < std::size(cases); ++i) EXPECT_EQ(errorCode(cases[i].first), cases[i].second) << "case " << i;
  Integer i = 32000;
  EXPECT_EQ(errorCode([&] { i += 1000; }), E::Overflow);
  EXPECT_EQ(i, 32000) << "a failed store leaves the old value";
  i += 767;
  EXPECT_EQ(errorCode([&] { ++i; }), E::Overflow);
}

TEST(NumericTest, ColoursKeepRedInTheLowByte) {
  const Colour c = RGB(1, 2, 3);
  EXPECT_EQ(c, 0x030201);
  EXPECT_EQ(redOf(c) * 100 + greenOf(c) * 10 + blueOf(c), 123);
  EXPECT_EQ(RGB(300, 0, 0), 0x0000FF) << "components above 255 are held at 255";
  EXPECT_EQ(errorCode([] { RGB(0, -1, 0); }), RuntimeError::InvalidCall);
  for (const auto& [n, colour] : {std::pair{0, 0x000000}, std::pair{4, 0x000080}, std::pair{15, 0xFFFFFF}})
    EXPECT_EQ(QBColor(n), colour) << n;
  for (int n : {-1, 16}) EXPECT_EQ(errorCode([n] { QBColor(n); }), RuntimeError::InvalidCall) << n;
}

}  // namespace
