#pragma once
// The wiring of the windows' control events to the routines below them. Only this folder knows
// both the controls and every routine; the controls themselves know none.
#include <functional>

namespace qp {

struct Session;

// Connects every control of the main window to its routine.
void wireCanvas(Session& s, const std::function<void()>& quit);
// The colour block's controls and timers.
void wireColours(Session& s);
// The Edit menu's items, the canvas menu's reset and the canvas colour.
void wireEditCommands(Session& s);
// The file window, the Explorer panel, the File menu's Open and Save, drops on the canvas and the
// layout preview.
void wireFiles(Session& s);
// The image workshops, each opened from the main window's Image Toolz menu.
void wireTileSetter(Session& s);
void wireImageBlender(Session& s);
void wireImageStretcher(Session& s);
// The Selection Tool's menu and floating pictures, and Paint w/Pix on the canvas and the pixel
// surface.
void wireSelection(Session& s);
// The Transparency Tool's window.
void wireTransparencyTool(Session& s);
// The AirBrush's timer and the pixel surface's mouse events.
void wireLineTools(Session& s);
// The spirals: GeoSpiralz's button and floating result, the pixel surface of Freehand Spiralz and
// its MiniSpirals box, and the full-screen window.
void wireSpirals(Session& s, const std::function<void()>& quit);
// The gradients' and spheres' own controls: the sphere timer and the ramp direction buttons.
void wireGradients(Session& s);
// The figure brushes' and box brush's timers.
void wireBrushes(Session& s);
// The text tools: Text Brush's timer, 3D Text's boxes and bars, Shadow Text's sample and sizes.
void wireTextTools(Session& s);

}  // namespace qp
