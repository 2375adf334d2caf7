#pragma once
#include <functional>

#include "core/Session.h"

namespace qp {

// Start-up of the main window, in its order; ends in Freehand Spiralz.
void Form_Load(Session& s);

// The ways out. Exit ends at once; closing the window leaves the last picture on the clipboard.
// `quit` ends the process (the program passes the application's quit; tests pass a recorder).
void mnuExit_Click(Session& s, const std::function<void()>& quit);
void Form_Unload(Session& s, const std::function<void()>& quit);
void Form_Terminate(Session& s);

// The size items: 800 x 600, 768 x 480, 640 x 480.
void SetCanvasSize(Session& s, int windowWidth, int windowHeight, int frameWidth, int frameHeight);
void m64x48_Click(Session& s);

}  // namespace qp
