#pragma once

#include "Dialog/KivDialog.h"

#include <QString>

class QWidget;

// What a node says of itself to a pointer that rests on it and to a screen reader.
class NativeDescription {
public:
    explicit NativeDescription(const KivDialog& node) : _node(node) {}

    QString Name() const;
    // A label speaks for its control.
    QString Tip() const;
    QString LongHelp() const;
    // The setting behind it, for whoever wants to change it elsewhere; empty without one.
    QString Facts() const;
    QString Command() const;

    // Puts all of it on the widget.
    void ShowOn(QWidget& widget) const;

private:
    const KivDialog& _node;
};
