// The layout preview: the canvas at a third of its size, a snapshot until its picture is clicked.
#include "files/OpenSave.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

void mLo_Click(Session& s) {
  if (!s.windows) return;
  frmCanvas& f = s.f;
  frmLO& lo = s.windows->lo;
  trap([&] {
    lo.pLO.Width = f.PicPaint.Width / 3;
    lo.pLO.Height = f.PicPaint.Height / 3;
    if (f.pPix.Visible) {  // work on the pixel twin is what the preview must show
      f.pPix.Picture = f.pPix.Image;
      f.PicPaint.Picture = f.pPix.Picture;
    }
    lo.Show(false);
  });
}

void frmLO_Resize(Session& s) {
  if (!s.windows) return;
  frmLO& lo = s.windows->lo;
  trap([&] {
    lo.pLO.Left = 120;
    lo.pLO.Top = 120;
    lo.Width = lo.pLO.Width + 420;
    lo.Height = lo.pLO.Height + 640;
    lo.iLO.Width = lo.pLO.Width.get();
    lo.iLO.Height = lo.pLO.Height.get();
    lo.shLO.Move(240, 240, lo.pLO.Width - 120, lo.pLO.Height - 120);
    lo.iLO.Picture = s.f.PicPaint.Image;
    lo.iLO.touch();
  });
}

void iLO_Click(Session& s) {
  if (!s.windows) return;
  frmLO& lo = s.windows->lo;
  trap([&] {
    lo.iLO.Picture = s.f.PicPaint.Image;
    lo.iLO.touch();
  });
}

}  // namespace qp
