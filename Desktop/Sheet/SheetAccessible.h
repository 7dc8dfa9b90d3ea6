#pragma once

#include <QAccessibleWidget>

class SheetView;

// What a screen reader is told of the sheet: a dial that holds the angle of the selected view,
// and within it the sketch.
class SheetAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SheetAccessible(SheetView& view);
    ~SheetAccessible() override;

    // Lets every SheetView of the process be described so; may be called again.
    static void Install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;

    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override { return 360.0; }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override;

private:
    SheetView& View() const;

    mutable QAccessible::Id _sketch = 0; // made when it is first asked for
};
