#pragma once
// What the workshop windows share: their Explorer panel's routines, the help line that follows
// the pointer, the Ctrl key flag, and the screen advice at opening.
#include <QString>

#include "core/Session.h"
#include "platform/Numeric.h"
#include "platform/Prop.h"

namespace qp {

class Form;
class Label;
class VisualControl;
struct WorkshopExplorer;

// The file pressed in the panel's list, with its folder; "" when none is chosen.
QString explorerSelection(const WorkshopExplorer& x);
// The panel's own lists and buttons: the drive opens its root, the folder lists its files, a left
// press previews the file, cPatt flips the filter between *.bmp and *.jpg. A picture with
// transparency is previewed on `backdrop`, the canvas's colour.
void wireWorkshopExplorer(WorkshopExplorer& x, const Prop<Colour>& backdrop);
// Writes the text into the help label while the pointer is over the control.
void tellOnHover(VisualControl& c, Label& help, const QString& text);
// The window keeps CtrlDown (-1 while the Ctrl key is held) from its own key events.
void trackCtrlKey(Form& f, Integer& CtrlDown);
// "1024x768 Screen Resolution is recommended" on a screen narrower than 1024 pixels; true when shown.
bool adviseScreen(Session& s);
// The name behind the last separator of a path.
QString fileNameOf(const QString& path);

}  // namespace qp
