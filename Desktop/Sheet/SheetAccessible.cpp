#include "Sheet/SheetAccessible.h"

#include "Common/NativeText.h"
#include "Sheet/SheetUnit.h"
#include "Sheet/SheetView.h"

#include <QWindow>

namespace {

QAccessibleInterface* Describe(const QString&, QObject* object)
{
    auto* const view = qobject_cast<SheetView*>(object);
    return view ? new SheetAccessible(*view) : nullptr; // Qt owns it
}

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

SheetAccessible::SheetAccessible(SheetView& view) : QAccessibleWidget(&view, QAccessible::Dial) {}

SheetAccessible::~SheetAccessible()
{
    if (_sketch) QAccessible::deleteAccessibleInterface(_sketch);
}

void SheetAccessible::Install()
{
    QAccessible::removeFactory(&Describe);
    QAccessible::installFactory(&Describe);
}

SheetView& SheetAccessible::View() const
{
    return *static_cast<SheetView*>(widget());
}

void* SheetAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString SheetAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? SheetUnit::PrintAngle(View().Rotation())
                                      : QAccessibleWidget::text(kind);
}

QAccessibleInterface* SheetAccessible::child(int index) const
{
    if (index != 0) return nullptr;
    if (!_sketch) _sketch = QAccessible::registerAccessibleInterface(new SheetSketchAccessible(View()));
    return QAccessible::accessibleInterface(_sketch);
}

QAccessibleInterface* SheetAccessible::childAt(int x, int y) const
{
    QAccessibleInterface* const sketch = child(0);
    return sketch->rect().contains(x, y) ? sketch : nullptr;
}

int SheetAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    return child && child == this->child(0) ? 0 : -1;
}

QVariant SheetAccessible::currentValue() const
{
    return View().Rotation();
}

void SheetAccessible::setCurrentValue(const QVariant& value)
{
    View().SetRotation(value.toDouble());
}

QVariant SheetAccessible::minimumStepSize() const
{
    const double snap = View().Style().snapAngle;
    return snap > 0.0 ? snap : 1.0;
}

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
