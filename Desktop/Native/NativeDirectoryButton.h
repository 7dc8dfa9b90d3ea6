#pragma once

#include <QToolButton>

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
