#pragma once

#include <QAccessibleWidget>

class NativeCombo;

// What a screen reader is told of a combo: its own name, and the chosen line as a text that can be read. The
// toolkit's gives the line for the name.
class NativeComboAccessible : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit NativeComboAccessible(NativeCombo& combo);

    // Lets every NativeCombo of the process be described so; may be called again.
    static void Install();

    void* interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    // The list that opens.
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

    QString text(int start, int end) const override;
    int characterCount() const override;
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    NativeCombo& Combo() const;
};
