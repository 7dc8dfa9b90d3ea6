#include "Program/DraftingTree.h"

#include "Common/NativeText.h"
#include "Parameter/KivParmEngine.h"
#include "Sheet/SheetPart.h"
#include "Sheet/SheetSettings.h"
#include "Sheet/SheetUnit.h"

#include <QHeaderView>

namespace {

struct Parameter {
    const char* key;
    double value; // mm
};
constexpr Parameter kParameters[] = {{"ParameterLength", SheetPart::kLength},
                                     {"ParameterRadius", SheetPart::kRadius},
                                     {"ParameterBore", SheetPart::kBore},
                                     {"ParameterHeight", SheetPart::kHeight},
                                     {"ParameterBase", SheetPart::kBase}};
// The texts of these formulas are true of the parameters above.
constexpr const char* kRelations[] = {"RelationRadius", "RelationBase"};
static_assert(SheetPart::kRadius == SheetPart::kLength / 4.0 && SheetPart::kBase == SheetPart::kHeight / 5.0);

QTreeWidgetItem* Added(QTreeWidgetItem* parent, const char* key)
{
    return new QTreeWidgetItem(parent, {DraftingText(key)}); // the parent owns it
}

} // namespace

DraftingTree::DraftingTree(const SheetSettings& settings) : _settings(settings)
{
    setObjectName("tree");
    setAccessibleName(DraftingText("TreeName"));
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    setUniformRowHeights(true);
    // Names are read in full: a narrow tree scrolls instead of cutting them.
    setTextElideMode(Qt::ElideNone);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QTreeWidgetItem* const sheet = Added(invisibleRootItem(), "TreeSheet");
    _view = Added(sheet, "TreeView");
    _parameters = Added(_view, "TreeParameters");
    _relations = Added(_view, "TreeRelations");
    for (const Parameter& parameter : kParameters) Added(_parameters, parameter.key);
    for (const char* const relation : kRelations) Added(_relations, relation);
    ShowValues();
    ShowSettings();
    expandAll();

    connect(&_settings, &SheetSettings::Changed, this, &DraftingTree::ShowSettings);
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (item == _view) emit ViewChosen();
    });
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (item == _view) emit ViewChosen();
    });
    _unitListener = KivParmEngine::Instance().AddListener([this](const KivParmMagnitude&) { ShowValues(); });
}

DraftingTree::~DraftingTree()
{
    KivParmEngine::Instance().RemoveListener(_unitListener);
}

void DraftingTree::ShowSettings()
{
    _parameters->setHidden(!_settings.Style().parameters);
    _relations->setHidden(!_settings.Style().relations);
}

void DraftingTree::ShowValues()
{
    for (int i = 0; i < _parameters->childCount(); ++i)
        _parameters->child(i)->setText(
            0, DraftingText("Parameter")
                   .arg(DraftingText(kParameters[i].key), SheetUnit::Print(kParameters[i].value, 3)));
}

QSize DraftingTree::sizeHint() const
{
    return {sizeHintForColumn(0) + 2 * fontMetrics().averageCharWidth(), fontMetrics().height() * 20};
}
