#pragma once

#include <QSizeF>
#include <QString>
#include <span>

// A size of paper.
struct SheetFormat {
    const char* name;
    double longSide, shortSide; // mm

    static std::span<const SheetFormat> All();
    // The format of a name, A3 for any other.
    static const SheetFormat& Named(const QString& name);

    QSizeF Size(bool isLandscape) const;
};
