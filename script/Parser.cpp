// Reading a script: lines into commands, with a message naming the line when one is not right.
#include <QStringList>

#include "script/Limits.h"
#include "script/Command.h"

namespace qp::script {

namespace {

struct Token {
  QString text;
  int start;  // where it starts in the line, so that "the rest of the line" keeps its spacing
};

// Cuts off a comment: a '#' at the start of a word, outside quotes.
QString withoutComment(const QString& line) {
  bool inQuotes = false;
  for (int i = 0; i < line.size(); ++i) {
    const QChar c = line[i];
    if (c == '\\' && inQuotes) { ++i; continue; }
    if (c == '"') inQuotes = !inQuotes;
    else if (c == '#' && !inQuotes && (i == 0 || line[i - 1].isSpace())) return line.left(i);
  }
  return line;
}

std::vector<Token> tokens(const QString& line) {
  std::vector<Token> out;
  int i = 0;
  while (i < line.size()) {
    while (i < line.size() && line[i].isSpace()) ++i;
    if (i >= line.size()) break;
    const int start = i;
    bool inQuotes = false;
    while (i < line.size() && (inQuotes || !line[i].isSpace())) {
      if (line[i] == '\\' && inQuotes) ++i;
      else if (line[i] == '"') inQuotes = !inQuotes;
      ++i;
    }
    out.push_back({line.mid(start, i - start), start});
  }
  return out;
}

class LineParser {
 public:
  LineParser(const QString& line, int number) : line_(withoutComment(line)), number_(number), t_(tokens(line_)) {}

  bool parse(std::vector<Command>& out, ParseError& err) {
    if (t_.empty()) return true;
    c_.line = number_;
    const QString word = t_[0].text;
    if (!parseCommand(word)) {
      err = {number_, error_.isEmpty() ? QString("unknown command '%1'").arg(word) : error_};
      return false;
    }
    out.push_back(c_);
    return true;
  }

 private:
  bool fail(const QString& message) {
    error_ = message;
    return false;
  }
  bool need(std::size_t count, const char* usage) {
    if (t_.size() < count) return fail(QString("too few words; write: %1").arg(usage));
    return true;
  }
  bool noMore(std::size_t used, const char* usage) {
    if (t_.size() > used) return fail(QString("unexpected '%1'; write: %2").arg(t_[used].text, usage));
    return true;
  }
  QString rest(std::size_t from) const {
    return from < t_.size() ? line_.mid(t_[from].start).trimmed() : QString();
  }
  bool number(std::size_t i, double& v) {
    bool ok = false;
    v = t_[i].text.toDouble(&ok);
    if (!ok) return fail(QString("'%1' is not a number").arg(t_[i].text));
    return true;
  }
  bool whole(std::size_t i, long long& v, long long min) {
    bool ok = false;
    v = t_[i].text.toLongLong(&ok, 0);
    if (!ok || v < min) return fail(QString("'%1' is not a whole number of %2 or more").arg(t_[i].text).arg(min));
    return true;
  }
  // Button and modifier words after the fixed ones; `none` only where a move allows it.
  bool buttonAndMods(std::size_t from, bool allowNone) {
    bool sawButton = false;
    for (std::size_t i = from; i < t_.size(); ++i) {
      const QString w = t_[i].text.toLower();
      if (!sawButton && (w == "left" || w == "right" || w == "middle" || (allowNone && w == "none"))) {
        c_.button = w == "left" ? 1 : w == "right" ? 2 : w == "middle" ? 4 : 0;
        sawButton = true;
      } else if (w == "shift") c_.shift |= 1;
      else if (w == "ctrl") c_.shift |= 2;
      else if (w == "alt") c_.shift |= 4;
      else return fail(QString("'%1' is not a button or modifier (left, right, %2ctrl, shift)")
                           .arg(t_[i].text, allowNone ? "none, " : ""));
    }
    return true;
  }
  bool point(std::size_t i) {
    if (!number(i, c_.x) || !number(i + 1, c_.y)) return false;
    c_.hasPoint = true;
    return true;
  }
  // WHAT of print and expect: NAME.PROPERTY, a session variable, `msgbox`, or `pixel NAME X Y`.
  // Returns the index of the first word after it.
  bool what(std::size_t& next) {
    if (t_[1].text == "pixel") {
      if (!need(5, "pixel NAME X Y")) return false;
      c_.pixel = true;
      c_.name = t_[2].text;
      if (!point(3)) return false;
      next = 5;
      return true;
    }
    c_.name = t_[1].text;
    next = 2;
    return true;
  }

  bool parseCommand(const QString& w) {
    if (w == "seed") {
      c_.op = Op::Seed;
      return need(2, "seed N") && whole(1, c_.number, 0) && noMore(2, "seed N");
    }
    if (w == "menu") {
      c_.op = Op::Menu;
      if (!need(2, "menu NAME")) return false;
      c_.name = t_[1].text;
      return noMore(2, "menu NAME");
    }
    if (w == "click" || w == "dblclick") {
      c_.op = w == "click" ? Op::Click : Op::DblClick;
      if (!need(2, "click NAME [left|right] [ctrl] [shift]")) return false;
      c_.name = t_[1].text;
      // A recorded double click carries the point of its second press.
      std::size_t from = 2;
      if (c_.op == Op::DblClick && t_.size() >= 4 && !t_[2].text.at(0).isLetter()) {
        if (!point(2)) return false;
        from = 4;
      }
      return buttonAndMods(from, false);
    }
    if (w == "press" || w == "move" || w == "release") {
      c_.op = w == "press" ? Op::Press : w == "move" ? Op::Move : Op::Release;
      if (!need(4, "press|move|release NAME X Y [button] [mods]")) return false;
      c_.name = t_[1].text;
      return point(2) && buttonAndMods(4, c_.op == Op::Move);
    }
    if (w == "key") {
      c_.op = Op::Key;
      if (!need(2, "key KEY [down|up]")) return false;
      c_.key = keyCodeForName(t_[1].text);
      if (c_.key == 0) return fail(QString("'%1' is not a key").arg(t_[1].text));
      std::size_t from = 2;
      if (t_.size() > 2 && (t_[2].text == "down" || t_[2].text == "up")) {
        c_.keyAction = t_[2].text == "down" ? KeyAction::Down : KeyAction::Up;
        from = 3;
      }
      c_.button = 0;
      return buttonAndMods(from, false);
    }
    if (w == "focus") {
      c_.op = Op::Focus;
      if (!need(2, "focus NAME")) return false;
      c_.name = t_[1].text;
      return noMore(2, "focus NAME");
    }
    if (w == "type") {
      c_.op = Op::Type;
      if (!need(3, "type NAME TEXT")) return false;
      c_.name = t_[1].text;
      c_.text = rest(2);
      return true;
    }
    if (w == "set") {
      c_.op = Op::Set;
      if (!need(3, "set NAME.PROPERTY VALUE")) return false;
      const int dot = t_[1].text.lastIndexOf('.');
      if (dot <= 0 || dot == t_[1].text.size() - 1) return fail("write set NAME.PROPERTY VALUE");
      c_.name = t_[1].text.left(dot);
      c_.property = t_[1].text.mid(dot + 1);
      c_.text = unquoted(rest(2));
      return true;
    }
    if (w == "wait") {
      c_.op = Op::Wait;
      if (!(need(2, "wait MS") && whole(1, c_.number, 0) && noMore(2, "wait MS"))) return false;
      if (c_.number > kMaxWaitMs) return fail(QString("a wait is at most %1 ms (a day)").arg(kMaxWaitMs));
      return true;
    }
    if (w == "drop") {
      c_.op = Op::Drop;
      if (!need(3, "drop NAME FILE")) return false;
      c_.name = t_[1].text;
      c_.text = unquoted(rest(2));
      return true;
    }
    if (w == "clipboard") {
      if (!need(2, "clipboard load FILE | save FILE | clear")) return false;
      const QString sub = t_[1].text;
      if (sub == "clear") {
        c_.op = Op::ClipboardClear;
        return noMore(2, "clipboard clear");
      }
      if (sub != "load" && sub != "save") return fail("write clipboard load FILE, clipboard save FILE or clipboard clear");
      c_.op = sub == "load" ? Op::ClipboardLoad : Op::ClipboardSave;
      if (!need(3, "clipboard load|save FILE")) return false;
      c_.text = unquoted(rest(2));
      return true;
    }
    if (w == "save") {
      c_.op = Op::Save;
      if (!need(3, "save NAME FILE")) return false;
      c_.name = t_[1].text;
      c_.text = unquoted(rest(2));
      return true;
    }
    if (w == "print" || w == "expect") {
      c_.op = w == "print" ? Op::Print : Op::Expect;
      if (!need(2, w == "print" ? "print WHAT" : "expect WHAT VALUE")) return false;
      std::size_t next = 0;
      if (!what(next)) return false;
      if (c_.op == Op::Print) return noMore(next, "print WHAT");
      if (t_.size() <= next) return fail("write expect WHAT VALUE");
      c_.text = rest(next);
      return true;
    }
    if (w == "screenshot") {
      c_.op = Op::Screenshot;
      if (!need(2, "screenshot FILE")) return false;
      c_.text = unquoted(rest(1));
      return true;
    }
    return false;
  }

  QString line_;
  int number_;
  std::vector<Token> t_;
  Command c_;
  QString error_;
};

}  // namespace

bool parseLine(const QString& line, int number, std::vector<Command>& out, ParseError& err) {
  return LineParser(line, number).parse(out, err);
}

bool parseScript(const QString& text, std::vector<Command>& out, ParseError& err) {
  const QStringList lines = text.split('\n');
  out.reserve(out.size() + static_cast<std::size_t>(lines.size()));
  for (int i = 0; i < lines.size(); ++i) {
    QString l = lines[i];
    if (l.endsWith('\r')) l.chop(1);
    if (l.size() > kMaxLineChars) {
      err = {i + 1, QString("the line is longer than %1 characters").arg(kMaxLineChars)};
      return false;
    }
    if (!parseLine(l, i + 1, out, err)) return false;
  }
  return true;
}

std::uint32_t takeLeadingSeed(std::vector<Command>& commands) {
  std::uint32_t seed = 1;
  std::size_t i = 0;
  while (i < commands.size() && commands[i].op == Op::Seed) seed = static_cast<std::uint32_t>(commands[i++].number);
  commands.erase(commands.begin(), commands.begin() + static_cast<std::ptrdiff_t>(i));
  return seed;
}

QString quoted(const QString& s) {
  QString r;
  r.reserve(s.size() + 2);
  r += '"';
  for (QChar c : s) {
    if (c == '"' || c == '\\') { r += '\\'; r += c; }
    else if (c == '\n') r += "\\n";
    else if (c != '\r') r += c;
  }
  r += '"';
  return r;
}

QString unquoted(const QString& s) {
  if (s.size() < 2 || !s.startsWith('"') || !s.endsWith('"')) return s;
  QString r;
  for (int i = 1; i + 1 < s.size(); ++i) {
    if (s[i] == '\\' && i + 2 < s.size()) {
      ++i;
      r += s[i] == 'n' ? QChar('\n') : s[i];
    } else {
      r += s[i];
    }
  }
  return r;
}

}  // namespace qp::script
