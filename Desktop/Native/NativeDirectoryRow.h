#pragma once

#include <QToolButton>
#include <QWidget>

class KivDialog;
class NativeEditor;

// The button beside a field for a directory, which lets a user choose one. It is there and can be used while
// its field is and can.
class NativeDirectoryButton : public QToolButton {
    Q_OBJECT

public:
    NativeDirectoryButton(QWidget& field, QWidget* parent);

protected:
    bool eventFilter(QObject* field, QEvent* event) override;

private:
    void Follow();

    QWidget& _field;
};

// A field for a directory and, beside it, the button that chooses one. It goes when the field goes.
class NativeDirectoryRow : public QWidget {
public:
    NativeDirectoryRow(KivDialog& node, QWidget* parent);

    NativeEditor& Field() const { return *_field; }

private:
    NativeEditor* _field; // a child
};
