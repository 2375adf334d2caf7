#pragma once
// The Explorer panel on the main window, inside the frame fX: drive, folder and file lists, a
// preview of the file clicked, and the buttons that take the image, flip the filter and close.
// Beside it, the two hidden labels that remember the file window's last drive and folder.
#include "platform/Controls.h"
#include "platform/FileControls.h"
#include "platform/Form.h"

namespace qp {

// The panel's two jokes, each shown as a tool tip in one paint mode only.
inline const char* const kFilterJoke = "Wooooo Hoooooo...!  I have GOT to get me one of THESE!";
inline const char* const kFolderJoke =
    "GUNS...! TANKS...! BOMBS...!   They're like TOYS against them! Our only hope lies in what you "
    "people can come up with!";

struct ExplorerPanel {
  ExplorerPanel(Form& f, Frame& fX);

  DriveListBox Drive1;
  DirListBox Dir1;
  FileListBox File1;
  Image imPre;           // preview of the file pressed in File1; what cPic puts on the canvas
  CommandButton cPic;    // take the image
  CommandButton cPatt;   // *.bmp <-> *.jpg
  CommandButton cCancel; // close the panel

  // The file window's folder memory: written by that window's lists, read when it opens afresh.
  Label lDrive, lDir;
};

}  // namespace qp
