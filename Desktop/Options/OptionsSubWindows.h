#pragma once

#include "Common/OptionsMemory.h"
#include "Dialog/KivDialog.h"
#include "Dialog/KivDlgView.h"

#include <QPointer>

#include <vector>

class NativeDialog;
class QWidget;

// The windows that pages of the options open: each gets a native one when it is first shown.
class OptionsSubWindows final : public KivDlgView {
public:
    // Watches the tree of that root for as long as both live. The native windows belong to the owner.
    OptionsSubWindows(KivDialog& root, const OptionsMemory& memory, QWidget& owner);
    ~OptionsSubWindows();
    OptionsSubWindows(const OptionsSubWindows&) = delete;
    OptionsSubWindows& operator=(const OptionsSubWindows&) = delete;

    // Enters the texts that wait in their fields. The first field that has refused its own, or null.
    QWidget* CommitFields();

    void NodeChanged(KivDialog&) override {}
    void NodeDestroyed(KivDialog&) override {}
    void WindowShown(KivDlgDialog& window) override;

private:
    KivWeakPtr<KivDialog> _root;
    OptionsMemory _memory;
    QWidget& _owner;
    std::vector<QPointer<NativeDialog>> _windows; // null when they are gone
};
