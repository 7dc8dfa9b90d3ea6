#include "Native/NativeDirectoryRow.h"

#include "Native/NativeDirectoryButton.h"
#include "Native/NativeEditor.h"

#include <QBoxLayout>

NativeDirectoryRow::NativeDirectoryRow(KivDialog& node, QWidget* parent)
    : QWidget(parent), _field(new NativeEditor(node, this))
{
    auto* const button = new NativeDirectoryButton(*_field, this);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(_field, 1);
    layout->addWidget(button);
    connect(button, &QToolButton::clicked, _field, &NativeEditor::OpenChooser);
    connect(_field, &QObject::destroyed, this, &QObject::deleteLater);
}
