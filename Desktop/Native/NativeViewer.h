#pragma once

#include "Native/NativeGraph.h"
#include "Native/NativePiece.h"

#include <QWidget>

#include <optional>

// A picture with a point that can be dragged, by the pointer from anywhere in it or by the keyboard: arrows
// move it a step, Home and End to its limits; Escape lets go of it where it was taken.
class NativeViewer : public QWidget, public NativePieceFor<Kiv2DViewer> {
public:
    NativeViewer(KivDialog& node, QWidget* parent);

    // For its accessible; null once it is gone.
    Kiv2DViewer* Viewer() const { return TreeNode(); }
    // Its picture as it lies in the widget now; only while there is a viewer.
    NativeGraph Graph() const;
    // The size that was given, larger for a font that is larger than usual.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void ShowNode() override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // What the pointer has taken.
    struct Grip {
        Kiv2DPoint offset; // from the pointer to the point
        Kiv2DPoint before; // where the point was
    };

    bool CanDrag() const;
    QFont CaptionFont() const;
    void DragTo(const QPointF& pointer);
    void LetGo();

    std::optional<Grip> _grip;
    Kiv2DValue _spoken; // what a screen reader was told last
};
