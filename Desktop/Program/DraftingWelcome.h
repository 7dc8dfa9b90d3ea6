#pragma once

#include <QDialog>

class QComboBox;
class QRadioButton;
class SheetView;

// The panel that asks for the size of a new drawing when the workbench starts; the sheet follows each choice.
class DraftingWelcome : public QDialog {
    Q_OBJECT

public:
    DraftingWelcome(SheetView& sheet, QWidget* parent);

private:
    void Show();

    SheetView& _sheet;
    QComboBox* _format;
    QRadioButton* _landscape;
};
