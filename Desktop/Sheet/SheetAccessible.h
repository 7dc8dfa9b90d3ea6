#pragma once

#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <QPointer>

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

// What a screen reader is told of the sketch on a sheet: a picture, with what the settings let it show.
class SheetSketchAccessible : public QAccessibleInterface {
public:
    explicit SheetSketchAccessible(SheetView& view);

    bool isValid() const override { return _view; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;

    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    // On the screen; empty while the sketch is out of sight.
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::Graphic; }
    QAccessible::State state() const override;

private:
    QPointer<SheetView> _view;
};
