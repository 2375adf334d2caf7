#pragma once
// The File menu's Open and Save, a file dropped on the canvas, and the layout preview.
#include <QStringList>

#include "core/Session.h"

namespace qp {

void mnuOpen_Click(Session& s);
void mnuSave_Click(Session& s);
void PicPaint_OLEDragDrop(Session& s, const QStringList& Files);

void mLo_Click(Session& s);
void frmLO_Resize(Session& s);
void iLO_Click(Session& s);

}  // namespace qp
