#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

// A few lines of text in a panel of their own beside a widget, gone with Esc or the next click elsewhere.
class NativePanel : public QFrame {
public:
    // Deletes itself when it is closed. The name is what a screen reader announces. The text can be copied,
    // and the command line unless that is empty.
    static NativePanel* Open(QWidget& beside, const QString& name, const QString& text,
                             const QString& command = {});
    // Says something else from now on.
    void Say(const QString& name, const QString& text, const QString& command = {});
    // The long help of the field that has the window's focus, with the facts of its setting; nothing when
    // there is none.
    static void OpenLongHelp(const QWidget& window);

private:
    explicit NativePanel(QWidget& beside);
    QPushButton* MakeCopyButton(const char* title, const char* help, const QString& words);
    void PutBeside(const QWidget& widget);

    QString _text, _command;
    QLabel* _label;
    QPushButton* _copyCommand;
    QPushButton* _copy;
};
