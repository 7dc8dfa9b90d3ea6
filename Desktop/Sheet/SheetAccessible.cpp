#include "Sheet/SheetAccessible.h"

#include "Sheet/SheetSketchAccessible.h"
#include "Sheet/SheetUnit.h"
#include "Sheet/SheetView.h"

namespace {

QAccessibleInterface* Describe(const QString&, QObject* object)
{
    auto* const view = qobject_cast<SheetView*>(object);
    return view ? new SheetAccessible(*view) : nullptr; // Qt owns it
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
