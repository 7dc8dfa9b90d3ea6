#pragma once

#include <QTreeWidget>

class SheetSettings;

// The tree of the drawing: the sheet, its view, and the view's parameters and relations as far as the
// settings show them.
class DraftingTree : public QTreeWidget {
    Q_OBJECT

public:
    // The settings are to outlive the tree.
    explicit DraftingTree(const SheetSettings& settings);
    ~DraftingTree() override;

    QTreeWidgetItem* ViewItem() const { return _view; }

    QSize sizeHint() const override;

signals:
    // The sample view was chosen in the tree.
    void ViewChosen();

private:
    void ShowSettings();
    void ShowValues();

    const SheetSettings& _settings;
    QTreeWidgetItem* _view;
    QTreeWidgetItem* _parameters;
    QTreeWidgetItem* _relations;
    int _unitListener;
};
