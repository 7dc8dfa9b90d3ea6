#pragma once

#include "Base/KivString.h"

#include <QByteArray>
#include <QColor>
#include <QHash>
#include <QIcon>
#include <QPixmap>

// The icons of pages, groups and controls: icons/<name>.svg of any module, whose "currentColor" is drawn in
// the color of the text around it. An icon that is missing or damaged is reported once and leaves its space
// empty.
class IconStore {
public:
    static IconStore& Shared();

    // The icon of a name, which follows the palette; a null one for an empty name or a missing file.
    QIcon Icon(const KivString& name);
    // The same as a picture of so many device pixels, in one color; null likewise.
    QPixmap Picture(const KivString& name, const QSize& pixels, const QColor& ink);
    // The size that it is drawn for, at scale 1; empty likewise.
    QSize Size(const KivString& name);

private:
    const QByteArray& Drawing(const KivString& name);

    QHash<QString, QByteArray> _drawings; // by name; empty for those that are missing
    QHash<QString, QPixmap> _pictures;
};
