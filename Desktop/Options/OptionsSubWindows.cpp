#include "Options/OptionsSubWindows.h"

#include "Native/NativeDialog.h"
#include "Native/NativePiece.h"

#include <algorithm>

OptionsSubWindows::OptionsSubWindows(KivDialog& root, const OptionsMemory& memory, QWidget& owner)
    : _root(&root), _memory(memory), _owner(owner)
{
    root.SetView(this);
}

OptionsSubWindows::~OptionsSubWindows()
{
    if (_root && _root->GetView() == this) _root->SetView(nullptr);
}

void OptionsSubWindows::WindowShown(KivDlgDialog& window)
{
    std::erase_if(_windows, [](const QPointer<NativeDialog>& gone) { return !gone; });
    _windows.emplace_back(new NativeDialog(window, _memory, &_owner));
    _windows.back()->Refresh();
}

bool OptionsSubWindows::CommitFields()
{
    // Entering a text may open or close windows.
    const std::vector<QPointer<NativeDialog>> windows = _windows;
    return std::all_of(windows.begin(), windows.end(), [](const QPointer<NativeDialog>& window) {
        NativeField* field = window ? window->Field() : nullptr;
        if (!field || field->CommitText()) return true;
        window->raise();
        window->activateWindow();
        return false;
    });
}
