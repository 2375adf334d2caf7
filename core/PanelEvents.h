#pragma once
#include "core/Session.h"

namespace qp {

// Sends the clicks of ckVal and ckVal2 and the changes of vVal1 .. vVal5 to the hooks of the paint
// mode in use, so that each tool gives the shared panel its own meaning.
void wirePanelEvents(Session& s);

}  // namespace qp
