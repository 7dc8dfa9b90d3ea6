#include "Viewer/KivUserHandViewer.h"

#include "Base/KivTextCatalogue.h"
#include "Dialog/KivHandReach.h"
#include "Viewer/Kiv2DViewer.h"

#include <algorithm>

namespace {

KivHandAnswer ReachPoint(const Kiv2DViewer& viewer)
{
    const KivHandAnswer reach = KivHandReach::Reach(viewer);
    if (!reach) return reach;
    const Kiv2DManipulator* manipulator = viewer.GetActiveManipulator();
    if (!manipulator || manipulator->IsCondemned() || !manipulator->GetPoint())
        return KivHandReach::Refused(KivTextCatalogue::FrameworkText("HandNothingToDrag"));
    return reach;
}

} // namespace

KivHandAnswer KivUserHand::Drag(Kiv2DViewer& viewer, double x, double y)
{
    const KivHandAnswer reach = ReachPoint(viewer);
    if (!reach) return reach;
    const Kiv2DPoint point{x, y};
    if (!point.IsFinite()) return KivHandReach::Refused(KivTextCatalogue::FrameworkText("HandNoSuchPoint"));
    Kiv2DManipulator& manipulator = *viewer.GetActiveManipulator();
    if (point == manipulator.GetOrigin()) return reach;
    const KivWeakPtr<Kiv2DViewer> stays(&viewer);
    manipulator.MoveTo(point);
    if (stays) viewer.Redraw();
    return reach;
}

KivHandAnswer KivUserHand::Step(Kiv2DViewer& viewer, int steps)
{
    const KivHandAnswer reach = ReachPoint(viewer);
    if (!reach) return reach;
    const Kiv2DPoint point = viewer.GetActiveManipulator()->AfterSteps(steps);
    return Drag(viewer, point.x, point.y);
}

KivHandAnswer KivUserHand::Enter(Kiv2DViewer& viewer, double value)
{
    const KivHandAnswer reach = ReachPoint(viewer);
    if (!reach) return reach;
    const Kiv2DManipulator& manipulator = *viewer.GetActiveManipulator();
    const Kiv2DValue& range = viewer.GetValue();
    const double part = std::clamp((value - range.minimum) / (range.maximum - range.minimum), 0.0, 1.0);
    const double least = manipulator.GetLeast();
    return Drag(viewer, least + part * (manipulator.GetGreatest() - least), manipulator.GetOrigin().y);
}
