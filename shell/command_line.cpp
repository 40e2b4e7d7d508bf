#include "shell/command_line.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace gw {

QStringList CurveFileArguments(const QStringList& arguments, const QString& startFolder) {
    QStringList paths;
    const QDir start(startFolder);
    for (const QString& argument : arguments) {
        // Some launchers hand over URLs even for local files.
        const QUrl url(argument);
        const QString path = url.isLocalFile() ? url.toLocalFile() : argument;
        // An empty argument stays empty: it names no file and is reported as missing.
        paths << (path.isEmpty() ? path : QDir::cleanPath(start.absoluteFilePath(path)));
    }
    return paths;
}

}  // namespace gw
