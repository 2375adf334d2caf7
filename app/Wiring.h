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
// The figure brushes' and box brush's timers.
void wireBrushes(Session& s);
// The text tools: Text Brush's timer, 3D Text's boxes and bars, Shadow Text's sample and sizes.
void wireTextTools(Session& s);

}  // namespace qp
