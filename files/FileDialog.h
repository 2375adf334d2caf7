#pragma once
// The file window's routines. What OK does is chosen by the window's caption.
#include <QString>

#include "core/Session.h"

namespace qp {

class frmFile;

// The captions that choose what OK does. "Strecthed" is the program's own spelling.
namespace FileMode {
inline const QString OpenImage = "Open Image...";
inline const QString LoadStretch = "Load Image To Be Strecthed...";
inline const QString SaveImage = "Save Image As...";
inline const QString SaveSelection = "Save Selection As...";
inline const QString SaveTiled = "Save Tiled Image As...";
inline const QString SaveStretched = "Save Strecthed Image As...";
inline const QString SaveCropped = "Save Cropped Image As...";
inline const QString SaveBlended = "Save Blended Image As...";
inline const QString SaveBlueScreen = "Save BlueScreen Image As...";
inline const QString SaveMask = "Save Image As Mask...";
inline const QString ExportPng = "Export as PNG...";
}  // namespace FileMode

// The file window of this session; null in a session built without it.
frmFile* fileWindow(Session& s);
// Openers test this and do nothing while the window is up.
bool fileWindowShown(Session& s);
// Sets the caption, which chooses the mode, and shows the window modeless.
void ShowFileDialog(Session& s, const QString& caption);

void frmFile_Load(Session& s);
void CmbType_Click(Session& s);
void frmFile_Drive1_Change(Session& s);
void frmFile_Dir1_Change(Session& s);
void frmFile_File1_Click(Session& s);
void cmdOK_Click(Session& s);
void CmdCancel_Click(Session& s);

void wireFileDialog(Session& s);

}  // namespace qp
