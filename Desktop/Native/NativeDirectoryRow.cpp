#include "Native/NativeDirectoryRow.h"

#include "Common/NativeText.h"
#include "Native/NativeDescription.h"
#include "Native/NativeEditor.h"

#include <QBoxLayout>
#include <QEvent>

NativeDirectoryButton::NativeDirectoryButton(QWidget& field, QWidget* parent)
    : QToolButton(parent), _field(field)
{
    setText(QStringLiteral("…"));
    setAccessibleName(WindowText("ChooseDirectory"));
    // A click keeps the focus in the field: what is typed there is where the search begins.
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred); // as high as its field
    field.installEventFilter(this);
    Follow();
}

bool NativeDirectoryButton::eventFilter(QObject* field, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::EnabledChange:
    case QEvent::ToolTipChange:
        Follow();
        break;
    default:
        break;
    }
    return QToolButton::eventFilter(field, event);
}

void NativeDirectoryButton::Follow()
{
    QSizePolicy policy = sizePolicy();
    policy.setRetainSizeWhenHidden(_field.sizePolicy().retainSizeWhenHidden());
    setSizePolicy(policy);
    setVisible(!_field.isHidden());
    setEnabled(_field.isEnabled());
    // A gray one has the reason of its field.
    setToolTip(isEnabled() ? accessibleName() : _field.toolTip());
    const auto* piece = dynamic_cast<NativePiece*>(&_field);
    const KivDialog* node = piece ? piece->Node() : nullptr;
    setAccessibleDescription(isEnabled() || !node ? QString() : NativeDescription(*node).Tip());
}

NativeDirectoryRow::NativeDirectoryRow(KivDialog& node, QWidget* parent)
    : QWidget(parent), _field(new NativeEditor(node, this))
{
    auto* const button = new NativeDirectoryButton(*_field, this);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_field, 1);
    layout->addWidget(button);
    show(); // as the content of a group
    connect(button, &QToolButton::clicked, _field, &NativeEditor::OpenChooser);
    connect(_field, &QObject::destroyed, this, &QObject::deleteLater);
}
