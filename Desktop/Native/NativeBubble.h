#pragma once

#include <QFrame>

class QAction;
class QLabel;
class QLineEdit;

// The warning sign at the end of a line whose text has something wrong with it.
class NativeMark {
public:
    // The line outlives it.
    explicit NativeMark(QLineEdit& line) : _line(line) {}

    // Shows it with the reason as its tooltip, or takes it away when that is empty.
    void Say(const QString& why);

private:
    QLineEdit& _line;
    QAction* _sign =
        nullptr; // the line's; made when it is first needed: its icon is searched for on the disk
};

// Says beside a field what is wrong with what was typed. Takes no focus and covers nothing that has it,
// scrolls with the field, and is announced to screen readers. There is one at a time.
class NativeBubble : public QFrame {
public:
    explicit NativeBubble(QWidget& field);

    void Say(const QString& text);
    QString Text() const;

private:
    void Place();

    QWidget& _field; // outlives it: the field's own
    QLabel* _label;
};
