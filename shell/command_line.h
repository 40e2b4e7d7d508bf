#pragma once
// The curve files named when the program is started, as a file manager names them
// on a double-click (Exec=gradewise %F) or a user does from a shell.

#include <QString>
#include <QStringList>

namespace gw {

// Each argument (the program's name already dropped) as an absolute, clean path.
// Relative ones are taken from `startFolder`, the folder the program was started
// in: start-up then moves to the program's own folder. A file: URL is taken as
// its local path.
QStringList CurveFileArguments(const QStringList& arguments, const QString& startFolder);

}  // namespace gw
