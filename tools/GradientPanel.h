#pragma once
// The panel rows shared by Canvas Gradients and Gradient Shapes: the style's name, the squares'
// intensity, the circles' aspect and the colour option, said in the state line, the row's tool tip
// and the message line.
#include <functional>
#include <vector>

#include "core/ToolTable.h"

namespace qp {

// Adds the rows' texts to a mode's hooks; `styles` names the values of the style bar.
void addGradientRows(ToolHooks& h, std::vector<const char*> styles);

// Lets other events run between two rings of a long drawing. Answers whether the drawing may go on:
// not when the paint mode changed, nor when a newer gradient drawing began meanwhile.
std::function<bool()> GradientDoEvents(Session& s, std::function<bool()> stillWanted = {});

}  // namespace qp
