#pragma once
// A value read from the program, printed as the program holds it: whole numbers in decimal,
// colours in hex as 0xBBGGRR, booleans as -1/0, text in quotes, Singles with their fraction.
#include <QString>
#include <optional>

#include "platform/Numeric.h"

namespace qp {
class Control;
class Form;
struct ModQuillora;
struct CanvasVars;
}  // namespace qp

namespace qp::script {

struct Value {
  enum Kind { Whole, Fraction, Boolean, Text, Colour };
  Kind kind = Whole;
  long long whole = 0;
  double fraction = 0;
  QString text;

  static Value of(long long v) { return {Whole, v, 0, {}}; }
  static Value single(double v) { return {Fraction, 0, v, {}}; }
  static Value boolean(bool v) { return {Boolean, v ? -1 : 0, 0, {}}; }
  static Value string(const QString& s) { return {Text, 0, 0, s}; }
  static Value colour(long long c) { return {Colour, c, 0, {}}; }

  QString format() const;
  // Whether the script's expected text means this value: numbers compare as numbers (so 0xFF
  // and 0x0000FF agree), text compares quoted or bare.
  bool matches(const QString& expected) const;
};

// A property of a control by its name, or nothing when the control has no such property.
std::optional<Value> readProperty(const Control& c, const QString& property);
// A session variable by its name, from the session's shared variables or the main window's.
std::optional<Value> readSessionVariable(const ModQuillora& m, const CanvasVars& v, const QString& name);
// The names of all session variables, for messages and for the exploring test.
QStringList sessionVariableNames();

}  // namespace qp::script
