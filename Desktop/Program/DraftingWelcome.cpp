#include "Program/DraftingWelcome.h"

#include "Common/NativeText.h"
#include "Sheet/SheetUnit.h"
#include "Sheet/SheetView.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

DraftingWelcome::DraftingWelcome(SheetView& sheet, QWidget* parent)
    : QDialog(parent), _sheet(sheet), _format(new QComboBox),
      _landscape(new QRadioButton(DraftingText("Landscape")))
{
    setObjectName("welcome");
    setWindowTitle(DraftingText("WelcomeTitle"));
    setAttribute(Qt::WA_DeleteOnClose);

    for (const SheetFormat& format : SheetFormat::All()) {
        const QSizeF size = format.Size(true);
        _format->addItem(DraftingText("WelcomeFormatLine")
                             .arg(QString::fromUtf8(format.name), SheetUnit::Print(size.width(), 2),
                                  SheetUnit::Print(size.height(), 2)),
                         QString::fromUtf8(format.name));
    }
    _format->setCurrentIndex(_format->findData(sheet.FormatName()));
    auto* const portrait = new QRadioButton(DraftingText("Portrait"));
    const bool isLandscape = sheet.Camera().Sheet().width() >= sheet.Camera().Sheet().height();
    (isLandscape ? _landscape : portrait)->setChecked(true);
    connect(_format, &QComboBox::currentIndexChanged, this, &DraftingWelcome::Show);
    connect(_landscape, &QRadioButton::toggled, this, &DraftingWelcome::Show);

    auto* const orientation = new QHBoxLayout;
    orientation->addWidget(_landscape);
    orientation->addWidget(portrait);
    orientation->addStretch();
    auto* const hint = new QLabel(DraftingText("WelcomeHint"));
    hint->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox;
    buttons->addButton(DraftingText("WelcomeStart"), QDialogButtonBox::AcceptRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* const form = new QFormLayout(this);
    form->addRow(DraftingText("WelcomeFormat"), _format);
    form->addRow(DraftingText("WelcomeOrientation"), orientation);
    form->addRow(hint);
    form->addRow(buttons);
}

void DraftingWelcome::Show()
{
    _sheet.SetFormat(SheetFormat::Named(_format->currentData().toString()), _landscape->isChecked());
}
