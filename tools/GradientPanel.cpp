#include "tools/GradientPanel.h"

#include <vector>

#include "core/Session.h"
#include "platform/EventLoop.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

QString valueOf(ScrollBar& bar) { return QString::number(bar.Value.get()); }

void styleRow(Session& s, const std::vector<const char*>& styles) {
  const int v = s.f.vVal1.Value;
  if (v >= 0 && v < static_cast<int>(styles.size())) s.f.lStats.Caption = styles[size_t(v)];
}

void intensityRow(Session& s) {
  frmCanvas& f = s.f;
  const QString text = "Intensity : " + valueOf(f.vVal2);
  f.lStats.Caption = text;
  f.lVal2.ToolTipText = text;
  f.lTell.Caption = "Click arrows to set Squares Intensity   Current Intensity : " + valueOf(f.vVal2);
}

void aspectRow(Session& s) {
  frmCanvas& f = s.f;
  if (f.vVal1.Value != 2) return;  // only the circles have an aspect
  const QString text = "Aspect : " + valueOf(f.vVal3);
  f.lStats.Caption = text;
  f.lVal3.ToolTipText = text;
  f.lTell.Caption = "Click arrows to set Circles Aspect ratio   Current Aspect : " + valueOf(f.vVal3);
}

// The panel has stored the option and named it in the state line and the row's tool tip.
void colourRow(Session& s) { s.f.lTell.Caption = s.f.lStats.Caption.get(); }

}  // namespace

void addGradientRows(ToolHooks& h, std::vector<const char*> styles) {
  h.vValChange[0] = [styles = std::move(styles)](Session& s) { styleRow(s, styles); };
  h.vValChange[1] = intensityRow;
  h.vValChange[2] = aspectRow;
  h.vValChange[3] = colourRow;
}

std::function<bool()> GradientDoEvents(Session& s, std::function<bool()> stillWanted) {
  frmCanvas& f = s.f;
  f.GradientDrawings += 1;
  const int mine = f.GradientDrawings;
  const int mode = s.m.PaintMode;
  return [&s, mine, mode, stillWanted = std::move(stillWanted)] {
    s.rt.loop.processEvents();
    if (s.f.GradientDrawings != mine || s.m.PaintMode != mode) return false;
    return !stillWanted || stillWanted();
  };
}

}  // namespace qp
