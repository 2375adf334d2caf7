// The disk lists: what they list, and when they refuse a place or tell of a change.
#include "platform/FileControls.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <dirent.h>
#include <sys/stat.h>

#include "platform/FileNames.h"

namespace qp {

namespace {
constexpr int kDeviceUnavailable = 68;
constexpr int kPathNotFound = 76;

void refuseIndex() { raiseError(RuntimeError::InvalidPropertyValue, "Invalid property value"); }

bool isFolder(const QString& path) { return !path.isEmpty() && QFileInfo(path).isDir(); }
}  // namespace

QString cleanFolder(const QString& folder) {
  return QDir::cleanPath(QDir(folder).absolutePath());
}

// ---- drives ----

QString DriveListBox::driveOf(const QString& folder) {
  const QString home = cleanFolder(QDir::homePath());
  const QString f = cleanFolder(folder);
  if (home != "/" && (f == home || f.startsWith(home + "/"))) return home;
  return "/";
}

DriveListBox::DriveListBox(Form* form, Control* parent, QString name, int index)
    : ListBox(form, parent, std::move(name), index) {
  AddItem("/");
  const QString home = cleanFolder(QDir::homePath());
  if (home != "/") AddItem(home);
  Drive.setRaw(driveOf(QDir::currentPath()));
  ListIndex.setRaw(static_cast<int>(items().indexOf(Drive.get())));

  Drive.setSetter([this](const QString& v) {
    if (!isFolder(v)) raiseError(kDeviceUnavailable, "Device unavailable");
    const QString d = cleanFolder(v);
    if (!items().contains(d)) AddItem(d);
    ListIndex.setRaw(static_cast<int>(items().indexOf(d)));
    if (d == Drive.get()) return;
    Drive.setRaw(d);
    if (Change) Change();
  });
  ListIndex.setSetter([this](const int& v) {
    if (v < -1 || v >= ListCount()) refuseIndex();
    if (v >= 0) Drive = List(v);
  });
}

// ---- folders ----

DirListBox::DirListBox(Form* form, Control* parent, QString name, int index)
    : ListBox(form, parent, std::move(name), index) {
  Path.setRaw(cleanFolder(QDir::currentPath()));
  Refresh();
  Path.setSetter([this](const QString& v) {
    if (!isFolder(v)) raiseError(kPathNotFound, "Path not found");
    const QString p = cleanFolder(v);
    if (p == Path.get()) return;
    Path.setRaw(p);
    Refresh();
    if (Change) Change();
  });
  // Choosing a folder opens it; the list then shows that folder's place and its sub-folders.
  ListIndex.setSetter([this](const int& v) {
    if (v < -1 || v >= ListCount()) refuseIndex();
    if (v < 0) return;
    const QString target = folderAt(v);
    if (target == Path.get()) {
      ListIndex.setRaw(v);
      return;
    }
    Path = target;
  });
}

void DirListBox::Refresh() {
  Clear();
  folders_.clear();
  const QString path = Path.get();
  // The chain from the root, each step indented one more, so that the way back up is one click.
  QStringList chain;
  for (QString p = path;; p = QFileInfo(p).path()) {
    chain.prepend(p);
    if (p == "/" || QFileInfo(p).path() == p) break;
  }
  int depth = 0;
  for (const QString& p : chain) {
    const QString label = p == "/" ? QString("/") : QFileInfo(p).fileName();
    AddItem(QString(depth * 2, ' ') + label);
    folders_ << p;
    ++depth;
  }
  const int here = ListCount() - 1;
  const QString prefix = path == "/" ? QString("/") : path + "/";
  const QStringList subs =
      QDir(path).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
  for (const QString& name : subs) {
    AddItem(QString(depth * 2, ' ') + name);
    folders_ << prefix + name;
  }
  ListIndex.setRaw(here);
}

QString DirListBox::folderAt(int index) const {
  if (index < 0 || index >= folders_.size()) return QString();
  return folders_.at(index);
}

// ---- files ----

FileListBox::FileListBox(Form* form, Control* parent, QString name, int index)
    : ListBox(form, parent, std::move(name), index) {
  Path.setRaw(cleanFolder(QDir::currentPath()));
  Refresh();
  Path.setSetter([this](const QString& v) {
    if (!isFolder(v)) raiseError(kPathNotFound, "Path not found");
    Path.setRaw(cleanFolder(v));
    Clear();  // another folder: nothing chosen there yet
    Refresh();
  });
  Pattern.setSetter([this](const QString& v) {
    Pattern.setRaw(v);
    Refresh();
  });
}

void FileListBox::Refresh() {
  // A chosen name that is still listed stays chosen, quietly: listing again is not a click.
  const QString chosen = FileName();
  Clear();
  // The pattern is case-blind: "*.bmp" lists "SKY.BMP" too.
  const QRegularExpression fits = QRegularExpression::fromWildcard(Pattern.get(), Qt::CaseInsensitive);
  // The program's file lists are picture lists: a pattern that chooses bitmaps or JPEGs lists the
  // PNG files beside them, which every picture path opens too.
  const bool pictures = Pattern.get().endsWith("bmp", Qt::CaseInsensitive) || Pattern.get().endsWith("jpg", Qt::CaseInsensitive);
  const QRegularExpression png = QRegularExpression::fromWildcard(u"*.png", Qt::CaseInsensitive);
  QStringList names;
  // The folder is read by its bytes, so that a name that is not UTF-8 is listed too. Each entry is
  // looked at through any link: only what is (or leads to) a plain file is listed, never a folder,
  // a pipe or a device, whatever its name.
  if (DIR* dir = ::opendir(bytesOfName(Path.get()).constData())) {
    while (const dirent* e = ::readdir(dir)) {
      const QByteArray raw(e->d_name);
      if (raw.startsWith('.')) continue;  // hidden files, and the folder and its parent
      struct stat st {};
      if (::fstatat(::dirfd(dir), e->d_name, &st, 0) != 0 || !S_ISREG(st.st_mode)) continue;
      const QString name = nameFromBytes(raw);
      // Matched as shown: the kept bytes are not text the pattern matcher takes.
      const QString shown = readableName(name);
      if (fits.match(shown).hasMatch() || (pictures && png.match(shown).hasMatch())) names << name;
    }
    ::closedir(dir);
  }
  std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
    const int c = a.compare(b, Qt::CaseInsensitive);
    return c != 0 ? c < 0 : a < b;
  });
  for (const QString& name : names) AddItem(name);
  if (!chosen.isEmpty()) ListIndex.setRaw(static_cast<int>(items().indexOf(chosen)));
}

}  // namespace qp
