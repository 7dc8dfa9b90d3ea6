#include "Viewer/Kiv2DViewer.h"

#include <algorithm>

Kiv2DViewer::Kiv2DViewer(KivDialog* parent, const KivString& name, unsigned long style, int width, int height)
    : KivClass(parent, name, style), _width(std::max(width, 1)),
      _height(std::max(height, 1)), _world{0.0, 0.0, static_cast<double>(_width),
                                           static_cast<double>(_height)}
{}

void Kiv2DViewer::SetWorld(const Kiv2DRectangle& world)
{
    const Kiv2DPoint size{world.Width(), world.Height()};
    if (!size.IsFinite() || !(size.x > 0.0) || !(size.y > 0.0)) return;
    _world = world;
    Changed();
}

void Kiv2DViewer::SetActiveManipulator(Kiv2DManipulator* manipulator)
{
    _manipulator = manipulator;
    Changed();
}

void Kiv2DViewer::SetValue(const Kiv2DValue& value)
{
    _value = value;
    Changed();
}
