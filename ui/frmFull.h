#pragma once
// The full-screen spirals: a borderless window over the whole screen with one picture box, no
// panel. Every setting is a key and acts on the main window's controls. Its routines are in
// tools/FullScreen.
#include "platform/Controls.h"
#include "platform/Form.h"
#include "platform/Timer.h"
#include "surface/PictureBox.h"

namespace qp {

class frmFull : public Form {
 public:
  explicit frmFull(Runtime& rt);

  PictureBox pPix;     // the spirals' surface, 480 twips in from every edge
  PictureBox PicUndo;  // its one undo level, never shown
  Timer tGrad;         // the Gradient colour mode's steps
  Timer tDclrz;        // the Transient Color Generator
  Timer tPenUp;        // width up while an arrow key is held
  Timer tPenDwn;       // width down

  Integer FullDrawWidth = 1;  // the window's own draw width
  Single PixLastRadius = 0, PixLastAngle = 0;  // the ring its moves join
};

}  // namespace qp
