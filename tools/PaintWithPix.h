#pragma once
// Paint w/Pix. Collage Mode stretches a picture chosen in the Explorer panel into each rectangle
// dragged on the canvas. Transparent Mode stamps the picture prepared in the Transparency Tool on
// the pixel surface, its key colour left out, once per press or again and again under tPix.
#include <QImage>

#include "core/ToolTable.h"

namespace qp {

class PictureBox;
class frmBlue;

// The whole of `source` (its ScaleWidth by ScaleHeight, in pixels) onto `target` at PixDrawX,
// PixDrawY, leaving the target alone where the source has exactly `key`. An empty source paints
// nothing.
void StampTransparent(Session& s, PictureBox& target, const PictureBox& source, Colour key);

ToolHooks collageHooks();          // mode 14
ToolHooks transparentModeHooks();  // mode 26: its window opens at entry

// Collage Mode's use of the Explorer panel: its button takes the previewed picture as the brush,
// without touching the canvas or its file; the panel's own button opens the panel again.
void CollageTakePicture(Session& s);
void CollageOpenExplorer(Session& s);

// Transparent Mode on the pixel surface.
void TransparentPress(Session& s, int Button, int Shift, Single X, Single Y);
void TransparentMove(Session& s, int Button, int Shift, Single X, Single Y);
void TransparentRelease(Session& s, int Button, int Shift, Single X, Single Y);
void tPix_Timer(Session& s);

// The Transparency Tool's window of this session; null in a session built without it.
frmBlue* transparencyWindow(Session& s);
// Gives the Transparency Tool a picture to work on, loading its window first so that its own
// start-up (which brings back its last picture) runs before the picture arrives.
void HandSelectionToTransparencyTool(Session& s, const QImage& picture);
// What the Transparent Mode menu item does: the mode, the panel, and the window opened.
void EnterTransparentMode(Session& s);

}  // namespace qp
