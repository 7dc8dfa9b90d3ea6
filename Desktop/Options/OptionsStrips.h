#pragma once

#include <QFrame>
#include <QLabel>
#include <QStringList>

#include <functional>

class QPushButton;

// Says at the head of the window whose layer is edited: an administrator's changes are no settings of his
// own.
class OptionsLayerStrip : public QLabel {
    Q_OBJECT

public:
    // The directory of the layer.
    OptionsLayerStrip(const QString& layer, QWidget* parent);
};

// Says at the foot of the window, in words, what went wrong. Empty and unseen until something did.
class OptionsMessageStrip : public QFrame {
public:
    explicit OptionsMessageStrip(QWidget* parent);

    // The same message again is not repeated.
    void Add(const QString& message);
    // A message with a button that mends what it tells of.
    void Offer(const QString& message, const QString& button, const QString& help,
               std::function<void()> mend);
    void Clear();
    const QStringList& Messages() const { return _messages; }

private:
    void Show();

    QStringList _messages;
    QLabel* _text;
    QPushButton* _button;
    std::function<void()> _mend;
};
