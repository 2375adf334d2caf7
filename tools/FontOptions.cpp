// The font options that a right click on a font list steps through. One counter serves both
// lists, so a click on the other list goes on from where this one stopped.
#include "tools/TextTools.h"
#include "ui/frmCanvas.h"

namespace qp {

void NextFontOption(Session& s, std::initializer_list<PictureBox*> surfaces) {
  Byte& step = s.f.FontOptionStep;
  step += 1;
  for (PictureBox* p : surfaces) {
    switch (step) {
      case 1: p->FontBold = true; break;
      case 2: p->FontBold = false; break;
      case 3: p->FontItalic = true; break;
      case 4: p->FontItalic = false; break;
      case 5: p->FontUnderline = true; break;
      case 6: p->FontUnderline = false; break;
      default: break;
    }
  }
  if (step >= 6) step = 0;
}

}  // namespace qp
