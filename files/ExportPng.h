#pragma once
// File > Export as PNG...: the canvas written as a PNG file through the file window, beside Save,
// which keeps writing bitmaps.
#include <QString>

#include "core/Session.h"

namespace qp {

class frmFile;

// The path an export writes: ".png" is appended unless the name already ends in it (any case);
// an empty name is "Untitled".
QString ComposePngPath(const QString& folder, const QString& typedName);

void mExportPng_Click(Session& s);
// OK in the file window opened by the export. Returns false when the window must stay open: the
// file could not be written (a read-only folder, a full disk), which a message says; the canvas
// and its file name are untouched either way.
bool exportBranch(Session& s, frmFile& d);

}  // namespace qp
