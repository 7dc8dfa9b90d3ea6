#pragma once

#include "Dialog/KivUserHand.h"

class Kiv2DViewer;

// What a user does to the point of a viewer's active manipulator; refused like everything of his hand, and
// where there is nothing to drag. Viewer, manipulator and point may be gone afterwards, if a listener wants
// it so.
namespace KivUserHand {

// Drags it to a place in the world, wherever that lies; one that is not finite is refused.
KivHandAnswer Drag(Kiv2DViewer& viewer, double x, double y);
// The arrow keys: so many steps of the manipulator, back if negative; ends at the limits of its range.
KivHandAnswer Step(Kiv2DViewer& viewer, int steps);
// Where a screen reader sets the viewer's value: drags it to the place that stands for it. A value beyond
// the range means its end.
KivHandAnswer Enter(Kiv2DViewer& viewer, double value);

} // namespace KivUserHand
