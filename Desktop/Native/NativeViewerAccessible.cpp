#include "Native/NativeViewerAccessible.h"

#include "Common/NativeText.h"
#include "Native/NativeViewer.h"
#include "Viewer/KivUserHandViewer.h"

namespace {

QAccessibleInterface* Describe(const QString&, QObject* object)
{
    auto* const viewer = dynamic_cast<NativeViewer*>(object);
    return viewer ? new NativeViewerAccessible(*viewer) : nullptr; // Qt owns it
}

} // namespace

NativeViewerAccessible::NativeViewerAccessible(NativeViewer& viewer)
    : QAccessibleWidget(&viewer, QAccessible::Slider)
{}

void NativeViewerAccessible::Install()
{
    QAccessible::removeFactory(&Describe);
    QAccessible::installFactory(&Describe);
}

// Null once the node is gone.
Kiv2DViewer* NativeViewerAccessible::Viewer() const
{
    return static_cast<NativeViewer*>(widget())->Viewer();
}

void* NativeViewerAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QString NativeViewerAccessible::text(QAccessible::Text kind) const
{
    if (kind != QAccessible::Value) return QAccessibleWidget::text(kind);
    return Viewer() ? ToQt(Viewer()->GetValue().text) : QString();
}

QVariant NativeViewerAccessible::currentValue() const
{
    return Viewer() ? Viewer()->GetValue().current : QVariant();
}

void NativeViewerAccessible::setCurrentValue(const QVariant& value)
{
    if (Viewer()) KivUserHand::Enter(*Viewer(), value.toDouble());
}

QVariant NativeViewerAccessible::maximumValue() const
{
    return Viewer() ? Viewer()->GetValue().maximum : QVariant();
}

QVariant NativeViewerAccessible::minimumValue() const
{
    return Viewer() ? Viewer()->GetValue().minimum : QVariant();
}

QVariant NativeViewerAccessible::minimumStepSize() const
{
    const Kiv2DManipulator* manipulator = Viewer() ? Viewer()->GetActiveManipulator() : nullptr;
    if (!manipulator) return 0.0;
    const Kiv2DValue& range = Viewer()->GetValue();
    return manipulator->GetStep().x * (range.maximum - range.minimum) /
           (manipulator->GetGreatest() - manipulator->GetLeast());
}
