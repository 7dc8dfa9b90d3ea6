#include "SheetAccessible.h"

#include "SheetUnit.h"
#include "SheetView.h"

namespace {

QAccessibleInterface* Describe(const QString&, QObject* object)
{
    auto* const view = qobject_cast<SheetView*>(object);
    return view ? new SheetAccessible(*view) : nullptr; // Qt owns it
}

} // namespace

SheetAccessible::SheetAccessible(SheetView& view) : QAccessibleWidget(&view, QAccessible::Dial) {}

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
