#pragma once
// The canvas size commands: screen size, a custom size, and the lock that keeps the canvas as it is.
#include "core/Session.h"

namespace qp {

void FitScreen(Session& s);
void mCustm_Click(Session& s);
void cCustm_Click(Session& s);
void cCanCust_Click(Session& s);
void mLock_Click(Session& s);
void vWidth_Change(Session& s);
void vHigh_Change(Session& s);

}  // namespace qp
