#pragma once
// The Explorer panel that the TileSetter, the Image Blender and the Transparency Tool each carry in
// their frame fX: drive, folder and file lists, a preview of the file pressed, and the buttons that
// load it, flip the filter and close the panel. The windows differ only in the preview's name and
// in the captions and height of the buttons.
#include "platform/Controls.h"
#include "platform/FileControls.h"
#include "platform/Form.h"

namespace qp {

// The buttons of one window's panel, stacked under each other beside the preview.
struct ExplorerButtons {
  const char* ok = "OK";
  const char* cancel = "Cancel";
  int height = 495;  // twips; the gap between two buttons is 105
};

struct WorkshopExplorer {
  WorkshopExplorer(Form& f, Frame& fX, const char* previewName, ExplorerButtons buttons = {});

  DriveListBox Drive1;
  DirListBox Dir1;
  FileListBox File1;   // pattern "*.bmp" at start
  Image preview;       // iPre on the TileSetter and Transparency Tool, imPre on the Image Blender
  CommandButton cKay;  // load the file pressed
  CommandButton cPatt; // *.bmp <-> *.jpg
  CommandButton cCancel;
};

}  // namespace qp
