#pragma once
// The program's own words: the help line of each paint mode, the suggestions, the key list and
// the user guide. Kept word for word; they are part of the program's character.
#include <QString>
#include <QStringList>

namespace qp {

// The help line of a mode, given the state that chooses between its texts (ckVal's value, or
// vVal3's in Simple Shapes). Null for a mode that has no help line of its own.
const char* modeHelpText(int mode, int state);
// The suggestion in the help line's tool tip for a mode, or null.
const char* suggestionFor(int mode);
QStringList keyList();
QString userGuide();

}  // namespace qp
