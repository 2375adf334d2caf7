#pragma once
// One line of a Quillora script, parsed. A script is plain text, one command a line, naming the
// controls as the program names them; see docs in README.md for the whole language.
#include <QString>
#include <cstdint>
#include <vector>

namespace qp::script {

enum class Op {
  Seed, Menu, Click, DblClick, Press, Move, Release, Key, Focus, Type, Set, Wait, Drop,
  ClipboardLoad, ClipboardSave, ClipboardClear, Save, Print, Expect, Screenshot,
};

enum class KeyAction { DownAndUp, Down, Up };

struct Command {
  Op op = Op::Wait;
  int line = 0;      // 1-based line of the script, for messages
  QString name;      // the control (or, for print and expect, what is read)
  QString property;  // set: the property written
  QString text;      // file name, typed text, value written or expected
  double x = 0, y = 0;
  bool hasPoint = false;  // press/move/release, and a recorded double click, carry a point
  int button = 1;         // the runtime's button bits: 1 left, 2 right, 4 middle; 0 none
  int shift = 0;          // 1 Shift, 2 Ctrl, 4 Alt
  int key = 0;
  KeyAction keyAction = KeyAction::DownAndUp;
  long long number = 0;   // seed, wait
  // print/expect of `pixel NAME X Y`
  bool pixel = false;
};

struct ParseError {
  int line = 0;
  QString message;
};

// Parses a whole script. Returns false, with the first bad line in err, when a line is not a
// command; the script then does not run at all.
bool parseScript(const QString& text, std::vector<Command>& out, ParseError& err);
// Parses one line (no trailing newline). A blank or comment line gives ok with no command.
bool parseLine(const QString& line, int number, std::vector<Command>& out, ParseError& err);

// Takes the seed lines before the first other line out of the script and returns the seed they
// give (1 when none): they seed the session before it starts, so even its start-up draws the same
// numbers.
std::uint32_t takeLeadingSeed(std::vector<Command>& commands);

// Text as the language writes it: in double quotes with \" \\ and \n escaped.
QString quoted(const QString& s);
// The inverse of quoted; a value without quotes stands as it is.
QString unquoted(const QString& s);

// Key names of the language (Up, Enter, F5, A, Num3, ...) and the runtime's key codes.
int keyCodeForName(const QString& name);  // 0 when unknown
QString keyNameForCode(int code);         // the code in decimal when it has no name
// The character a key types, as the window gives it with KeyPress; 0 for none.
int keyAsciiForCode(int code, int shift);

}  // namespace qp::script
