#pragma once
// Pictures named on the command line (`quillora picture.bmp`, or a file manager's "Open with").
#include <QString>
#include <QStringList>
#include <QTextStream>

namespace qp {

class Program;

// Opens the one picture named, exactly as a drop of that file on the canvas would (title, canvas
// size, undo). Anything else (several files, a missing or unreadable one) leaves the blank canvas
// as it started and tells why in a message box and on err. Returns that message, empty when the
// picture opened or when none was named.
QString openCommandLineFiles(Program& program, const QStringList& files, QTextStream& err);

}  // namespace qp
