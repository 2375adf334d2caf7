#include "ui/CanvasTimers.h"

namespace qp {

CanvasTimers::CanvasTimers(Form& f)
    : tDraw(&f, "tDraw", 10),
      tBrush(&f, "tBrush", 60),
      tBrushTime(&f, "tBrushTime", 100),
      tAir(&f, "tAir", 1),
      tGrad(&f, "tGrad", 1),
      tSphere(&f, "tSphere", 100),
      tPix(&f, "tPix", 100),
      tGrdTx(&f, "tGrdTx", 200),
      tDclrz(&f, "tDclrz", 10),
      tPenUp(&f, "tPenUp", 120),
      tPenDwn(&f, "tPenDwn", 120),
      tTemp(&f, "tTemp", 200),
      tTemp2(&f, "tTemp2", 2000) {}

void CanvasTimers::stopPaintTimers() {
  for (Timer* t : {&tGrad, &tSphere, &tPenUp, &tAir, &tDraw, &tPenDwn, &tPix, &tGrdTx, &tTemp, &tTemp2,
                   &tBrush, &tBrushTime})
    t->Enabled = false;
}

}  // namespace qp
