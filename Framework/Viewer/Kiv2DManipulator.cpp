#include "Viewer/Kiv2DManipulator.h"

#include <algorithm>

void Kiv2DManipulator::SetStep(double x, double y)
{
    const Kiv2DPoint step{x, y};
    if (step.IsFinite()) _step = step;
}

void Kiv2DManipulator::SetRange(double least, double greatest)
{
    if (!(least <= greatest)) return;
    _least = least;
    _greatest = greatest;
}

Kiv2DPoint Kiv2DManipulator::AfterSteps(int steps) const
{
    const Kiv2DPoint from = GetOrigin();
    if (_step.x == 0.0) return {from.x, from.y + steps * _step.y};
    const double x = std::clamp(from.x + steps * _step.x, _least, _greatest);
    // A step that the range cuts short is cut in both directions.
    return {x, from.y + (x - from.x) / _step.x * _step.y};
}

void Kiv2DManipulator::MoveTo(const Kiv2DPoint& point)
{
    if (!_point) return;
    _point->SetOrigin(point);
    SendNotification(&_manipulated);
}
