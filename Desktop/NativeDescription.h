#pragma once

#include "Dialog/KivDialog.h"

#include <QString>

class QWidget;

// What a node says of itself to a pointer that rests on it and to a screen reader.
class NativeDescription {
public:
    explicit NativeDescription(const KivDialog& node) : _node(node) {}

    // Its own title, else that of the label which names it (or the frame that wraps it).
    QString Name() const;
    // Why it cannot be used while that is so, else its help; a label speaks for its control. Never empty for
    // a control that is gray.
    QString Tip() const;
    QString LongHelp() const;

    // Puts all of it on the widget.
    void ShowOn(QWidget& widget) const;

private:
    const KivDialog& _node;
};
