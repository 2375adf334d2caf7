#include "tools/Spheres.h"

#include "core/Session.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

constexpr int kSpheres = 8;
constexpr int kCircleFx = 11;

struct Boxes {
  int red, green, blue;
};
Boxes colourBoxes(frmCanvas& f) { return {f.vRed.Value, f.vGrn.Value, f.vBlu.Value}; }

double aspectOf(const ScrollBar& bar) { return bar.Value / 6.0; }

// The drawing repeats under the timer only while the button is held and ckVal2 asks for it.
void repeatWhileHeld(Session& s) {
  if (s.f.ckVal2.Value == 1) s.f.tSphere.Enabled = true;
}

void SpherePress(Session& s, int, Single, Single) {
  DrawSphere(s, s.f.PointerX, static_cast<Single>(s.f.PointerY.value()));
  repeatWhileHeld(s);
}

void CircleFxPress(Session& s, int, Single X, Single Y) {
  DrawCircleFx(s, X, Y);
  repeatWhileHeld(s);
}

void holdMove(Session& s, int, Single, Single) { repeatWhileHeld(s); }
void holdRelease(Session& s, int, Single, Single) { s.f.tSphere.Enabled = false; }

// The state line, the row's tool tip and the message line while a bar moves.
void tell(Session& s, int row, const QString& words, const char* message) {
  frmCanvas& f = s.f;
  const QString value = QString::number(f.valueBar(row).Value.get());
  f.lStats.Caption = words + value;
  f.valueLabel(row).ToolTipText = words + value;
  if (message) f.lTell.Caption = message + value;
}

constexpr const char* kTellStep = "Click arrows to set Step   Current Step : ";
constexpr const char* kTellRadius = "Click arrows to set Radius   Current Radius : ";
constexpr const char* kTellAspect = "Click arrows to set Aspect ratio   Current Aspect : ";
constexpr const char* kTellIntensity = "Click arrows to set Color Intensity    Current Intensity : ";
constexpr const char* kTellDepth = "Click arrows to set Depth   Current Depth : ";

}  // namespace

std::optional<Colour> RingColour(int option, int V, bool mixed, int boxRed, int boxGreen, int boxBlue) {
  if (!mixed) {
    switch (option) {
      case 0: return RGB(V, V, V);
      case 1: return RGB(V, 0, 0);
      case 2: return RGB(0, V, 0);
      case 3: return RGB(0, 0, V);
      case 4: return RGB(V, V, 0);
      case 5: return RGB(0, V, V);
      case 6: return RGB(V, 0, V);
      default: return std::nullopt;
    }
  }
  switch (option) {
    case 1: return RGB(V, boxGreen, boxBlue);
    case 2: return RGB(boxRed, V, boxBlue);
    case 3: return RGB(boxRed, boxGreen, V);
    case 4: return RGB(V, V, boxBlue);
    case 5: return RGB(boxRed, V, V);
    case 6: return RGB(V, boxGreen, V);
    default: return std::nullopt;
  }
}

void DrawSphere(Session& s, Single CX, Single CY) {
  frmCanvas& f = s.f;
  trap([&] {
    f.PicPaint.DrawWidth = 3;
    Integer V = 255;
    const int Limit = f.vVal1.Value;
    // The option holds for the whole sphere: white that asks for mixing turns the option to red
    // and leaves this sphere's rings undrawn; the next sphere is red.
    const int option = s.m.ColorOption;
    for (int i = 0; i <= Limit; ++i) {
      const bool mixed = f.ckVal.Value == 1;
      const Boxes b = colourBoxes(f);
      if (const auto c = RingColour(option, V, mixed, b.red, b.green, b.blue)) {
        // A ring a pixel apart on the twips scale of the canvas.
        f.PicPaint.Circle(CX, CY, static_cast<Single>(i * 15), *c, std::nullopt, std::nullopt, aspectOf(f.vVal3));
      } else if (mixed && option == 0) {
        f.vColors.Value = 1;
      }
      V -= f.vVal2.Value.get();
    }
  });
}

void DrawCircleFx(Session& s, Single CX, Single CY) {
  frmCanvas& f = s.f;
  trap([&] {
    f.PicPaint.DrawWidth = f.vVal4.Value.get();
    const int Stride = f.vVal1.Value;
    const int Radius = f.vVal2.Value;
    Integer V = 0;  // past 255 the colour saturates, so the outer rings are the brightest
    for (int R = 0; R <= Radius; R += Stride) {
      const int option = s.m.ColorOption;
      const Boxes b = colourBoxes(f);
      if (const auto c = RingColour(option, V, option != 0, b.red, b.green, b.blue))
        f.PicPaint.Circle(CX, CY, static_cast<Single>(R * 15), *c, std::nullopt, std::nullopt, aspectOf(f.vVal5));
      V += f.vVal3.Value.get();
    }
  });
}

void tSphere_Timer(Session& s) {
  frmCanvas& f = s.f;
  trap([&] {
    const Single X = f.PointerX, Y = static_cast<Single>(f.PointerY.value());
    if (s.m.PaintMode == kSpheres) {
      if (f.ckVal2.Value == 1) DrawSphere(s, X, Y);
    } else if (s.m.PaintMode == kCircleFx) {
      // Running at all means ckVal2 was set at the press.
      DrawCircleFx(s, X, Y);
    } else {
      // The mode changed under a held button: nothing of it is left to repeat.
      f.tSphere.Enabled = false;
    }
  });
}

ToolHooks sphereHooks() {
  ToolHooks h;
  h.press = SpherePress;
  h.move = holdMove;
  h.release = holdRelease;
  h.vValChange[0] = [](Session& s) { tell(s, 1, "Limit : ", nullptr); };
  h.vValChange[1] = [](Session& s) { tell(s, 2, "Step : ", kTellStep); };
  h.vValChange[2] = [](Session& s) { tell(s, 3, "Aspect : ", kTellAspect); };
  // The colour option row: the panel stores the option and shows its name.
  return h;
}

ToolHooks circleFxHooks() {
  ToolHooks h;
  h.press = CircleFxPress;
  h.move = holdMove;
  h.release = holdRelease;
  h.vValChange[0] = [](Session& s) { tell(s, 1, "Step : ", kTellStep); };
  h.vValChange[1] = [](Session& s) { tell(s, 2, "Radius : ", kTellRadius); };
  h.vValChange[2] = [](Session& s) { tell(s, 3, "Intensity : ", kTellIntensity); };
  h.vValChange[3] = [](Session& s) { tell(s, 4, "Depth : ", kTellDepth); };
  h.vValChange[4] = [](Session& s) { tell(s, 5, "Aspect : ", kTellAspect); };
  return h;
}

}  // namespace qp
