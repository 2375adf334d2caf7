#pragma once
// The layout preview: the whole canvas at a third of its size, as a snapshot taken when the
// window opens or its picture is clicked. Its routines are in files/LayoutPreview.
#include "platform/Controls.h"
#include "platform/Form.h"
#include "surface/PictureBox.h"

namespace qp {

class frmLO : public Form {
 public:
  explicit frmLO(Runtime& rt);

  Shape shLO;      // shadow behind the preview, built first so that it lies beneath
  PictureBox pLO;  // gives the preview its size
  Image iLO;       // the canvas, stretched to pLO's size
};

}  // namespace qp
