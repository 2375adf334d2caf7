#pragma once
// Which tool does what for each paint mode at press, move and release on the paint area. Each tool
// plugs its hooks in here; a mode without a hook for an event does nothing there beyond the common
// steps of the stroke.
#include <array>
#include <functional>

#include "platform/Numeric.h"

namespace qp {

struct Session;

using StrokeHook = std::function<void(Session&, int Button, Single X, Single Y)>;
// The panel's shared check boxes and value bars mean something different in each mode; a mode
// that uses one gives it a hook, and the panel's event reaches the hook of the mode in use.
using PanelHook = std::function<void(Session&)>;

struct ToolHooks {
  StrokeHook press;    // left button down, after the common steps
  StrokeHook move;     // each move with the left button held
  StrokeHook release;  // left button up, before the closing steps
  PanelHook ckValClick;
  PanelHook ckVal2Click;
  std::array<PanelHook, 5> vValChange;  // vVal1 .. vVal5
  // Runs last when the mode is entered: Transparent Mode opens the Transparency Tool's window here.
  PanelHook enter;
  // The same three events on the pixel surface pPix, for the modes that paint there. pixMove
  // comes for every move, pressed or not; the tool looks at the button.
  StrokeHook pixPress;
  StrokeHook pixMove;
  StrokeHook pixRelease;
  // The panel's canvas button and the floating block pSpire serve several modes; each mode that
  // uses them gives its own reaction here.
  PanelHook cCanClick;
  PanelHook cCanMouseMove;   // the button's tool tip in this mode
  StrokeHook spirePress;     // any button pressed on pSpire
  StrokeHook spireRelease;   // any button released on pSpire
  PanelHook fullScreenKey;   // F9 on the main window
  // Draws the mode's sample again (the 3D text on pPix, the shadow text box) when something it
  // shows has changed: the mode's entry, the colours, the fonts.
  PanelHook sample;
};

class ToolTable {
 public:
  static constexpr int kModes = 31;  // paint modes 0 to 30 (13 and 27 do not exist)
  void set(int mode, ToolHooks hooks);
  const ToolHooks& at(int mode) const;

 private:
  std::array<ToolHooks, kModes> hooks_;
  ToolHooks none_;
};

}  // namespace qp
