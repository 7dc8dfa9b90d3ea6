#include "DirectoryPath.h"

#include "NativeText.h"
#include "ReachablePlace.h"

#include <QDir>

DirectoryPath::DirectoryPath(const QString& typed) : _isEmpty(typed.isEmpty())
{
    if (_isEmpty) return;
    _wanted = QDir::cleanPath(QDir::current().absoluteFilePath(typed)) + "/.";
    _found = ReachablePlace(FromQt(_wanted));
}

bool DirectoryPath::IsMissing() const
{
    return !_isEmpty && !_found.isEmpty() && _found != _wanted;
}

QString DirectoryPath::Start() const
{
    if (_found.isEmpty()) return QDir::homePath();
    const QFileInfo found(_found);
    return found.isDir() ? QDir::cleanPath(_found) : found.absolutePath();
}
