#pragma once
// The Explorer panel of the main window and the canvas trigger that takes its picture.
#include "core/Session.h"

namespace qp {

void Explorer_Drive1_Change(Session& s);
void Explorer_Dir1_Change(Session& s);
void Explorer_File1_MouseDown(Session& s, int Button);
void cPatt_Click(Session& s);
void cPic_Click(Session& s);
void cCancel_Click(Session& s);
void lPic_Change(Session& s);

void wireExplorer(Session& s);

}  // namespace qp
