#pragma once

class KivDialog;
class KivDlgDialog;

// Who shows a node of the tree natively. One a node; it takes itself off (SetView(nullptr)) when it goes
// first. It holds no state of its own: after each call it asks the node for what it shows.
class KivDlgView {
public:
    // Something that is shown has changed: text, value, sensitivity, visibility, lock.
    virtual void NodeChanged(KivDialog& node) = 0;
    // The node is being destroyed: only its address may be used.
    virtual void NodeDestroyed(KivDialog& node) = 0;
    // Whether the user is typing something in it that the node has not got yet.
    virtual bool IsTyping() const { return false; }
    // Told to the view of a tree's root: a window of the tree that has no view yet is to be seen.
    virtual void WindowShown(KivDlgDialog&) {}

protected:
    ~KivDlgView() = default;
};
