#pragma once
// The keyboard, a full second input. The window sees every key first (key preview) for the global
// keys; the paint area's own handlers take the arrow keys, which change the draw width on the fly
// or steer AutoDraw.
#include <functional>

#include "core/Session.h"

namespace qp {

// Key codes the program tests.
enum KeyCode {
  vbKeyBack = 8, vbKeyReturn = 13, vbKeyShift = 16, vbKeyControl = 17, vbKeyCapital = 20,
  vbKeyEscape = 27, vbKeySpace = 32, vbKeyLeft = 37, vbKeyUp = 38, vbKeyRight = 39, vbKeyDown = 40,
  vbKeyInsert = 45, vbKeyDelete = 46, vbKey1 = 49, vbKey7 = 55, vbKey8 = 56, vbKeyC = 67,
  vbKeyK = 75, vbKeyZ = 90, vbKeyNumpad0 = 96, vbKeyNumpad6 = 102, vbKeyF2 = 113, vbKeyF7 = 118,
  vbKeyF8 = 119, vbKeyF9 = 120, vbKeyF11 = 122, vbKeyF12 = 123,
};

// quit ends the program (Esc).
void Form_KeyDown(Session& s, int& KeyCode, int Shift, const std::function<void()>& quit);
void Form_KeyUp(Session& s, int& KeyCode, int Shift);
void PicPaint_KeyDown(Session& s, int& KeyCode, int Shift);
void PicPaint_KeyUp(Session& s, int& KeyCode, int Shift);

// The on-the-fly width: one step at each tick of tPenUp or tPenDwn.
void WidthUp(Session& s);
void WidthDown(Session& s);
// F8 and F7: the width timers tick faster or slower.
void IntervalUp(Session& s);
void IntervalDown(Session& s);
// F12 and F11: the Colour Mode.
void ColorModeUp(Session& s);
void ColorModeDown(Session& s);

void wireKeyboard(Session& s, const std::function<void()>& quit);

}  // namespace qp
