#include "ui/frmFile.h"

#include <QDir>

#include "ui/Place.h"

namespace qp {

frmFile::frmFile(Runtime& rt)
    : Form(rt, "frmFile"),
      Drive1(this, nullptr, "Drive1"),
      Dir1(this, nullptr, "Dir1"),
      File1(this, nullptr, "File1"),
      TxtFile(this, nullptr, "TxtFile"),
      CmbType(this, nullptr, "CmbType"),
      cmdOK(this, nullptr, "cmdOK"),
      CmdCancel(this, nullptr, "CmdCancel"),
      imPreview(this, nullptr, "imPreview"),
      Label1(this, nullptr, "Label1"),
      LblName(this, nullptr, "LblName"),
      Label2(this, nullptr, "Label2"),
      LblType(this, nullptr, "LblType") {
  BackColor = 0xC0C0C0;
  BorderStyle = 4;  // a tool window
  // The drop shadows sit behind the lists and the text boxes, 60 twips down and right.
  for (int i = 0; i <= 5; ++i) {
    Shape& sh = Shadowz.add(i, this, nullptr, "Shadowz");
    sh.BackStyle = 1;
    sh.BackColor = 0x808080;
    sh.BorderColor = 0x808080;
  }
  place(Drive1, 120, 120, 2535, 315);
  place(Dir1, 120, 540, 2535, 1395);
  place(File1, 2820, 120, 2655, 1815);
  place(Label1, 135, 2070, 1095, 255);
  place(LblName, 120, 2055, 1095, 255);
  place(TxtFile, 1215, 2025, 2535, 315);
  place(Label2, 135, 2475, 1095, 255);
  place(LblType, 120, 2460, 1095, 255);
  place(CmbType, 1215, 2430, 2535, 315);
  place(cmdOK, 3990, 2025, 1485, 315);
  place(CmdCancel, 3990, 2430, 1485, 315);
  place(imPreview, 5760, 120, 1575, 1815);
  const VisualControl* shaded[] = {&Drive1, &Dir1, &File1, &TxtFile, &CmbType, &imPreview};
  for (int i = 0; i <= 5; ++i)
    place(Shadowz(i), shaded[i]->Left + 60, shaded[i]->Top + 60, shaded[i]->Width, shaded[i]->Height);
  for (Label* l : {&Label1, &Label2}) {
    l->ForeColor = 0x808080;
    l->BackStyle = 0;
  }
  for (Label* l : {&LblName, &LblType}) {
    l->ForeColor = 0x000000;
    l->BackStyle = 0;
  }
  Label1.Caption = "File Name :";
  LblName.Caption = "File Name :";
  Label2.Caption = "File Type :";
  LblType.Caption = "File Type :";
  CmbType.AddItem("Windows Bitmaps (*.bmp)");
  CmbType.AddItem("JPG Files (*.jpg)");
  cmdOK.Caption = "OK";
  CmdCancel.Caption = "Cancel";
  imPreview.Stretch = true;
  restoreDesign();
}

void frmFile::restoreDesign() {
  Caption = "";
  Move(2760, 3750, kDesignWidth, 3300);
  TxtFile.Text.setRaw("");
  imPreview.Picture = QImage();
  imPreview.touch();
  CmbType.ListIndex.setRaw(-1);
  // The lists go back to the working folder without telling anyone: their handlers would write
  // the main window's folder memory.
  const QString here = cleanFolder(QDir::currentPath());
  Drive1.Drive.setRaw(DriveListBox::driveOf(here));
  Drive1.ListIndex.setRaw(static_cast<int>(Drive1.items().indexOf(Drive1.Drive.get())));
  Dir1.Path.setRaw(here);
  Dir1.Refresh();
  File1.Path.setRaw(here);
  File1.Pattern.setRaw("*.jpg");
  File1.Refresh();
}

void frmFile::unload() {
  markUnloaded();
  restoreDesign();
}

}  // namespace qp
