#pragma once

#include "Base/KivString.h"

#include <QRect>
#include <QString>

// What the options window remembers from one opening to the next: its place, the last page by the name of
// its editor, and where the windows of pages stood. A file that cannot be read or written is as good as none.
class OptionsMemory {
public:
    // The file; an empty path remembers nothing.
    explicit OptionsMemory(const QString& file = UserFile()) : _file(file) {}

    // kiv/desktop.ini in the user's configuration directory.
    static QString UserFile();

    QRect Place() const; // invalid when there is none
    KivString Page() const;
    void Remember(const QRect& place, const KivString& page) const;

    // The geometry of a page's window, by the name that it gives itself; invalid when there is none.
    QRect Window(const QString& name) const;
    void RememberWindow(const QString& name, const QRect& geometry) const;

private:
    QString _file;
};
