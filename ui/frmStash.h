#pragma once
// The hidden holder of pictures that outlive the workshop windows. Each workshop leaves its last
// picture in its holder and writes "Temp" into the label beside it; at the next opening the workshop
// takes the picture back when that mark stands. Nothing of this goes to disk.
#include "platform/Controls.h"
#include "platform/Form.h"
#include "surface/PictureBox.h"

namespace qp {

class frmStash : public Form {
 public:
  explicit frmStash(Runtime& rt);

  PictureBox pTile;     // TileSetter's working picture
  PictureBox pTrans;    // the Image Blender's working picture
  PictureBox pBlu;      // the Transparency Tool's working picture (frmBlue)
  PictureBox pStretch;  // the Image Stretcher's source picture
  PictureBox pPro1;     // scratch holders of the workshops
  PictureBox pPro2;
  Label lTile;
  Label lTrans;
  Label lBlu;
  Label lStretch;
};

}  // namespace qp
