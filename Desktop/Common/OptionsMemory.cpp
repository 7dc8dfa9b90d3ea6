#include "Common/OptionsMemory.h"

#include <QSettings>
#include <QStandardPaths>

namespace {

constexpr const char* kPlace = "Options/Place";
constexpr const char* kPage = "Options/Page";
constexpr const char* kWindow = "Options/Window/";

} // namespace

QString OptionsMemory::UserFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/kiv/desktop.ini";
}

QRect OptionsMemory::Place() const
{
    return _file.isEmpty() ? QRect() : QSettings(_file, QSettings::IniFormat).value(kPlace).toRect();
}

KivString OptionsMemory::Page() const
{
    if (_file.isEmpty()) return {};
    const QString page = QSettings(_file, QSettings::IniFormat).value(kPage).toString();
    return KivString(page.toStdString());
}

void OptionsMemory::Remember(const QRect& place, const KivString& page) const
{
    if (_file.isEmpty()) return;
    QSettings file(_file, QSettings::IniFormat);
    file.setValue(kPlace, place);
    file.setValue(kPage, QString::fromUtf8(page.ConvertToChar()));
}

QRect OptionsMemory::Window(const QString& name) const
{
    return _file.isEmpty() ? QRect() : QSettings(_file, QSettings::IniFormat).value(kWindow + name).toRect();
}

void OptionsMemory::RememberWindow(const QString& name, const QRect& geometry) const
{
    if (!_file.isEmpty()) QSettings(_file, QSettings::IniFormat).setValue(kWindow + name, geometry);
}
