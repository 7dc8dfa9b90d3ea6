#include "Native/NativeFrames.h"

#include "Common/IconView.h"
#include "Common/NativeText.h"

#include <QHBoxLayout>
#include <QStyleOptionGroupBox>

#include <algorithm>

NativeGroup::NativeGroup(KivDialog& node, QWidget* parent)
    : QGroupBox(parent), NativePieceFor(node, this), _icon(new IconView(QStyle::PM_LargeIconSize, this)),
      _content(new QWidget(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(_icon, 0, Qt::AlignTop);
    layout->addWidget(_content, 1);
    _content->show(); // so that it is counted before its page is shown
}

void NativeGroup::ShowNode()
{
    setTitle(ToQt(TreeNode()->GetSpokenTitle()).replace(u'&', "&&"));
    _icon->SetIcon(TreeNode()->GetIconName());
    _icon->setVisible(KeepsIconColumn());
    update();
}

// The controls of all groups on a surface stand in line: a group without an icon reserves the width of one
// while another has one.
bool NativeGroup::KeepsIconColumn() const
{
    const KivDialog* parent = TreeNode()->GetParentDialog();
    const std::vector<KivDialog*> alone{TreeNode()};
    const std::vector<KivDialog*>& groups = parent ? parent->Children() : alone;
    return std::any_of(groups.begin(), groups.end(), [](const KivDialog* group) {
        return group->IsAKindOf(KivDlgToolsOptionsFrame::Name) && !group->GetIconName().IsEmpty();
    });
}

void NativeGroup::initStyleOption(QStyleOptionGroupBox* option) const
{
    QGroupBox::initStyleOption(option);
    // Natively it stays enabled, for the padlocks in it.
    if (TreeNode() && !TreeNode()->IsEnabled())
        option->textColor = palette().color(QPalette::Disabled, QPalette::WindowText);
}

NativeMergedFrame::NativeMergedFrame(KivDialog& node, QObject* owner)
    : QObject(owner), NativePiece(node, nullptr)
{}

void NativeMergedFrame::ShowNode()
{
    for (const KivDialog* child : Node()->Children()) {
        if (NativePiece* piece = NativePiece::Of(child)) piece->Refresh();
    }
}
