#pragma once
// The three lists that browse the disk: drives, folders, files. Each is a list box whose entries
// come from the file system; they know nothing of one another, the program links them through
// their Change events (`Dir1.Path = Drive1.Drive`, `File1.Path = Dir1.Path`).
//
// Our separator is '/'. On this system "/" and the user's home folder stand in for drives.
#include <QString>
#include <QStringList>

#include "platform/Controls.h"

namespace qp {

// The drives. Drive is one of the listed roots; choosing an entry (ListIndex) sets it.
// Change is raised when Drive really changes. A drive that is not there is refused (error 68).
class DriveListBox : public ListBox {
 public:
  DriveListBox(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::DriveListBox; }
  Prop<QString> Drive{this};
  std::function<void()> Change;

  // The drive a folder lies on: the home folder for anything under it, else "/".
  static QString driveOf(const QString& folder);
};

// The folders: the chain from the root down to Path, then Path's own sub-folders. Choosing an
// entry moves Path there, so one click opens a folder. Path refuses a folder that is not there
// (error 76) and raises Change only on a real move.
class DirListBox : public ListBox {
 public:
  DirListBox(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::DirListBox; }
  Prop<QString> Path{this};
  std::function<void()> Change;
  void Refresh();
  // The folder behind an entry; "" outside the list.
  QString folderAt(int index) const;

 private:
  QStringList folders_;
};

// The files of Path whose names fit Pattern (one pattern, case-blind, as "*.bmp"). Only plain
// files are listed: folders, devices and pipes never, even when their name fits. FileName is the
// chosen entry; choosing one raises Click (as any list does). A new Path or Pattern lists again,
// keeping the chosen name chosen when it is still there.
class FileListBox : public ListBox {
 public:
  FileListBox(Form* form, Control* parent, QString name, int index = -1);
  ControlKind kind() const override { return ControlKind::FileListBox; }
  Prop<QString> Path{this};
  Prop<QString> Pattern{this, "*.*"};
  QString FileName() const { return Text(); }
  void Refresh();
};

// A folder as the lists hold it: absolute, clean, with '/' between names.
QString cleanFolder(const QString& folder);

}  // namespace qp
