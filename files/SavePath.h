#pragma once
// Where a picture goes when the user saves: the folder of the dialog, the name typed, and the
// .bmp ending the program always writes.
#include <QString>

namespace qp {

// The text between a folder and a name: nothing when the folder already ends in the separator
// (the root does), else one '/'.
QString folderSeparator(const QString& folder);
// folder + separator + name.
QString joinPath(const QString& folder, const QString& name);

struct SavePath {
  bool refused = false;  // the name ends in .jpg (any case): the program writes bitmaps only
  QString name;          // the name to show in the dialog: "Untitled" for an empty one
  QString path;          // the full path to write, when not refused
};
// Composes the path of a save. ".bmp" is appended unless the name already ends in it (any case);
// every other ending stays in front of it ("a.gif" gives "a.gif.bmp").
SavePath ComposeSavePath(const QString& folder, const QString& typedName);

// The message shown for a refused .jpg name.
QString jpgRefusalMessage();

}  // namespace qp
