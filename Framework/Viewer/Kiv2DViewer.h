#pragma once

#include "Dialog/KivDlgControl.h"
#include "Viewer/Kiv2DBag.h"
#include "Viewer/Kiv2DManipulator.h"

// What a viewer says to those who cannot see it: a number in its range, and how it is called.
struct Kiv2DValue {
    double minimum = 0.0;
    double maximum = 0.0;
    double current = 0.0;
    KivUnicodeString text;

    friend bool operator==(const Kiv2DValue&, const Kiv2DValue&) = default;
};

// A picture of a part of a flat world, with a point in it that a user may drag. Owns what it shows. The world
// keeps its proportions and is not mirrored where writing runs from right to left.
class Kiv2DViewer : public KivClass<Kiv2DViewer, KivDlgControl> {
public:
    static constexpr const char* Name = "Kiv2DViewer";
    // Width and height in pixels at scale 1. It shows as many units of the world until it is told otherwise.
    Kiv2DViewer(KivDialog* parent, const KivString& name, unsigned long style, int width, int height);

    int GetWidth() const { return _width; }
    int GetHeight() const { return _height; }

    // What is seen at least, in the middle of the picture. An empty rectangle, or one without bounds, is
    // ignored.
    void SetWorld(const Kiv2DRectangle& world);
    const Kiv2DRectangle& GetWorld() const { return _world; }

    // What is shown; never null. It lives as long as the viewer.
    Kiv2DBag* GetRoot() { return &_root; }
    const Kiv2DBag* GetRoot() const { return &_root; }

    // Whose point a user drags; not owned, null for none.
    void SetActiveManipulator(Kiv2DManipulator* manipulator);
    Kiv2DManipulator* GetActiveManipulator() const { return _manipulator.Get(); }

    // For screen readers. The least value stands for the least place of the manipulator's range and the
    // greatest for its greatest; between them values lie evenly. Who moves the point sets it.
    void SetValue(const Kiv2DValue& value);
    const Kiv2DValue& GetValue() const { return _value; }

    // Shows the representations as they are now.
    void Redraw() { Changed(); }

private:
    int _width, _height;
    Kiv2DRectangle _world;
    Kiv2DBag _root;
    KivWeakPtr<Kiv2DManipulator> _manipulator;
    Kiv2DValue _value;
};
