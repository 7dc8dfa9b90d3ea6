#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

class KivSettingRepository;

// Takes over what other processes save: the file system tells of the directories in which settings stand,
// and whatever it does not tell of (a share) is looked at when the user comes back to the program.
class SettingsWatch : public QObject {
    Q_OBJECT

public:
    // The repository is to outlive this object.
    explicit SettingsWatch(KivSettingRepository& repository);

    // Looks now.
    void Refresh();

signals:
    // Some setting has another value or another lock.
    void Changed();

private:
    void WatchPaths();

    KivSettingRepository& _repository;
    QFileSystemWatcher _watcher;
    QTimer _soon; // a save touches a directory several times
};
