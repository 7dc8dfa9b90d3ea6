#include "Common/SettingsWatch.h"

#include "Common/ReachablePlace.h"
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
    connect(&_places, &QFileSystemWatcher::directoryChanged, &_soon, qOverload<>(&QTimer::start));
    connect(&_places, &QFileSystemWatcher::fileChanged, &_soon, qOverload<>(&QTimer::start));
    if (auto* const application = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) {
        connect(application, &QGuiApplication::applicationStateChanged, this,
                [this](Qt::ApplicationState state) {
                    if (state == Qt::ApplicationActive) Refresh();
                });
    }
    WatchPlaces();
}

void SettingsWatch::Refresh()
{
    const bool hasChanged = !_repository.Refresh().empty();
    WatchPlaces();
    if (hasChanged) emit Changed();
}

// Anew after each change: a directory may have come, and a replaced file is another one.
void SettingsWatch::WatchPlaces()
{
    QStringList wanted;
    for (const KivUnicodeString& file : _repository.Files()) {
        const std::string_view path = file.View();
        for (const std::string_view place : {path, path.substr(0, path.rfind('/'))}) {
            const QString found = ReachablePlace(KivUnicodeString(place));
            if (!found.isEmpty() && !wanted.contains(found)) wanted << found;
        }
    }
    QStringList old;
    for (const QString& place : _places.files() + _places.directories())
        if (!wanted.removeOne(place)) old << place;
    if (!old.isEmpty()) _places.removePaths(old);
    if (!wanted.isEmpty()) _places.addPaths(wanted);
}
