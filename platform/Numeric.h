#pragma once
// The runtime's number types. Integer is 16-bit, Long 32-bit, Byte 8-bit unsigned; every store into
// one is range-checked and an out-of-range value raises Overflow instead of wrapping, so that a sum
// of twips past 32767 ends the statement as the program expects. Conversions from floating values
// round half to even.
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "platform/Errors.h"

namespace qp {

using Single = float;
using Colour = std::int32_t;  // red in the low byte, then green, then blue

// Round half to even, the runtime's rule for every conversion to a whole number.
inline double roundHalfEven(double v) {
  double r = std::nearbyint(v);  // default rounding mode is to nearest, ties to even
  return r;
}

template <class Rep>
class Checked {
 public:
  using rep = Rep;
  static constexpr long long kMin = std::numeric_limits<Rep>::min();
  static constexpr long long kMax = std::numeric_limits<Rep>::max();

  constexpr Checked() = default;
  template <class T, class = std::enable_if_t<std::is_arithmetic_v<T>>>
  Checked(T v) : v_(convert(v)) {}  // NOLINT: implicit on purpose, like the runtime's assignments

  constexpr operator Rep() const { return v_; }  // NOLINT
  constexpr Rep value() const { return v_; }

  template <class T>
  Checked& operator+=(T d) { return *this = Checked(static_cast<long long>(v_) + wide(d)); }
  template <class T>
  Checked& operator-=(T d) { return *this = Checked(static_cast<long long>(v_) - wide(d)); }
  Checked& operator++() { return *this += 1; }
  Checked& operator--() { return *this -= 1; }

  template <class T>
  static Rep convert(T v) {
    if constexpr (std::is_floating_point_v<T>) {
      if (!std::isfinite(v)) raiseError(RuntimeError::Overflow, "Overflow");
      const double r = roundHalfEven(static_cast<double>(v));
      if (r < static_cast<double>(kMin) || r > static_cast<double>(kMax))
        raiseError(RuntimeError::Overflow, "Overflow");
      return static_cast<Rep>(r);
    } else if constexpr (std::is_same_v<T, bool>) {
      return v ? static_cast<Rep>(-1 < kMin ? 1 : -1) : 0;
    } else {
      if constexpr (std::is_unsigned_v<T>) {
        if (v > static_cast<unsigned long long>(kMax)) raiseError(RuntimeError::Overflow, "Overflow");
      } else {
        if (static_cast<long long>(v) < kMin || static_cast<long long>(v) > kMax)
          raiseError(RuntimeError::Overflow, "Overflow");
      }
      return static_cast<Rep>(v);
    }
  }

 private:
  template <class T>
  static auto wide(T d) {
    if constexpr (std::is_floating_point_v<T>) return static_cast<double>(d);
    else return static_cast<long long>(d);
  }
  Rep v_ = 0;
};

using Integer = Checked<std::int16_t>;
using Long = Checked<std::int32_t>;
using Byte = Checked<std::uint8_t>;

// CInt, CLng, CByte: the runtime's conversions, rounding half to even and raising Overflow.
template <class T> Integer CInt(T v) { return Integer(v); }
template <class T> Long CLng(T v) { return Long(v); }
template <class T> Byte CByte(T v) { return Byte(v); }

// 16-bit arithmetic that raises Overflow as the runtime does when both sides are Integers.
inline Integer add16(int a, int b) { return Integer(a + b); }
inline Integer sub16(int a, int b) { return Integer(a - b); }
inline Integer mul16(int a, int b) { return Integer(static_cast<long long>(a) * b); }
inline Integer div16(int a, int b) {  // the runtime's integer division (the backslash operator)
  if (b == 0) raiseError(RuntimeError::DivisionByZero, "Division by zero");
  return Integer(static_cast<long long>(a) / b);  // wide, so that the lowest int over -1 is no UB
}
inline double divide(double a, double b) {
  if (b == 0) raiseError(RuntimeError::DivisionByZero, "Division by zero");
  return a / b;
}

// Int and Fix of the runtime: Int goes down, Fix goes toward zero.
inline double Int(double v) { return std::floor(v); }
inline double Fix(double v) { return std::trunc(v); }

inline Colour RGB(int r, int g, int b) {
  if (r < 0 || g < 0 || b < 0) raiseError(RuntimeError::InvalidCall, "Invalid procedure call");
  r = r > 255 ? 255 : r;
  g = g > 255 ? 255 : g;
  b = b > 255 ? 255 : b;
  return static_cast<Colour>(r | (g << 8) | (b << 16));
}
inline int redOf(Colour c) { return c & 0xFF; }
inline int greenOf(Colour c) { return (c >> 8) & 0xFF; }
inline int blueOf(Colour c) { return (c >> 16) & 0xFF; }

// The sixteen colours of QBColor, in the runtime's order.
Colour QBColor(int n);

}  // namespace qp
