#pragma once

#include "Dialog/KivDialog.h"
#include "Dialog/KivDlgView.h"

class QWidget;

// What every native piece has in common: it shows one node of the tree, keeps nothing that the node knows,
// and survives the node as the node survives it. After each change of the node it asks for everything anew.
//
// Whether a widget is enabled or seen follows from the node alone: nothing else in the window decides it.
class NativePiece : public KivDlgView {
public:
    virtual ~NativePiece();
    NativePiece(const NativePiece&) = delete;
    NativePiece& operator=(const NativePiece&) = delete;

    // The piece that shows a node, or null.
    static NativePiece* Of(const KivDialog* node);

    // Null once the node is gone; the widget is hidden then and goes with the next event.
    KivDialog* Node() const { return _node; }
    // Null for a piece that only passes on what happens to its node.
    QWidget* Widget() const { return _widget; }

    void Refresh();

    void NodeChanged(KivDialog& node) final;
    void NodeDestroyed(KivDialog& node) final;

protected:
    NativePiece(KivDialog& node, QWidget* widget);

    // Shows what the node says of itself.
    virtual void ShowTexts();
    // Shows what is particular to the kind of node; its texts, visibility and sensitivity are shown already.
    virtual void ShowNode() {}
    // A frame and a padlock stay reachable while their node is disabled: what they hold has to be explained.
    virtual bool StaysReachable() const { return false; }

private:
    void ShowVisibility();

    KivDialog* _node;
    QWidget* _widget;
};

// The same with the type of its node.
template <class Tree> class NativePieceFor : public NativePiece {
protected:
    NativePieceFor(KivDialog& node, QWidget* widget) : NativePiece(node, widget) {}
    Tree* TreeNode() const { return static_cast<Tree*>(Node()); }
};

// A field in which a text may stand that its node has not got yet, however it came there: typed, pasted,
// dropped, or set by an aid for those who cannot type.
class NativeField {
public:
    // Enters it. False when it was refused: it stands there still, with the reason beside it, until it is
    // mended or dropped.
    virtual bool CommitText() = 0;
    // Shows the value in force instead.
    virtual void DropText() = 0;

    // The same for every field in a widget. The first field that has refused its text, or null.
    static QWidget* CommitAll(const QWidget& surface);
    static void DropAll(const QWidget& surface);

protected:
    ~NativeField() = default;
};
