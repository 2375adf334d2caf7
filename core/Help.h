#pragma once
// Instant Help: the help line under the panel, its suggestions, the key list, the help panel, and
// the tool tips that the pointer changes as it passes.
#include "core/Session.h"

namespace qp {

void ShowModeHelp(Session& s);
void ShowKeyList(Session& s);
void mHelp_Click(Session& s);
void PopupToolz(Session& s);  // the Toolz menu at the pointer
void wireHelp(Session& s);
// What the panel's rows, check boxes and width controls say in lHelp as the pointer passes.
void wireHoverHelp(Session& s);

}  // namespace qp
