#pragma once

#include <QPointF>
#include <QString>

class QPainter;
class SheetCamera;

// A line of text on paper, as a camera sees it.
struct SheetText {
    double height;      // mm of paper
    double angle = 0.0; // degrees, anticlockwise
    Qt::Alignment alignment = Qt::AlignCenter;

    // Around or beside a position in the window. Texts too small to be read are left out.
    void Paint(QPainter& painter, const SheetCamera& camera, QPointF at, const QString& text) const;
};
