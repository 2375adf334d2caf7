#pragma once
// The Explorer panel that the TileSetter and the Image Blender each carry in their frame fX:
// drive, folder and file lists, a preview of the file pressed, and the buttons that load it, flip
// the filter and close the panel. Only the preview's name differs between the windows.
#include "platform/Controls.h"
#include "platform/FileControls.h"
#include "platform/Form.h"

namespace qp {

struct WorkshopExplorer {
  WorkshopExplorer(Form& f, Frame& fX, const char* previewName);

  DriveListBox Drive1;
  DirListBox Dir1;
  FileListBox File1;   // pattern "*.bmp" at start
  Image preview;       // iPre on the TileSetter, imPre on the Image Blender
  CommandButton cKay;  // load the file pressed
  CommandButton cPatt; // *.bmp <-> *.jpg
  CommandButton cCancel;
};

}  // namespace qp
