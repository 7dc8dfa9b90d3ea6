#pragma once

#include "Viewer/Kiv2DRepresentation.h"
#include "Viewer/Kiv2DViewer.h"

#include <QFont>
#include <QPalette>
#include <QPointF>
#include <QRectF>

class QPainter;

// The picture of a viewer's world in a rectangle of the window: what lies where, and how it is painted in the
// colors of a theme.
class NativeGraph {
public:
    NativeGraph(const Kiv2DViewer& viewer, const QRectF& area);

    QPointF ToWindow(const Kiv2DPoint& point) const;
    Kiv2DPoint ToWorld(const QPointF& point) const;

    // How far from the middle of the handle a press still means it, in pixels.
    qreal Reach() const { return kReach * _enlarged; }

    struct Look {
        QPalette palette;
        QPalette::ColorGroup group = QPalette::Active; // Disabled: gray
        QFont font;
        bool isHeld = false; // the user has the handle in his hand, or could take it
    };
    void Paint(QPainter& painter, const Look& look) const;

private:
    class Canvas;
    static constexpr qreal kReach = 9.0;

    const Kiv2DViewer& _viewer;
    QRectF _area;
    double _scale;   // pixels for a unit of the world
    qreal _enlarged; // the picture, against the size that the viewer asks for; 1 at least
};
