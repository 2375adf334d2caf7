#pragma once
#include "platform/Form.h"
#include "platform/Timer.h"

namespace qp {

// The timers of the main window, at their design intervals.
struct CanvasTimers {
  explicit CanvasTimers(Form& f);

  Timer tDraw;       // AutoDraw
  Timer tBrush;      // Boxes N Bubblez
  Timer tBrushTime;  // repeated figure brush
  Timer tAir;        // AirBrush
  Timer tGrad;       // Gradient colour mode
  Timer tSphere;     // spheres and circle effects
  Timer tPix;        // picture painting
  Timer tGrdTx;      // gradient text
  Timer tDclrz;      // Transient Color Generator
  Timer tPenUp;      // width up while the arrow key is held
  Timer tPenDwn;     // width down
  Timer tTemp;       // blink of a floating picture's frame
  Timer tTemp2;      // short-lived messages

  // The timers that StopAllTools stops (tDclrz is not among them).
  void stopPaintTimers();
};

}  // namespace qp
