#pragma once
#include "platform/Control.h"

namespace qp {

// Sets a control's design-time rectangle, in twips of its parent.
inline void place(VisualControl& c, Single left, Single top, Single width, Single height) {
  c.Left = left;
  c.Top = top;
  c.Width = width;
  c.Height = height;
}

// A bar's design values, in the order the panel tables give them: Min / Max / Value / Small / Large.
template <class Bar>
void setBar(Bar& b, int min, int max, int value, int small = 1, int large = 1) {
  b.Min = min;
  b.Max = max;
  b.Value = value;
  b.SmallChange = small;
  b.LargeChange = large;
}

}  // namespace qp
