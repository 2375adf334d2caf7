// Crazy Linez: at every move one of fifty equations turns the pointer and the last point into one
// or two lines. Many run far outside the canvas; the surface cuts them. Rows that look alike
// differ in their points or in what becomes of the last point, and every one is kept.
#include <array>

#include "color/ColourEngine.h"
#include "tools/Lines.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

struct Seg {
  Single x1, y1, x2, y2;
};
// What the last point becomes after the lines: the pointer, the press point kept (a fan), or the
// pointer with its coordinates exchanged.
enum class Last { Advance, Stay, Swap };

struct Equation {
  std::array<Seg, 2> lines;
  int count;
  Last last;
};

// A = Advance, S = Stay. X, Y are the raw event values, L and M the last point, W and H the size
// of the canvas.
Equation equation(int n, Single X, Single Y, Single L, Single M, Single W, Single H) {
  constexpr Last A = Last::Advance, S = Last::Stay;
  auto one = [](Seg seg, Last last) { return Equation{{seg, {}}, 1, last}; };
  switch (n) {
    case 1: return one({L, M, X + 15, Y + 15}, S);
    case 2: return one({X, Y, W - X, H - Y}, S);
    case 3: return one({L, M, X, M}, A);
    case 4: return one({L, M, L, Y}, A);
    case 5: return one({X, M, L, Y}, A);
    case 6: return one({L, M, X + X, Y + Y}, A);
    case 7: return one({L, L + M, L, Y}, A);
    case 8: return one({L + M, Y, X, M}, A);
    case 9: return one({L, M, X + X, Y / 2}, S);
    case 10: return one({L, M, L + L, M / 2}, A);
    case 11: return one({L - Y, M + X, X, Y}, A);
    case 12: return one({L, M, M + X, Y - X}, A);
    case 13: return one({L, M, X * 4, Y * 4}, S);
    case 14: return one({L, M, X + Y, Y}, A);
    case 15: return one({X, M, L, Y}, S);
    case 16: return one({L, M, X + X, Y * 4}, S);
    case 17: return one({L, M, (X + X) + X, (X + Y) + X}, S);
    case 18: return one({L, M, X + X, Y / 3}, S);
    case 19: return one({L, M, L + L, Y + Y}, S);
    case 20: return one({L, M, X + X, M + M}, S);
    case 21: return one({L, M, L * 4, M * 4}, A);
    case 22: return one({L, Y, X, Y}, S);
    case 23: return one({L, Y, X, M}, S);
    case 24: return one({L, M, X, Y}, S);
    case 25: return one({L, M, X + Y, X + Y}, S);
    case 26: return one({L + X, M - Y, X, Y}, S);
    case 27: return one({L + Y, M + X, X - Y, Y - X}, S);
    case 28: return one({L + M, M - L, L, Y}, A);
    case 29: return one({L, M, X - Y, Y - X}, A);
    case 30: return one({L, M, L - Y, X + Y}, S);
    case 31: return one({L, M, M + X, Y - X}, S);
    case 32: return one({L, M, X + Y, X + Y}, A);
    case 33: return one({L, M, X + Y, X + Y}, S);
    case 34: return one({L - Y, M + X, X, M}, S);
    case 35: return one({L - Y, M + X, X, Y}, S);
    case 36: return one({L + X, M - Y, L, Y}, S);
    case 37: return one({L + Y, M - X, L - Y, X + Y}, S);
    case 38: return one({L, M, X - M, Y}, S);
    case 39: return one({L, M, L + X, M + Y}, S);
    case 40: return one({L, M, 0, Y + Y}, S);
    case 41: return one({L, M, X + X, 0}, S);
    case 42: return one({L, M, L - Y, Y}, S);
    case 43: return one({L, M, L + Y, Y}, S);
    case 44: return one({L, M, X + Y, Y - X}, S);
    case 45: return one({L, M, X - Y, X + Y}, A);
    case 46: return one({L, M, X - Y, Y - X}, A);
    case 47: return {{Seg{L, M, X, Y}, Seg{L, M, W - X, H - Y}}, 2, S};
    case 48: return {{Seg{L, M, X + 15, Y + 15}, Seg{L / 2, M / 2, X, Y}}, 2, S};
    case 49: return {{Seg{L, M, X, Y}, Seg{L, M, X / 2, Y / 2}}, 2, S};
    case 50: return one({L, M, X, Y}, Last::Swap);
    default: return {{}, 0, S};  // no such equation: nothing is drawn
  }
}

void crazyPress(Session& s, int, Single X, Single Y) {
  ModQuillora& m = s.m;
  m.LastX = X;
  m.LastY = Y;
  StepDrawColor(s);
  s.f.PicPaint.Line(m.LastX, m.LastY, X, Y, m.ForeClr.value());
  m.LastX = X;
  m.LastY = Y;
}

// No width is set here: the lines keep the pen width the last tool left.
void crazyMove(Session& s, int, Single X, Single Y) {
  frmCanvas& f = s.f;
  ModQuillora& m = s.m;
  StepDrawColor(s);
  const Equation e = equation(f.CrazyEquation, X, Y, m.LastX, m.LastY, f.PicPaint.Width, f.PicPaint.Height);
  for (int i = 0; i < e.count; ++i) {
    const Seg& l = e.lines[static_cast<size_t>(i)];
    f.PicPaint.Line(l.x1, l.y1, l.x2, l.y2, m.ForeClr.value());
  }
  if (e.count == 0) return;
  switch (e.last) {
    case Last::Advance:
      m.LastX = X;
      m.LastY = Y;
      break;
    case Last::Swap:
      m.LastX = Y;
      m.LastY = X;
      break;
    case Last::Stay: break;
  }
}

}  // namespace

ToolHooks crazyLinezHooks() {
  ToolHooks h;
  h.press = crazyPress;
  h.move = crazyMove;
  return h;
}

}  // namespace qp
