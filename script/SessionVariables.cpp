// The session's variables by name: the shared ones of the session and the main window's own.
#include <QStringList>
#include <functional>
#include <map>

#include "core/ModQuillora.h"
#include "script/Value.h"
#include "ui/CanvasVars.h"

namespace qp::script {

namespace {

template <class R>
Value as(const Checked<R>& x) { return Value::of(x.value()); }
inline Value as(float x) { return Value::single(x); }
inline Value as(double x) { return Value::single(x); }
inline Value as(const QString& x) { return Value::string(x); }
template <class R>
Value colourOf(const Checked<R>& x) { return Value::colour(x.value()); }

struct Source {
  const ModQuillora& m;
  const CanvasVars& v;
};
using Reader = std::function<Value(const Source&)>;

#define QP_M(name) {#name, [](const Source& s) { return as(s.m.name); }}
#define QP_MC(name) {#name, [](const Source& s) { return colourOf(s.m.name); }}
#define QP_V(name) {#name, [](const Source& s) { return as(s.v.name); }}

const std::map<QString, Reader>& readers() {
  static const std::map<QString, Reader> r{
      QP_M(PaintMode), QP_M(ColorOption), QP_MC(ForeClr), QP_MC(BackClr), QP_M(ClrRed),
      QP_M(ClrGreen), QP_M(ClrBlue), QP_MC(TransientClr), QP_M(GradPhase), QP_MC(GradClr),
      QP_M(DrawWidth), QP_M(StepSize), QP_M(LastX), QP_M(LastY), QP_M(StartX), QP_M(StartY),
      QP_M(CurrentFile), QP_M(SpiralRadius), QP_M(SpiralAngle), QP_M(SpiralStep), QP_M(PixDrawX),
      QP_M(PixDrawY), QP_MC(TransparentClr), QP_M(TransparencyDone),
      QP_V(CtrlDown), QP_V(PriorMode), QP_V(PointerShape), QP_V(PanelRows), QP_V(PanelHeight),
      QP_V(SwatchKey), QP_V(GradStepSize), QP_V(BrushFigure), QP_V(CrazyEquation), QP_V(AirSpread),
      QP_V(AutoDrawX), QP_V(AutoDrawY), QP_V(AutoDrawSpeed), QP_V(AutoDrawUp), QP_V(AutoDrawRight),
      QP_V(AutoDrawDown), QP_V(AutoDrawLeft), QP_V(AutoDrawPrevX), QP_V(AutoDrawPrevY),
      QP_V(CanvasLocked), QP_V(TransparencySelect), QP_V(ShadowOffsetX), QP_V(ShadowOffsetY),
      QP_V(PointerX), QP_V(PointerY), QP_V(DownX), QP_V(DownY), QP_V(DownButtonX), QP_V(DownButtonY),
      QP_V(CanvasGradDir),
      QP_M(PrintX), QP_M(PrintY), QP_V(BoxKind), QP_V(FontOptionStep),
  };
  return r;
}

#undef QP_M
#undef QP_MC
#undef QP_V

}  // namespace

std::optional<Value> readSessionVariable(const ModQuillora& m, const CanvasVars& v, const QString& name) {
  const auto it = readers().find(name);
  if (it == readers().end()) return std::nullopt;
  return it->second(Source{m, v});
}

QStringList sessionVariableNames() {
  QStringList names;
  for (const auto& [name, reader] : readers()) names << name;
  return names;
}

}  // namespace qp::script
