#pragma once

#include <QFrame>
#include <QStringList>

class QLabel;

// Says at the foot of the window, in words, what went wrong. Empty and unseen until something did.
class OptionsMessageStrip : public QFrame {
public:
    explicit OptionsMessageStrip(QWidget* parent);

    // The same message again is not repeated.
    void Add(const QString& message);
    void Clear();
    const QStringList& Messages() const { return _messages; }

private:
    void Show();

    QStringList _messages;
    QLabel* _text;
};
