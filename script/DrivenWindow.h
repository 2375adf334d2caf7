#pragma once
// `quillora --drive FILE`, not shown in the usage: the program in its window, as a user starts it
// (with the recovery copy kept and offered), driven by a script instead of a user. Message boxes
// are printed and answered with their first button, as in a headless run; each recovery copy
// written prints "recovery written". When the script ends the program exits normally, unless the
// script ended it first. Tests use it to crash a real window at a moment of their choosing.
#include <QString>

namespace qp::script {

int runDrivenWindow(const QString& file);

}  // namespace qp::script
