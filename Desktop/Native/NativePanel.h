#pragma once

#include <QFrame>

// A few lines of text in a panel of their own beside a widget, gone with Esc or the next click elsewhere.
class NativePanel : public QFrame {
public:
    enum class Copy { Offered, NotOffered };

    // Deletes itself when it is closed. The name is what a screen reader announces.
    static NativePanel* Open(QWidget& beside, const QString& name, const QString& text, Copy copy);
    // The long help of the field that has the window's focus; nothing when there is none.
    static void OpenLongHelp(const QWidget& window);

private:
    NativePanel(QWidget& beside, const QString& name, const QString& text, Copy copy);
    void PutBeside(const QWidget& widget);
};
