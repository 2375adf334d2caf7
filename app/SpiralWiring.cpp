// The spirals' own events: the MiniSpirals box and the keys on the spiral surfaces, and the
// full-screen window.
#include "app/Wiring.h"
#include "color/ColourEngine.h"
#include "core/PixPipeline.h"
#include "core/ToolTable.h"
#include "tools/FreehandSpiral.h"
#include "tools/FullScreen.h"
#include "tools/GeoSpiralz.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

void wireCanvasSpirals(Session& s) {
  frmCanvas& f = s.f;
  // The spirals' words for the box come after its general help, which they replace here.
  f.ckVal.MouseMove = [&s, before = f.ckVal.MouseMove](int b, int sh, Single x, Single y) {
    if (before) before(b, sh, x, y);
    if (s.m.PaintMode == 16 || s.m.PaintMode == 28) trap([&] { ckVal_MouseMoveSpiral(s); });
  };
  f.pPX.MouseDown = [&s](int b, int sh, Single x, Single y) { pPX_MouseDown(s, b, sh, x, y); };
  f.pPX.MouseMove = [&s](int b, int sh, Single x, Single y) { pPX_MouseMove(s, b, sh, x, y); };
  f.pPX.MouseUp = [&s](int b, int sh, Single x, Single y) { pPX_MouseUp(s, b, sh, x, y); };
  // The arrow keys change the width on the spiral surfaces as they do on the canvas.
  auto keyDown = [&s](int& code, int) {
    if (s.m.PaintMode == 16 || s.m.PaintMode == 28) PixSurface_KeyDown(s, code);
  };
  auto keyUp = [&s](int& code, int) {
    if (s.m.PaintMode == 16 || s.m.PaintMode == 28) PixSurface_KeyUp(s, code);
  };
  f.pPix.KeyDown = keyDown;
  f.pPix.KeyUp = keyUp;
  f.pPX.KeyDown = keyDown;
  f.pPX.KeyUp = keyUp;
}

void wireFullScreen(Session& s, const std::function<void()>& quit) {
  if (!s.windows) return;
  frmFull& w = s.windows->full;
  w.Load = [&s] { frmFull_Load(s); };
  w.Resize = [&s] { frmFull_Resize(s); };
  w.KeyDown = [&s, quit](int& code, int) { frmFull_KeyDown(s, code, quit); };
  w.KeyUp = [&s](int& code, int) { frmFull_KeyUp(s, code); };
  w.pPix.MouseDown = [&s](int b, int, Single x, Single y) { frmFull_pPix_MouseDown(s, b, x, y); };
  w.pPix.MouseMove = [&s](int b, int, Single x, Single y) { frmFull_pPix_MouseMove(s, b, x, y); };
  w.pPix.MouseUp = [&s](int b, int, Single x, Single y) { frmFull_pPix_MouseUp(s, b, x, y); };
  w.tPenUp.Timer_ = [&s] { frmFull_tPenUp(s); };
  w.tPenDwn.Timer_ = [&s] { frmFull_tPenDwn(s); };
  w.tGrad.Timer_ = [&s] { frmFull_tGrad(s); };
  w.tDclrz.Timer_ = [&s] { StepTransientColor(s); };
}

}  // namespace

void wireSpirals(Session& s, const std::function<void()>& quit) {
  wireCanvasSpirals(s);
  wireFullScreen(s, quit);
}

}  // namespace qp
