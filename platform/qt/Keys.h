#pragma once
// Qt's keys in the runtime's key codes (65 for A, 112 for F1, 37 for the left arrow ...).
#include <Qt>

class QKeyEvent;

namespace qp {

int keyCodeFor(int qtKey, Qt::KeyboardModifiers mods);
// The shift state of the events: 1 Shift, 2 Ctrl, 4 Alt.
int shiftStateFor(Qt::KeyboardModifiers mods);
// The character of a key press, or 0 when the key types none.
int keyAsciiFor(const QKeyEvent& e);

}  // namespace qp
