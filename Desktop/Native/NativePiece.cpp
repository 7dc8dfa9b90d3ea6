#include "Native/NativePiece.h"

#include "Native/NativeDescription.h"

#include <QPointer>
#include <QWidget>

namespace {

// Guarded: entering the text of one may end others.
QList<QPointer<QWidget>> FieldsIn(const QWidget& surface)
{
    QList<QPointer<QWidget>> fields;
    for (QWidget* widget : surface.findChildren<QWidget*>())
        if (dynamic_cast<NativeField*>(widget)) fields << widget;
    return fields;
}

} // namespace

QWidget* NativeField::CommitAll(const QWidget& surface)
{
    QPointer<QWidget> refused;
    for (const QPointer<QWidget>& widget : FieldsIn(surface)) {
        auto* const field = dynamic_cast<NativeField*>(widget.data());
        if (field && !field->CommitText() && !refused) refused = widget;
    }
    return refused;
}

void NativeField::DropAll(const QWidget& surface)
{
    for (const QPointer<QWidget>& widget : FieldsIn(surface))
        if (auto* const field = dynamic_cast<NativeField*>(widget.data())) field->DropText();
}

NativePiece::NativePiece(KivDialog& node, QWidget* widget) : _node(&node), _widget(widget)
{
    if (_widget) _widget->setObjectName(QString::fromUtf8(node.KivCommand::GetName().ConvertToChar()));
    node.SetView(this);
}

NativePiece::~NativePiece()
{
    if (_node && _node->GetView() == this) _node->SetView(nullptr);
}

NativePiece* NativePiece::Of(const KivDialog* node)
{
    return node ? dynamic_cast<NativePiece*>(node->GetView()) : nullptr;
}

void NativePiece::Refresh()
{
    if (!_node) return;
    if (_widget) {
        _widget->setEnabled(_node->IsEnabled() || StaysReachable());
        ShowTexts();
    }
    ShowNode();
    if (_widget) ShowVisibility();
}

void NativePiece::ShowTexts()
{
    NativeDescription(*_node).ShowOn(*_widget);
}

void NativePiece::NodeChanged(KivDialog&)
{
    Refresh();
}

void NativePiece::NodeDestroyed(KivDialog&)
{
    _node = nullptr;
    if (!_widget) return;
    // An event of the widget may be under way.
    _widget->hide();
    _widget->deleteLater();
}

void NativePiece::ShowVisibility()
{
    QSizePolicy policy = _widget->sizePolicy();
    policy.setRetainSizeWhenHidden(_node->GetVisibility() == KivDlgReserved);
    if (policy != _widget->sizePolicy()) _widget->setSizePolicy(policy);

    // Parents that have a widget hide what is in it; the others have to be asked.
    bool shown = _node->GetVisibility() == KivDlgShown;
    for (const KivDialog* parent = _node->GetParentDialog(); shown && parent;
         parent = parent->GetParentDialog()) {
        const NativePiece* piece = Of(parent);
        if (!piece || piece->Widget()) break;
        shown = parent->GetVisibility() == KivDlgShown;
    }
    _widget->setVisible(shown);
}
