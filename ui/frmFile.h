#pragma once
// The file window: a small modeless dialog of the program's own, whose whole behaviour on OK is
// chosen by its caption (open, or one of the save kinds). Its routines are in files/FileDialog.
#include "platform/ControlArray.h"
#include "platform/Controls.h"
#include "platform/FileControls.h"
#include "platform/Form.h"

namespace qp {

class frmFile : public Form {
 public:
  explicit frmFile(Runtime& rt);

  // Closing the window for good: it forgets everything, and the next Show loads it afresh, with
  // its design size, empty name and lists back in the working folder.
  void unload();

  DriveListBox Drive1;
  DirListBox Dir1;
  FileListBox File1;
  TextBox TxtFile;
  ComboBox CmbType;
  CommandButton cmdOK, CmdCancel;
  Image imPreview;
  Label Label1, LblName;  // "File Name :", grey copy behind, black text in front
  Label Label2, LblType;  // "File Type :", the same way
  ControlArray<Shape> Shadowz;

  static constexpr Single kDesignWidth = 7590;
  static constexpr Single kSaveWidth = 5760;  // narrowed for saving: the preview falls outside

 private:
  void restoreDesign();
};

}  // namespace qp
