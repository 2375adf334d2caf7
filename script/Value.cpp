// Printing and comparing values the way a script writes them.
#include "script/Value.h"

#include "script/Command.h"

namespace qp::script {

namespace {

// A number as a script writes it: decimal, or 0x hex.
std::optional<double> numberIn(const QString& s) {
  bool ok = false;
  const QString t = s.trimmed();
  if (t.startsWith("0x", Qt::CaseInsensitive)) {
    const long long v = t.mid(2).toLongLong(&ok, 16);
    if (ok) return static_cast<double>(v);
    return std::nullopt;
  }
  if (t.startsWith("-0x", Qt::CaseInsensitive)) {
    const long long v = t.mid(3).toLongLong(&ok, 16);
    if (ok) return -static_cast<double>(v);
    return std::nullopt;
  }
  const double v = t.toDouble(&ok);
  if (ok) return v;
  if (t.compare("true", Qt::CaseInsensitive) == 0) return -1.0;
  if (t.compare("false", Qt::CaseInsensitive) == 0) return 0.0;
  return std::nullopt;
}

}  // namespace

QString Value::format() const {
  switch (kind) {
    case Whole: case Boolean: return QString::number(whole);
    case Fraction: return QString::number(static_cast<float>(fraction), 'g', 7);
    case Text: return quoted(text);
    case Colour:
      // -1 means "no pixel there"; everything else is shown with its blue, green and red bytes.
      if (whole < 0) return QString::number(whole);
      return "0x" + QString::number(whole, 16).toUpper().rightJustified(6, '0');
  }
  return {};
}

bool Value::matches(const QString& expected) const {
  const QString e = expected.trimmed();
  if (kind == Text) return unquoted(e) == text;
  const auto n = numberIn(e);
  if (!n) return false;
  if (kind == Fraction) return static_cast<float>(*n) == static_cast<float>(fraction);
  return *n == static_cast<double>(whole);
}

}  // namespace qp::script
