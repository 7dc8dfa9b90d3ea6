#pragma once

#include "Native/NativePiece.h"
#include "Options/KivEditorPage.h"

#include <QWidget>

// The surface of a page. It has no name of its own: the page's title is the options manager's.
class NativePage : public QWidget, public NativePieceFor<KivEditorPage> {
public:
    NativePage(KivDialog& node, QWidget* parent) : QWidget(parent), NativePieceFor(node, this) {}

protected:
    void ShowNode() override
    {
        setAccessibleName(QString());
        setToolTip(QString());
    }
    bool StaysReachable() const override { return true; }
};
