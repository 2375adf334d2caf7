// The 56 figure brushes and the 18 box proportions. The figures keep their own quirks: many sit
// off the pointer (the boxes hang below it, the slashes start at it), a few pairs are the same
// figure under two names, and some outlines stay open.
#include "tools/FigureShapes.h"

#include <array>

namespace qp {

namespace {

// Angles of the pie figures: a formula uses this value of pi; pi standing alone at a positive
// sign is the nearest Single.
constexpr double kPi = 3.14159265;
constexpr double kPiSingle = static_cast<double>(3.14159265f);

FigurePart L(double a, double b, double c, double d) { return {FigurePart::Line, a, b, c, d, 0, {}, {}, {}}; }
FigurePart C(double x, double y, double r, std::optional<double> aspect = {}) {
  return {FigurePart::Circle, x, y, 0, 0, r, {}, {}, aspect};
}
FigurePart Arc(double r, double start, double end) {
  return {FigurePart::Circle, 0, 0, 0, 0, r, start, end, {}};
}
std::vector<FigurePart> saucer(double inner, double outer) {
  return {C(0, 0, 180, inner), C(0, 0, 240, outer), L(-300, 0, 300, 0)};
}

std::array<std::vector<FigurePart>, kFigureCount> makeFigures() {
  const std::vector<FigurePart> butterfly = {L(-60, -60, 60, 60), L(60, -60, -60, 60), L(-60, 60, -60, -60),
                                             L(0, -40, 0, 60), L(60, -60, 60, 60)};
  return {{
      {L(-60, 0, 60, 0)},                                                          // Horizontal
      {L(0, -60, 0, 60)},                                                          // Vertical
      {L(0, 0, 60, 60)},                                                           // Backslash
      {L(0, 0, -60, 60)},                                                          // Fwdslash
      {C(0, 0, 120)},                                                              // Circle
      {L(-60, 0, 60, 0), L(-60, 0, -60, 120), L(-60, 120, 60, 120), L(60, 120, 60, 0)},          // Box
      {L(-120, 0, 120, 0), L(-120, 0, -120, 120), L(-120, 120, 120, 120), L(120, 120, 120, 0)},  // Long Box
      {L(-60, -120, 60, -120), L(-60, -120, -60, 120), L(-60, 120, 60, 120), L(60, 120, 60, -120)},  // Tall Box
      {C(0, 0, 240, 1.0 / 3.0)},                                                   // Long Ellipse
      {C(0, 0, 240, 3.0)},                                                         // Tall Ellipse
      {L(-60, 0, 60, 0), L(0, -60, 0, 60)},                                        // Plus
      {L(-60, -60, 60, 60), L(60, -60, -60, 60)},                                  // X
      {L(-40, 0, 40, 0), L(0, -40, 0, 40), L(-30, -30, 30, 30), L(30, -30, -30, 30)},       // Star I
      {L(-60, 0, 60, 0), L(0, -40, 0, 40), L(-40, -40, 40, 40), L(40, -40, -40, 40)},       // Star II
      {L(-60, 0, 60, 0), L(0, -30, 0, 30), L(-30, -30, 30, 30), L(30, -30, -30, 30)},       // Star III
      {L(-40, 0, 40, 0), L(0, -80, 0, 80), L(-80, -80, 80, 80), L(80, -80, -80, 80)},       // Star IV
      {L(-60, 0, 60, 0), L(0, -60, 0, 60), L(-120, -120, 120, 120), L(120, -120, -120, 120)},  // StarV
      {L(-60, 0, 60, 0), L(0, -120, 0, 120), L(-60, -60, 60, 60), L(60, -60, -60, 60)},     // Star VI
      {L(-240, 0, 240, 0), L(0, -240, 0, 240), L(-60, -60, 60, 60), L(60, -60, -60, 60)},   // Star VII
      {L(0, 0, -60, 60), L(0, 0, 60, 60), L(-60, 60, 0, 120), L(0, 120, 60, 60)},           // Diamond
      {L(0, 0, -120, 60), L(0, 0, 120, 60), L(-120, 60, 0, 120)},                           // Diamond II
      {L(-60, 0, 0, -120), L(0, -120, 60, 0), L(-60, 0, 0, 120), L(0, 120, 60, 0)},         // DiamondIII
      butterfly,                                                                   // Butterfly
      butterfly,                                                                   // ButterflyII
      {L(0, 0, -60, -60), L(0, 0, 60, -60), L(-60, -60, 0, -240), L(0, -240, 60, -60)},     // Spear Up
      {L(0, 0, -60, 60), L(0, 0, 60, 60), L(-60, 60, 0, 240)},                              // Spear Down
      {L(0, 0, -60, 60), L(0, 0, 60, 60), L(-60, 60, 0, -240), L(0, -240, 60, 60)},         // Arrowhead
      {C(0, 0, 80), L(0, 80, 0, 180), L(-60, 120, 60, 120), L(-60, 240, 0, 180), L(60, 240, 0, 180)},  // Stick man
      {C(0, 0, 120), L(-30, 60, 30, 60), L(-60, -30, -20, -30), L(-60, -30, -20, -30), L(60, -30, 20, -30)},  // Smiley guy
      {L(-80, 0, 0, -80), L(80, 0, 0, -80), L(-60, 0, 60, 0), L(-60, 0, -60, 120), L(-60, 120, 60, 120),
       L(60, 120, 60, 0)},                                                         // House
      {L(0, 0, 60, -60), L(0, 0, -60, -60), L(-60, 0, 60, 0), L(-60, 0, -60, 120), L(-60, 120, 60, 120),
       L(60, 120, 60, 0)},                                                         // TV
      {L(-60, 0, 0, -120), L(0, -120, 60, 0), L(-60, 0, 60, 0)},                   // Point
      {L(-120, 0, 0, -240), L(0, -240, 120, 0), L(-120, 0, 120, 0), L(0, 0, 0, 120)},       // Tree
      {L(-60, 0, -20, -240), L(20, -240, 60, 0), L(-80, 0, 80, 0), L(20, -240, -20, -240)},  // Cone
      {L(-30, -60, 30, -60), L(-30, 60, 30, 60), L(-60, -30, -60, 30), L(60, -30, 60, 30), L(-60, -30, -30, -60),
       L(60, -30, 30, -60), L(-60, 30, -30, 60), L(60, 30, 30, 60)},               // Stop Sign
      {L(-30, -30, 0, 30), L(30, -30, 0, 30), L(-30, -30, 30, -30)},               // Yeild Sign
      {C(0, -30, 120), C(30, 30, 120), C(-30, 30, 120)},                           // Bio
      {Arc(120, -(kPi / 9.0), -(kPi / 360.0))},                                    // CapMan I
      {Arc(120, -(kPi / 3.0), -(kPi / 360.0))},                                    // CapMan II
      {Arc(120, -(kPi / 9.0), -(kPi / 32.0))},                                     // CapMan III
      {Arc(120, -(kPi / 2.0), -(kPi / 180.0))},                                    // CapMan IV
      {Arc(120, -kPi, kPiSingle)},                                                 // CapMan V
      {Arc(120, -(kPi / 4.0), kPi / 4.0)},                                         // CapMan VI
      {Arc(120, -(kPi / 2.0), kPi / 2.0)},                                         // CapMan VII
      {Arc(120, -kPi, -(kPi / 360.0))},                                            // Slice
      {Arc(120, -(kPi / 210.0), -kPi)},                                            // Slice2
      {Arc(120, -(kPi / 2.0), -kPi)},                                              // 1/4
      {Arc(120, kPiSingle, 6.2831853)},                                            // 1/2
      {Arc(120, kPiSingle, kPi / 2.0)},                                            // 3/4
      saucer(1.0 / 3.0, 1.0 / 6.0),                                                // Saucer I
      saucer(1.0 / 2.0, 1.0 / 4.0),                                                // Saucer II
      saucer(1.0 / 5.0, 1.0 / 6.0),                                                // Saucer III
      saucer(1.0 / 2.0, 1.0 / 6.0),                                                // Saucer IV
      saucer(1.0 / 3.0, 1.0 / 6.0),                                                // Saucer V
      saucer(1.0 / 2.0, 1.0 / 4.0),                                                // Saucer VI
      {L(-240, 0, 240, 0), L(0, -240, 0, 240), C(0, 0, 240), L(-20, -180, 20, -180), L(-40, -120, 40, -120),
       L(-20, 180, 20, 180), L(-40, 120, 40, 120), L(-120, -40, -120, 40), L(120, -40, 120, 40),
       L(-180, -20, -180, 20), L(180, -20, 180, 20)},                              // Scope
  }};
}

}  // namespace

const std::vector<FigurePart>& FigureParts(int figure) {
  static const auto kFigures = makeFigures();
  static const std::vector<FigurePart> kNone;
  if (figure < 0 || figure >= kFigureCount) return kNone;
  return kFigures[static_cast<size_t>(figure)];
}

std::optional<BoxExtent> BoxKindExtent(int kind) {
  static constexpr BoxExtent kBoxes[] = {
      {120, 0, 120}, {120, 0, 60}, {120, 0, 90}, {160, 0, 120}, {200, 0, 40}, {240, 0, 90},
      {40, 0, 80}, {80, 0, 160}, {60, 0, 120}, {120, 0, 240}, {80, 0, 160}, {160, 0, 320},
      {60, 160, 160}, {30, 120, 120}, {60, 90, 90}, {40, 160, 160}, {60, 120, 120}, {40, 90, 90}};
  if (kind < 0 || kind >= static_cast<int>(std::size(kBoxes))) return std::nullopt;
  return kBoxes[kind];
}

std::vector<FigurePart> BoxSides(int kind) {
  const auto e = BoxKindExtent(kind);
  if (!e) return {};
  const double l = -e->W, r = e->W, top = -e->T, bottom = e->B;
  const double bottomEnd = kind == 0 ? 60 : bottom;
  return {L(l, top, r, top), L(l, top, l, bottom), L(l, bottom, r, bottomEnd), L(r, bottom, r, top)};
}

}  // namespace qp
