#include "Options/OptionsSubWindows.h"

#include "Native/NativeDialog.h"
#include "Native/NativePiece.h"

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

QWidget* OptionsSubWindows::CommitFields()
{
    // Entering a text may open or close windows.
    const std::vector<QPointer<NativeDialog>> windows = _windows;
    QPointer<QWidget> first;
    for (const QPointer<NativeDialog>& window : windows) {
        QWidget* const refused = window ? NativeField::CommitAll(*window) : nullptr;
        if (!first) first = refused;
    }
    return first;
}
