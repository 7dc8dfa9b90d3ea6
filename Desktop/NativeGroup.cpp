#include "NativeGroup.h"

#include "IconView.h"
#include "NativeText.h"

#include <QHBoxLayout>
#include <QStyleOptionGroupBox>

NativeGroup::NativeGroup(KivDialog& node, QWidget* parent)
    : QGroupBox(parent), NativePieceFor(node, this), _icon(new IconView(QStyle::PM_LargeIconSize, this)),
      _content(new QWidget(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->addWidget(_icon, 0, Qt::AlignTop);
    layout->addWidget(_content, 1);
}

void NativeGroup::ShowNode()
{
    setTitle(ToQt(TreeNode()->GetSpokenTitle()).replace(u'&', "&&"));
    _icon->SetIcon(TreeNode()->GetIconName());
    update();
}

void NativeGroup::initStyleOption(QStyleOptionGroupBox* option) const
{
    QGroupBox::initStyleOption(option);
    // Natively it stays enabled, for the padlocks in it.
    if (TreeNode() && !TreeNode()->IsEnabled())
        option->textColor = palette().color(QPalette::Disabled, QPalette::WindowText);
}
