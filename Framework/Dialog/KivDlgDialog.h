#pragma once

#include "Dialog/KivDialog.h"

// A window of its own within a dialog's tree: a frame in the grid of nobody. It belongs to its parent, but
// whoever made it usually asks for its delayed destruction when it is closed.
class KivDlgDialog : public KivClass<KivDlgDialog, KivDialog> {
public:
    static constexpr const char* Name = "KivDlgDialog";
    // Hidden at first.
    KivDlgDialog(KivDialog* parent, const KivString& name, unsigned long style = KivDlgModelessWindow);

    // The user has pressed the window's close button, or closed the window in the way of his desktop. Nothing
    // else happens: who listens decides what it means.
    KivNotification* GetDiaCloseNotification() const { return &_closed; }
    KivNotification* GetWindCloseNotification() const { return &_windowClosed; }

    // Whether the user has chosen something in it that is stored only when it is closed.
    virtual bool HoldsChoices() const { return false; }

protected:
    // A window that is shown for the first time has no view yet: that of the root makes it one.
    void VisibilityChanged() override;

private:
    mutable KivNotification _closed{"KivDlgDiaCloseNotification"};
    mutable KivNotification _windowClosed{"KivDlgWindCloseNotification"};
};
