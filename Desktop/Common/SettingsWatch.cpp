#include "Common/SettingsWatch.h"

#include "Common/ReachablePath.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingRepository.h"

#include <QGuiApplication>

namespace {

constexpr int kSoon = 30; // milliseconds

} // namespace

SettingsWatch::SettingsWatch(KivSettingRepository& repository) : _repository(repository)
{
    _soon.setSingleShot(true);
    _soon.setInterval(kSoon);
    connect(&_soon, &QTimer::timeout, this, &SettingsWatch::Refresh);
    connect(&_watcher, &QFileSystemWatcher::directoryChanged, &_soon, qOverload<>(&QTimer::start));
    connect(&_watcher, &QFileSystemWatcher::fileChanged, &_soon, qOverload<>(&QTimer::start));
    if (auto* const application = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::applicationStateChanged, this,
                [this](Qt::ApplicationState state) {
                    if (state == Qt::ApplicationActive) Refresh();
                });
    }
    WatchPaths();
}

void SettingsWatch::Refresh()
{
    const bool hasChanged = !_repository.Refresh().empty();
    WatchPaths();
    if (hasChanged) emit Changed();
}

// Anew after each change: a directory may have come, and a replaced file is another one.
void SettingsWatch::WatchPaths()
{
    QStringList wanted;
    for (const KivUnicodeString& file : _repository.Files()) {
        const std::string_view path = file.View();
        for (const std::string_view watched : {path, path.substr(0, path.rfind('/'))}) {
            const QString found = ReachablePath(KivUnicodeString(watched));
            if (!found.isEmpty() && !wanted.contains(found)) wanted << found;
        }
    }
    QStringList old;
    for (const QString& path : _watcher.files() + _watcher.directories())
        if (!wanted.removeOne(path)) old << path;
    if (!old.isEmpty()) _watcher.removePaths(old);
    if (!wanted.isEmpty()) _watcher.addPaths(wanted);
}
