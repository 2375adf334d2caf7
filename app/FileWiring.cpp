// The files' events, each to its routine.
#include "app/Wiring.h"
#include "core/Edit.h"
#include "files/Explorer.h"
#include "files/ExportPng.h"
#include "files/FileDialog.h"
#include "files/OpenSave.h"
#include "ui/Windows.h"
#include "ui/frmCanvas.h"

namespace qp {

void wireFiles(Session& s) {
  frmCanvas& f = s.f;
  f.mnuOpen.Click = [&s] { mnuOpen_Click(s); };
  f.mnuSave.Click = [&s] { mnuSave_Click(s); };
  f.mExportPng.Click = [&s] { mExportPng_Click(s); };
  f.PicPaint.OLEDragDrop = [&s](const QStringList& files, int, int, Single, Single) {
    PicPaint_OLEDragDrop(s, files);
  };
  f.mLo.Click = [&s] { mLo_Click(s); };
  wireExplorer(s);
  wireFileDialog(s);
  if (s.windows) {
    frmLO& lo = s.windows->lo;
    lo.Load = [&s] { frmLO_Resize(s); };
    lo.Resize = [&s] { frmLO_Resize(s); };
    lo.iLO.Click = [&s] { iLO_Click(s); };
  }
}

}  // namespace qp
