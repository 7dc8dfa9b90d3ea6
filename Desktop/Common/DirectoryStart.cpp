#include "Common/DirectoryStart.h"

#include "Common/NativeText.h"
#include "Common/ReachablePath.h"

#include <QDir>

QString DirectoryStart(const QString& typed)
{
    const QString wanted = QDir::cleanPath(QDir::current().absoluteFilePath(typed));
    const QString reached = typed.isEmpty() ? QString() : ReachablePath(FromQt(wanted));
    if (reached.isEmpty()) return QDir::homePath();
    const QFileInfo found(reached);
    return found.isDir() ? QDir::cleanPath(reached) : found.absolutePath();
}
