// The key names of the script language and the runtime's key codes they stand for.
#include <QHash>

#include "script/Command.h"

namespace qp::script {

namespace {

const QHash<QString, int>& namedKeys() {
  static const QHash<QString, int> keys = [] {
    QHash<QString, int> k{
        {"backspace", 8}, {"tab", 9}, {"enter", 13}, {"shift", 16}, {"ctrl", 17}, {"alt", 18},
        {"capslock", 20}, {"esc", 27}, {"space", 32}, {"pageup", 33}, {"pagedown", 34},
        {"end", 35}, {"home", 36}, {"left", 37}, {"up", 38}, {"right", 39}, {"down", 40},
        {"insert", 45}, {"delete", 46}, {"numplus", 107}, {"numminus", 109},
    };
    for (int i = 0; i < 10; ++i) {
      k.insert(QString::number(i), 48 + i);
      k.insert(QString("num%1").arg(i), 96 + i);
    }
    for (int i = 0; i < 26; ++i) k.insert(QString(QChar('a' + i)), 65 + i);
    for (int i = 1; i <= 12; ++i) k.insert(QString("f%1").arg(i), 111 + i);
    return k;
  }();
  return keys;
}

}  // namespace

int keyCodeForName(const QString& name) {
  const auto it = namedKeys().find(name.toLower());
  if (it != namedKeys().end()) return it.value();
  // A bare digit is the digit key (above); other numbers are key codes as the runtime has them.
  bool ok = false;
  const int code = name.toInt(&ok);
  return ok && code > 0 && code < 256 ? code : 0;
}

QString keyNameForCode(int code) {
  static const QHash<int, QString> names = [] {
    QHash<int, QString> n{
        {8, "Backspace"}, {9, "Tab"}, {13, "Enter"}, {16, "Shift"}, {17, "Ctrl"}, {18, "Alt"},
        {20, "CapsLock"}, {27, "Esc"}, {32, "Space"}, {33, "PageUp"}, {34, "PageDown"}, {35, "End"},
        {36, "Home"}, {37, "Left"}, {38, "Up"}, {39, "Right"}, {40, "Down"}, {45, "Insert"},
        {46, "Delete"}, {107, "NumPlus"}, {109, "NumMinus"},
    };
    for (int i = 0; i < 10; ++i) n.insert(96 + i, QString("Num%1").arg(i));
    for (int i = 0; i < 26; ++i) n.insert(65 + i, QString(QChar('A' + i)));
    for (int i = 1; i <= 12; ++i) n.insert(111 + i, QString("F%1").arg(i));
    return n;
  }();
  // Digits stay codes: a recorded "49" reads back as the key 1, a bare "1" would too, but a
  // code keeps the line unambiguous to a reader.
  return names.value(code, QString::number(code));
}

int keyAsciiForCode(int code, int shift) {
  const bool shifted = shift & 1;
  if (shift & 2) return 0;  // Ctrl with a letter types no character the program reads
  if (code >= 65 && code <= 90) return shifted ? code : code + 32;
  if (code >= 48 && code <= 57) return shifted ? 0 : code;
  if (code >= 96 && code <= 105) return '0' + (code - 96);
  switch (code) {
    case 8: return 8;
    case 13: return 13;
    case 27: return 27;
    case 32: return 32;
    case 107: return '+';
    case 109: return '-';
    default: return 0;
  }
}

}  // namespace qp::script
