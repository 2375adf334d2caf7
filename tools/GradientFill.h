#pragma once
// The gradient fills as plain routines on a surface: concentric filled squares, diamond outlines
// closing in from the edge, rings of a two-colour ramp, and a linear ramp of lines. Canvas
// Gradients draws them on the paint area, Gradient Shapes on the floating block.
#include <functional>
#include <optional>

#include "surface/PictureBox.h"

namespace qp {

// The colour of ramp value v in a colour option: white, red, green, blue, yellow, cyan, magenta
// take v in their channels, a value past 255 counts as 255. No colour for another option.
std::optional<Colour> RampColour(int option, int v);
// The option's pure colour, 255 in its channels (white for option 0).
std::optional<Colour> PureColour(int option);

// 101 filled boxes from the whole surface down to its centre, each a step of the ramp brighter
// (stepSize a box, starting at black). Clears the surface first.
void DrawSquares(PictureBox& target, int option, int stepSize);

// 256 diamond outlines at pen width 2 from the surface's edge to its centre, over what is there,
// black first and each next one a step of the ramp brighter. After each ring `doEvents` lets other
// events run; when it answers false the drawing stops there. True when every ring was drawn.
bool DrawDiamonds(PictureBox& target, int option, const std::function<bool()>& doEvents);

// 256 rings around the centre from `from` out to `to`, on a scale of 512 units that the surface
// keeps afterwards. Each channel steps by its rounded share of the distance, so a channel that
// differs by less than half the range never moves.
void DrawGradientCircles(PictureBox& target, Colour from, Colour to, double aspect, int penWidth);
// The rings' pen: wider on a large canvas, whatever the target.
int CirclePenWidth(Single canvasWidth, Single canvasHeight);

// Lines every 10 units across the rectangle (x1, y1)-(x2, y2), horizontal lines running from top to
// bottom, or vertical ones from left to right, in a ramp from `from` to `to`.
void DrawLinearRamp(PictureBox& target, Colour from, Colour to, double x1, double y1, double x2,
                    double y2, bool vertical);

}  // namespace qp
