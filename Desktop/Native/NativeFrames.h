#pragma once

#include "Dialog/KivDlgFrame.h"
#include "Native/NativePiece.h"
#include "Options/KivEditorPage.h"

#include <QGroupBox>
#include <QObject>
#include <QWidget>

class IconView;

// The surface of a page. It has no name of its own: the page's title is the options manager's.
class NativePage : public QWidget, public NativePieceFor<KivEditorPage> {
public:
    NativePage(KivDialog& node, QWidget* parent) : QWidget(parent), NativePieceFor(node, this) {}

protected:
    void ShowTexts() override {}
    bool StaysReachable() const override { return true; }
};

// A titled group with its icon beside the controls.
class NativeGroup : public QGroupBox, public NativePieceFor<KivDlgToolsOptionsFrame> {
public:
    NativeGroup(KivDialog& node, QWidget* parent);

    // Where the controls go.
    QWidget* Content() const { return _content; }

protected:
    void ShowNode() override;
    bool StaysReachable() const override { return true; }
    void initStyleOption(QStyleOptionGroupBox* option) const override;

private:
    bool KeepsIconColumn() const;

    IconView* _icon;
    QWidget* _content;
};

// Stands for a plain frame, which has no surface of its own: what happens to it happens to what is in it.
class NativeMergedFrame : public QObject, public NativePiece {
public:
    NativeMergedFrame(KivDialog& node, QObject* owner);

protected:
    void ShowNode() override;
};
