#include "core/PanelEvents.h"

#include "core/ToolTable.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// The hook is looked up when the event comes, not when it is wired: the mode may have changed.
template <class Pick>
std::function<void()> toMode(Session& s, Pick pick) {
  return [&s, pick] {
    trap([&] {
      const ToolHooks& hooks = s.tools.at(s.m.PaintMode);
      if (const PanelHook& hook = pick(hooks)) hook(s);
    });
  };
}

}  // namespace

void wirePanelEvents(Session& s) {
  frmCanvas& f = s.f;
  f.ckVal.Click = toMode(s, [](const ToolHooks& h) -> const PanelHook& { return h.ckValClick; });
  f.ckVal2.Click = toMode(s, [](const ToolHooks& h) -> const PanelHook& { return h.ckVal2Click; });
  for (int n = 1; n <= 5; ++n) {
    f.valueBar(n).Change =
        toMode(s, [n](const ToolHooks& h) -> const PanelHook& { return h.vValChange[static_cast<size_t>(n - 1)]; });
  }
}

}  // namespace qp
