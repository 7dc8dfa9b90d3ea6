#pragma once

#include "Base/KivString.h"

#include <QSize>
#include <QString>

// What the options window remembers from one opening to the next: its size, and the last page by the name of
// its editor. A file that cannot be read or written is as good as none.
class OptionsMemory {
public:
    // The file; an empty path remembers nothing.
    explicit OptionsMemory(const QString& file = UserFile()) : _file(file) {}

    // kiv/desktop.ini in the user's configuration directory.
    static QString UserFile();

    QSize Size() const; // invalid when there is none
    KivString Page() const;
    void Remember(const QSize& size, const KivString& page) const;

private:
    QString _file;
};
