#pragma once

#include <QFrame>

class QLabel;

// Says beside a field what is wrong with what was typed. Takes no focus, scrolls with the field, and is
// announced to screen readers.
class NativeBubble : public QFrame {
public:
    explicit NativeBubble(QWidget& field);

    void Say(const QString& text);
    QString Text() const;

private:
    QWidget& _field; // outlives it: the field's own
    QLabel* _label;
};
