#include "Native/NativeButtons.h"

#include "Common/IconStore.h"
#include "Common/NativeText.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativePadlock.h"

#include <QButtonGroup>
#include <QKeyEvent>

#include <algorithm>

namespace {

bool IsUsable(const KivDlgRadioButton* button)
{
    return button->IsEnabled() && button->IsShown();
}

} // namespace

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

NativeRadioButton::NativeRadioButton(KivDialog& node, QWidget* parent)
    : QRadioButton(parent), NativePieceFor(node, this)
{
    // Alone in a group that excludes nothing, it is a radio button to screen readers and leaves its neighbors
    // to the tree.
    auto* const alone = new QButtonGroup(this);
    alone->setExclusive(false);
    alone->addButton(this);
}

void NativeRadioButton::ShowNode()
{
    setText(ToQt(TreeNode()->GetTitle()));
    setIcon(IconStore::Shared().Icon(TreeNode()->GetIconName()));
    setChecked(TreeNode()->GetState() == KivDlgChecked);
    ShowTabStop();
}

// The one that Tab enters: the chosen one, else the first that can be chosen. It may be a neighbor that
// heard nothing of the change.
void NativeRadioButton::ShowTabStop()
{
    const std::vector<KivDlgRadioButton*> choices = TreeNode()->Choices();
    auto stop = std::find_if(choices.begin(), choices.end(), [](const KivDlgRadioButton* button) {
        return IsUsable(button) && button->GetState() == KivDlgChecked;
    });
    if (stop == choices.end()) stop = std::find_if(choices.begin(), choices.end(), &IsUsable);
    for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
        if (const NativePiece* piece = Of(*choice))
            piece->Widget()->setFocusPolicy(choice == stop ? Qt::StrongFocus : Qt::ClickFocus);
    }
}

void NativeRadioButton::nextCheckState()
{
    if (TreeNode()) KivUserHand::Choose(*TreeNode());
}

void NativeRadioButton::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    switch (plain ? event->key() : 0) {
    case Qt::Key_Down:
        return ChooseNeighbor(true);
    case Qt::Key_Up:
        return ChooseNeighbor(false);
    case Qt::Key_Right:
        return ChooseNeighbor(!isRightToLeft());
    case Qt::Key_Left:
        return ChooseNeighbor(isRightToLeft());
    default:
        QRadioButton::keyPressEvent(event);
    }
}

void NativeRadioButton::ChooseNeighbor(bool next)
{
    if (!TreeNode()) return;
    std::vector<KivDlgRadioButton*> choices = TreeNode()->Choices();
    if (!next) std::reverse(choices.begin(), choices.end());
    // Round from this one, which comes last.
    const auto own = std::find(choices.begin(), choices.end(), TreeNode());
    std::rotate(choices.begin(), own + 1, choices.end());
    KivDlgRadioButton* chosen = *std::find_if(choices.begin(), choices.end() - 1, &IsUsable);
    if (const NativePiece* piece = Of(chosen)) piece->Widget()->setFocus(Qt::TabFocusReason);
    KivUserHand::Choose(*chosen);
}

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
