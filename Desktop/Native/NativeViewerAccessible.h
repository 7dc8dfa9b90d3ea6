#pragma once

#include <QAccessibleWidget>

class Kiv2DViewer;
class NativeViewer;

// What a screen reader is told of a viewer: a slider that holds the viewer's value.
class NativeViewerAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit NativeViewerAccessible(NativeViewer& viewer);

    // Lets every NativeViewer of the process be described so; may be called again.
    static void Install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    Kiv2DViewer* Viewer() const;
};
