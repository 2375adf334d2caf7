// Instant Help as the pointer passes over the panel: a live value row tells how to set it and its
// present value, a dim row says nothing; the check boxes tell what a click switches on or off;
// the width bars and their label tell the width and its limits.
#include <QString>

#include "core/Help.h"
#include "core/Panel.h"
#include "core/PanelRoles.h"
#include "ui/frmCanvas.h"

namespace qp {

namespace {

// Rows whose sentence is not "Click arrows to set NAME    Current " and the label: the words the
// mode's own status lines use, kept as they stand.
struct RowSentence {
  int mode;
  int row;
  const char* text;  // followed by the row's value as its label shows it
};
constexpr RowSentence kRowSentences[] = {
    {6, 1, "Click arrows to set Eraser size    Curren Eraser size : "},
    {7, 2, "Click arrows to set Brush size   Current Size : "},
    {9, 2, "Click arrows to set Maximum Size   Current Max : "},
    {11, 1, "Click arrows to set Step   Current Step : "},
    {11, 2, "Click arrows to set Radius   Current Radius : "},
    {11, 3, "Click arrows to set Color Intensity    Current Intensity : "},
    {11, 4, "Click arrows to set Depth   Current Depth : "},
    {11, 5, "Click arrows to set Aspect ratio   Current Aspect : "},
    {12, 2, "Click arrows to set Symmetry   Current Symmetry : "},
    {12, 3, "Click arrows to set Density   Current Density : "},
    {12, 5, "Click arrows to set Offset    Current Offset : "},
    {17, 2, "Click arrows to set Squares Intensity   Current Intensity : "},
    {17, 3, "Click arrows to set Circles Aspect ratio   Current Aspect : "},
    {25, 2, "Click arrows to set Squares Intensity   Current Intensity : "},
    {25, 3, "Click arrows to set Circles Aspect ratio   Current Aspect : "},
};

// Rows whose label is the name of the value, not a text and a number.
struct RowName {
  int mode;
  int row;
  const char* name;
};
constexpr RowName kRowNames[] = {
    {2, 2, "Fill Style"}, {2, 3, "Shape"},  {7, 1, "Brush"},  {8, 4, "Color Option"},
    {17, 1, "Style"},     {17, 4, "Color Option"}, {25, 1, "Style"},
};

// Check box options that write no word of their own to the state line.
struct BoxName {
  int mode;
  int box;
  const char* name;
};
constexpr BoxName kBoxNames[] = {
    {0, 1, "AutoDraw"},         {3, 2, "Spread control with keyboard ARROW keys"},
    {4, 2, "third color"},      {7, 2, "random size"},
    {8, 2, "drawing with spheres"}, {9, 2, "random size"},
    {11, 2, "drawing with circles"}, {23, 1, "random colors"},
    {23, 2, "arrows"},
};

QString valueOf(const QString& caption) {
  const int colon = caption.lastIndexOf(':');
  return colon < 0 ? caption : caption.mid(colon + 1).trimmed();
}

QString rowSentence(Session& s, int row) {
  frmCanvas& f = s.f;
  const int mode = s.m.PaintMode;
  const QString caption = f.valueLabel(row).Caption;
  if (mode == 0 && row == 1)  // AutoDraw's speed, in the words its bar's Change uses
    return "Click arrows to set AutoDraw Speed    Current Speed : " + QString::number(f.vVal1.Value.get()) +
           "    Set interval with the Interval arrows located to the left of the draw width controls";
  for (const RowSentence& r : kRowSentences)
    if (r.mode == mode && r.row == row) return QString(r.text) + valueOf(caption);
  for (const RowName& r : kRowNames)
    if (r.mode == mode && r.row == row)
      return QString("Click arrows to set %1    Current %1 : %2").arg(r.name, caption);
  const int colon = caption.indexOf(':');
  if (colon <= 0) return QString();
  const QString name = caption.left(colon).trimmed();
  return QString("Click arrows to set %1    Current %1 : %2").arg(name, valueOf(caption));
}

void rowHover(Session& s, int row) {
  if (!rowIsLive(s, row)) return;  // a dim row says nothing
  const QString text = rowSentence(s, row);
  if (!text.isEmpty()) s.f.lHelp.Caption = text;
}

void boxHover(Session& s, int box) {
  const int mode = s.m.PaintMode;
  const CheckBox& c = box == 1 ? s.f.ckVal : s.f.ckVal2;
  if ((mode == 16 || mode == 28) && box == 1) {  // the spiral's two kinds, named by the click's result
    s.f.lHelp.Caption = c.Value == 0 ? "Click to engage Orbital Mode" : "Click to engage Radial Mode";
    s.f.lStats.Caption = c.Value == 0 ? "Radial Mode" : "Orbital Mode";
    return;
  }
  QString name;
  if (const char* word = checkBoxWord(mode, box)) name = word;
  for (const BoxName& b : kBoxNames)
    if (b.mode == mode && b.box == box) name = b.name;
  if (name.isEmpty()) return;
  s.f.lHelp.Caption = (c.Value == 0 ? "Click to enable " : "Click to disable ") + name;
}

void widthHover(Session& s) {
  s.f.lHelp.Caption = "Click arrows to set Draw Width    Current Draw Width : " + QString::number(s.m.DrawWidth) +
                      "    (OR use keyboard ARROW keys on-the-fly)";
}

// Adds fn after what the control's MouseMove already does (a joke tip, say).
void alsoOnPass(Session& s, VisualControl& c, std::function<void()> fn) {
  c.MouseMove = [&s, before = c.MouseMove, fn = std::move(fn)](int b, int sh, Single x, Single y) {
    if (before) before(b, sh, x, y);
    trap(fn);
  };
}

}  // namespace

void wireHoverHelp(Session& s) {
  frmCanvas& f = s.f;
  for (int n = 1; n <= 5; ++n) {
    alsoOnPass(s, f.valueBar(n), [&s, n] { rowHover(s, n); });
    alsoOnPass(s, f.valueLabel(n), [&s, n] { rowHover(s, n); });
  }
  alsoOnPass(s, f.ckVal, [&s] { boxHover(s, 1); });
  alsoOnPass(s, f.ckVal2, [&s] { boxHover(s, 2); });
  alsoOnPass(s, f.vPencil, [&s] { widthHover(s); });
  alsoOnPass(s, f.lPenVal, [&s] { widthHover(s); });
  alsoOnPass(s, f.vMax, [&s] {
    s.f.lHelp.Caption = "Click arrows to set Maximum on-the-fly Draw Width    Current Maximum : " +
                        QString::number(s.f.vMax.Value.get());
  });
  alsoOnPass(s, f.vMin, [&s] {
    s.f.lHelp.Caption = "Click arrows to set Minimum on-the-fly Draw Width    Current Minimum : " +
                        QString::number(s.f.vMin.Value.get());
  });
  alsoOnPass(s, f.ckHold, [&s] {
    s.f.lHelp.Caption = s.f.ckHold.Value == 0
                            ? "Click to enable Hold (Draw width keeps changing after the ARROW key is released)"
                            : "Click to disable Hold";
  });
}

}  // namespace qp
