#pragma once
// The main window: its controls, grouped by where they sit, and its shared variables. The window
// itself holds no logic; the routines that give the controls their meaning live in core/, color/
// and tools/ and are wired to the controls' events by wireCanvas (app/CanvasWiring.cpp).
#include "platform/Form.h"
#include "ui/CanvasArea.h"
#include "ui/CanvasMenus.h"
#include "ui/CanvasTimers.h"
#include "ui/CanvasVars.h"
#include "ui/ColourBlock.h"
#include "ui/ControlPanel.h"
#include "ui/ExplorerPanel.h"
#include "ui/TextPanels.h"

namespace qp {

class frmCanvas : public Form,
                  public CanvasTimers,
                  public CanvasArea,
                  public ColourBlock,
                  public ControlPanel,
                  public ExplorerPanel,
                  public CanvasMenus,
                  public CanvasVars,
                  public TextPanels {
 public:
  explicit frmCanvas(Runtime& rt);
};

}  // namespace qp
