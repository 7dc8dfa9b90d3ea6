#include "Native/NativeCheckButton.h"

#include "Common/IconStore.h"
#include "Common/NativeText.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativePadlock.h"

NativeCheckButton::NativeCheckButton(KivDialog& node, QWidget* parent)
    : QCheckBox(parent), NativePieceFor(node, this)
{}

void NativeCheckButton::ShowNode()
{
    const KivDlgCheckButton& button = *TreeNode();
    setText(ToQt(button.GetTitle()));
    setChecked(button.GetState() == KivDlgChecked);
    // One that only reserves the cell of a padlock has the padlock's size and nothing to draw.
    const bool isReserved = button.GetVisibility() == KivDlgReserved;
    if (!isReserved) setIcon(IconStore::Shared().Icon(button.GetIconName()));
    updateGeometry();
}

void NativeCheckButton::nextCheckState()
{
    if (TreeNode()) KivUserHand::Tick(*TreeNode());
}

QSize NativeCheckButton::sizeHint() const
{
    const bool isReserved = TreeNode() && TreeNode()->GetVisibility() == KivDlgReserved;
    return isReserved && !TreeNode()->GetIconName().IsEmpty() ? NativePadlock::PadlockSize(*this)
                                                              : QCheckBox::sizeHint();
}
