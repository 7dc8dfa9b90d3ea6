#pragma once

#include <QAccessibleInterface>
#include <QPointer>

class SheetView;

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
