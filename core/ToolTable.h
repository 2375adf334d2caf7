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

struct ToolHooks {
  StrokeHook press;    // left button down, after the common steps
  StrokeHook move;     // each move with the left button held
  StrokeHook release;  // left button up, before the closing steps
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
