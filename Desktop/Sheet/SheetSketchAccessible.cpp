#include "Sheet/SheetSketchAccessible.h"

#include "Common/NativeText.h"
#include "Sheet/SheetView.h"

#include <QWindow>

namespace {

// In the order of SheetConstraint.
constexpr const char* kConstraints[] = {
    "ConstraintHorizontal", "ConstraintVertical",   "ConstraintParallel", "ConstraintPerpendicular",
    "ConstraintConcentric", "ConstraintCoincident", "ConstraintTangent",  "ConstraintSymmetric"};
static_assert(std::size(kConstraints) == kSheetConstraints);

QString Description(const SheetSketchStyle& style)
{
    QStringList shown, constraints;
    const auto add = [&shown](bool isShown, const char* key) {
        if (isShown) shown << DraftingText(key);
    };
    for (std::size_t i = 0; i < kSheetConstraints; ++i)
        if (style.constraints[i] && style.symbolSize > 0.0) constraints << DraftingText(kConstraints[i]);
    if (!constraints.isEmpty()) shown << DraftingText("SketchConstraints").arg(constraints.join(", "));
    add(style.diagnoses, "SketchDiagnostics");
    add(style.centers, "SketchCenters");
    add(style.endPoints, "SketchEndPoints");
    add(style.drags, "SketchDrags");
    add(style.position, "SketchPosition");
    return shown.isEmpty() ? DraftingText("SketchBare") : shown.join("; ");
}

} // namespace

SheetSketchAccessible::SheetSketchAccessible(SheetView& view) : _view(&view) {}

QWindow* SheetSketchAccessible::window() const
{
    return _view ? _view->window()->windowHandle() : nullptr;
}

QAccessibleInterface* SheetSketchAccessible::parent() const
{
    return QAccessible::queryAccessibleInterface(_view);
}

QString SheetSketchAccessible::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name) return DraftingText("SketchName");
    return kind == QAccessible::Description && _view ? Description(_view->Sketch()) : QString();
}

QRect SheetSketchAccessible::rect() const
{
    if (!_view) return {};
    const QRectF seen = _view->SketchFrame().intersected(_view->Camera().Area());
    return QRect(_view->mapToGlobal(seen.topLeft().toPoint()), seen.size().toSize());
}

QAccessible::State SheetSketchAccessible::state() const
{
    QAccessible::State state;
    state.readOnly = true;
    state.invisible = !_view || !_view->isVisible();
    state.offscreen = rect().isEmpty();
    return state;
}
