#pragma once
// File names as the disk holds them: bytes, usually but not always UTF-8. A name that is not valid
// UTF-8 (a Latin-1 "caf\xe9.bmp", a stray 0xFF) still lists and opens: each byte that does not
// decode is kept in the name as one character of U+DC80..U+DCFF, which no valid UTF-8 name can
// hold, so that the name goes back to exactly its bytes when the file is opened.
#include <QByteArray>
#include <QString>

namespace qp {

// The name of the bytes: UTF-8, with the bytes that do not decode kept as above.
QString nameFromBytes(const QByteArray& raw);
// The bytes of a name or a path, for the system calls that open and look at files.
QByteArray bytesOfName(const QString& name);
// The name as a person reads it: the kept bytes shown as the Latin-1 letters they most often are.
QString readableName(const QString& name);

}  // namespace qp
