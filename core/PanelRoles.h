#pragma once
// What the control panel's shared bars and check boxes mean in each paint mode: the row labels and
// the variables the bars feed, the words the check boxes write, and the items each mode switches on
// at entry. The tool of a mode may add its own reaction through its hooks in the tool table; the
// panel's part runs first.
#include <QString>

#include "core/Session.h"

namespace qp {

// Figure brushes: the name of figure 0 to 55 ("" outside), and the state line showing the name of
// BrushFigure.
QString BrushFigureName(int figure);
void ShowBrushName(Session& s);

// The Change and Scroll handlers of vVal1 .. vVal5 (row 1 to 5). A row whose frame is dim ignores
// its bar: the handler only clears the row's tool tip.
void vVal_Change(Session& s, int row);
// The check boxes' Click handlers.
void ckVal_Click(Session& s);
void ckVal2_Click(Session& s);
// The word a check box (1 ckVal, 2 ckVal2) writes when set in a mode, or null for a mode without.
const char* checkBoxWord(int mode, int box);

// The mode's own items at entry: check boxes, groups, surfaces and quirks. Runs after the value
// bars are set and before the panel height, the state word and the help cue.
void ApplyModeEntry(Session& s);

// Transparent Mode opens the Transparency Tool's window over the main one, so that the user
// prepares a picture first. The window lives in a higher layer: Transparent Mode's entry hook in
// the tool table opens it.
void OpenTransparencyTool(Session& s);
// 3D Text draws its sample on the pixel surface at entry and whenever the colours change; Shadow
// Text draws its sample box at entry. The text tools draw them through their tool hooks.
void ShowTextSample(Session& s);
void ShowShadowTextSample(Session& s);

// Connects the panel's bars and check boxes to the handlers above.
void wirePanel(Session& s);

}  // namespace qp
