#pragma once
// The figures of the figure brushes and the box brush, as data: each figure is a list of lines and
// circles around the pointer, in units of the brush size. Drawing them is the brushes' business;
// here they are plain values, so that their geometry can be checked on its own.
#include <optional>
#include <vector>

namespace qp {

// One drawing call of a figure. A line runs from (x1, y1) to (x2, y2); a circle has its centre at
// (x1, y1) and the radius r, with an arc's start and end angles and an aspect where it has them.
struct FigurePart {
  enum Kind { Line, Circle } kind;
  double x1, y1, x2, y2;
  double r = 0;
  std::optional<double> start, end, aspect;
};

constexpr int kFigureCount = 56;
// The parts of figure 0 to 55 in their drawing order; no parts outside that range.
const std::vector<FigurePart>& FigureParts(int figure);

// The box brush's proportions: half width W, height above T and below B of the pointer, in units
// of the box size. Kinds 0 to 17; an unknown kind has no extent.
struct BoxExtent {
  int W, T, B;
};
std::optional<BoxExtent> BoxKindExtent(int kind);
// The four sides of a box of that kind, top, left, bottom, right, in the same units. Kind 0's
// bottom ends half way up its right side, so that this one box does not close.
std::vector<FigurePart> BoxSides(int kind);

}  // namespace qp
