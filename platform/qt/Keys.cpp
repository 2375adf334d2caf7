#include "platform/qt/Keys.h"

#include <QKeyEvent>

namespace qp {

int shiftStateFor(Qt::KeyboardModifiers mods) {
  int s = 0;
  if (mods & Qt::ShiftModifier) s |= 1;
  if (mods & Qt::ControlModifier) s |= 2;
  if (mods & Qt::AltModifier) s |= 4;
  return s;
}

int keyCodeFor(int k, Qt::KeyboardModifiers mods) {
  const bool keypad = mods & Qt::KeypadModifier;
  if (k >= Qt::Key_0 && k <= Qt::Key_9) return keypad ? 96 + (k - Qt::Key_0) : k;
  if (k >= Qt::Key_A && k <= Qt::Key_Z) return k;  // the same numbers, 65..90
  if (k >= Qt::Key_F1 && k <= Qt::Key_F24) return 112 + (k - Qt::Key_F1);
  switch (k) {
    // Shifted digits arrive as their symbols; the key is still the digit's.
    case Qt::Key_Exclam: return 49;
    case Qt::Key_At: return 50;
    case Qt::Key_NumberSign: return 51;
    case Qt::Key_Dollar: return 52;
    case Qt::Key_Percent: return 53;
    case Qt::Key_AsciiCircum: return 54;
    case Qt::Key_Ampersand: return 55;
    case Qt::Key_ParenLeft: return 57;
    case Qt::Key_ParenRight: return 48;
    case Qt::Key_Asterisk: return keypad ? 106 : 56;
    case Qt::Key_Plus: return keypad ? 107 : 187;
    case Qt::Key_Equal: return 187;
    case Qt::Key_Minus: return keypad ? 109 : 189;
    case Qt::Key_Underscore: return 189;
    case Qt::Key_Period: return keypad ? 110 : 190;
    case Qt::Key_Greater: return 190;
    case Qt::Key_Comma: case Qt::Key_Less: return 188;
    case Qt::Key_Slash: return keypad ? 111 : 191;
    case Qt::Key_Question: return 191;
    case Qt::Key_Semicolon: case Qt::Key_Colon: return 186;
    case Qt::Key_Apostrophe: case Qt::Key_QuoteDbl: return 222;
    case Qt::Key_BracketLeft: case Qt::Key_BraceLeft: return 219;
    case Qt::Key_BracketRight: case Qt::Key_BraceRight: return 221;
    case Qt::Key_Backslash: case Qt::Key_Bar: return 220;
    case Qt::Key_QuoteLeft: case Qt::Key_AsciiTilde: return 192;
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab: case Qt::Key_Backtab: return 9;
    case Qt::Key_Return: case Qt::Key_Enter: return 13;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Alt: return 18;
    case Qt::Key_Pause: return 19;
    case Qt::Key_CapsLock: return 20;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Space: return 32;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    case Qt::Key_Print: return 44;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    case Qt::Key_NumLock: return 144;
    case Qt::Key_ScrollLock: return 145;
    default: return 0;
  }
}

int keyAsciiFor(const QKeyEvent& e) {
  switch (e.key()) {
    case Qt::Key_Return: case Qt::Key_Enter: return 13;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab: return 9;
    default: break;
  }
  const QString text = e.text();
  if (text.isEmpty()) return 0;
  const char16_t c = text.at(0).unicode();
  return c < 256 ? c : 0;  // the runtime's characters are one byte
}

}  // namespace qp
