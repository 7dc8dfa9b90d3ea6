#include "Native/NativePushButton.h"

#include "Common/IconStore.h"
#include "Common/NativeText.h"
#include "Dialog/KivUserHand.h"

#include <QKeyEvent>

NativePushButton::NativePushButton(KivDialog& node, QWidget* parent)
    : QPushButton(parent), NativePieceFor(node, this)
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, [this] {
        if (TreeNode()) KivUserHand::Press(*TreeNode());
    });
}

void NativePushButton::ShowNode()
{
    setText(ToQt(TreeNode()->GetTitle()));
    setIcon(IconStore::Shared().Icon(TreeNode()->GetIconName()));
}

void NativePushButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}
