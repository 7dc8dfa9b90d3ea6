#pragma once

#include "NativePiece.h"
#include "Options/KivEditorPage.h"

#include <QWidget>

// The surface of a page.
class NativePage : public QWidget, public NativePieceFor<KivEditorPage> {
public:
    NativePage(KivDialog& node, QWidget* parent) : QWidget(parent), NativePieceFor(node, this) {}

protected:
    bool StaysReachable() const override { return true; }
};
