#include "Common/ReachablePath.h"

#include "Common/NativeText.h"
#include "Disk/KivTimedReading.h"

#include <QDir>

#include <algorithm>
#include <unistd.h>

QString ReachablePath(const KivUnicodeString& path)
{
    const auto look = [](const KivUnicodeString& wanted) {
        KivFileContent found;
        std::string_view at = wanted.View();
        while (at.size() > 1 && access(std::string(at).c_str(), F_OK) != 0)
            at = at.substr(0, std::max<std::size_t>(at.rfind('/'), 1));
        found.text = at;
        found.state = KivFileContent::State::Read;
        return found;
    };
    const KivFileContent found = std::move(KivReadInTime({path}, std::chrono::milliseconds(200), look)[0]);
    return found.state == KivFileContent::State::Read ? ToQt(KivUnicodeString(found.text)) : QString();
}

QString DirectoryStart(const QString& typed)
{
    const QString wanted = QDir::cleanPath(QDir::current().absoluteFilePath(typed));
    const QString reached = typed.isEmpty() ? QString() : ReachablePath(FromQt(wanted));
    if (reached.isEmpty()) return QDir::homePath();
    const QFileInfo found(reached);
    return found.isDir() ? QDir::cleanPath(reached) : found.absolutePath();
}
