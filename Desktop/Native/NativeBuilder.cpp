#include "Native/NativeBuilder.h"

#include "Dialog/KivCombos.h"
#include "Native/NativeButtons.h"
#include "Native/NativeColorCombo.h"
#include "Native/NativeDirectoryRow.h"
#include "Native/NativeDrawnCombos.h"
#include "Native/NativeEditor.h"
#include "Native/NativeFlow.h"
#include "Native/NativeFrames.h"
#include "Native/NativeGrid.h"
#include "Native/NativeLabel.h"
#include "Native/NativePadlock.h"
#include "Native/NativeSpinner.h"
#include "Native/NativeViewer.h"

#include <QGridLayout>
#include <QStyle>

#include <algorithm>

namespace {

template <class Native> NativePiece* Make(KivDialog& node, QWidget* parent)
{
    return new Native(node, parent);
}

NativePiece* MakeEditor(KivDialog& node, QWidget* parent)
{
    if (!static_cast<KivDlgEditor&>(node).IsDirectory()) return Make<NativeEditor>(node, parent);
    return &(new NativeDirectoryRow(node, parent))->Field();
}

// What stands in the cell of a piece: its widget, or the row that it shares with others.
QWidget* StandsFor(const NativePiece& piece, const QWidget* surface)
{
    QWidget* widget = piece.Widget();
    while (widget->parentWidget() != surface) widget = widget->parentWidget();
    return widget;
}

// Which native class serves which kind of node; a kind stands before its bases.
constexpr struct {
    const char* kind;
    NativePiece* (*make)(KivDialog& node, QWidget* parent);
} kMakers[] = {
    {KivDlgToolsOptionsFrame::Name, &Make<NativeGroup>},
    {KivDlgCheckButton::Name, &Make<NativeCheckButton>},
    {KivDlgRadioButton::Name, &Make<NativeRadioButton>},
    {KivDlgPushButton::Name, &Make<NativePushButton>},
    {KivDlgLabel::Name, &Make<NativeLabel>},
    {KivDlgLock::Name, &Make<NativePadlock>},
    {KivDlgSpinner::Name, &Make<NativeSpinner>},
    {KivDlgEditor::Name, &MakeEditor},
    {KivComboColor::Name, &Make<NativeColorCombo>},
    {KivComboDashed::Name, &Make<NativeTypeCombo>},
    {KivComboWeight::Name, &Make<NativeWeightCombo>},
    {KivComboSymbol::Name, &Make<NativeSymbolCombo>},
    {KivDlgCombo::Name, &Make<NativeCombo>},
    {Kiv2DViewer::Name, &Make<NativeViewer>},
};

NativePiece* MakePiece(KivDialog& node, QWidget* parent)
{
    for (const auto& maker : kMakers) {
        if (node.IsAKindOf(maker.kind)) return maker.make(node, parent);
    }
    return nullptr; // a kind that has nothing to show
}

Qt::Alignment Alignment(unsigned int attachment)
{
    Qt::Alignment alignment;
    const bool left = attachment & KivDlgAttachLeft, right = attachment & KivDlgAttachRight;
    const bool top = attachment & KivDlgAttachTop, bottom = attachment & KivDlgAttachBottom;
    if (!left || !right) alignment |= left ? Qt::AlignLeft : (right ? Qt::AlignRight : Qt::AlignHCenter);
    if (attachment & KivDlgCenterVertically) return alignment | Qt::AlignVCenter;
    if (!top || !bottom) alignment |= top ? Qt::AlignTop : (bottom ? Qt::AlignBottom : Qt::AlignVCenter);
    return alignment;
}

// Spinners, or combos, that have a column to themselves are all as wide as it: they line up on both sides.
bool FillsColumn(const NativeCell& cell, const NativeGrid& grid)
{
    const auto hasOnly = [&](const char* kind) {
        return std::all_of(grid.Cells().begin(), grid.Cells().end(), [&](const NativeCell& other) {
            return other.column != cell.column || other.columns > 1 || other.node->IsAKindOf(kind);
        });
    };
    return cell.columns == 1 && (hasOnly(KivDlgSpinner::Name) || hasOnly(KivDlgCombo::Name));
}

// Pages keep groups apart by rows in which nothing stands.
void KeepEmptyRows(QGridLayout& layout, const NativeGrid& grid, const QWidget& surface)
{
    const int gap = surface.style()->pixelMetric(QStyle::PM_LayoutTopMargin, nullptr, &surface);
    for (int row = 0; row < grid.Rows(); ++row) {
        const bool isEmpty =
            std::none_of(grid.Cells().begin(), grid.Cells().end(), [row](const NativeCell& cell) {
                return cell.row <= row && row < cell.row + cell.rows;
            });
        if (isEmpty) layout.setRowMinimumHeight(row, gap);
    }
}

bool IsGroup(const NativeCell& cell)
{
    return cell.node->IsAKindOf(KivDlgToolsOptionsFrame::Name);
}

// Answers its groups, which are still empty.
std::vector<NativeGroup*> FillGrid(KivDialog& frame, QWidget* surface)
{
    const NativeGrid grid(frame);
    const bool hasGroupsAlone = std::all_of(grid.Cells().begin(), grid.Cells().end(), &IsGroup);
    QGridLayout* layout = hasGroupsAlone ? new NativeFlow(surface) : new QGridLayout(surface);
    for (KivDialog* merged : grid.Merged()) new NativeMergedFrame(*merged, surface);

    // Groups share the width of the surface; controls stay together at its beginning.
    std::vector<NativeGroup*> groups;
    for (const NativeCell& cell : grid.Cells()) {
        NativePiece* piece = MakePiece(*cell.node, surface);
        if (!piece) continue;
        unsigned int attachment = cell.node->GetGridConstraints().attachment;
        if (FillsColumn(cell, grid)) attachment |= KivDlgAttachLeft | KivDlgAttachRight;
        layout->addWidget(StandsFor(*piece, surface), cell.row, cell.column, cell.rows, cell.columns,
                          Alignment(attachment));
        if (auto* group = dynamic_cast<NativeGroup*>(piece)) {
            layout->setColumnStretch(cell.column + cell.columns - 1, 1);
            groups.push_back(group);
        }
    }
    if (groups.empty()) layout->setColumnStretch(grid.Columns(), 1);
    layout->setRowStretch(grid.Rows(), 1);
    KeepEmptyRows(*layout, grid, *surface);
    return groups;
}

void FillGroup(NativeGroup& group)
{
    for (NativeGroup* inner : FillGrid(*group.Node(), group.Content())) FillGroup(*inner);
    group.Content()->layout()->setContentsMargins(0, 0, 0, 0);
}

// Only when all pieces stand do labels find the fields that they lead to. Frames come after what is in them:
// when they are shown they measure it.
void RefreshAll(const KivDialog& node)
{
    for (const KivDialog* child : node.Children()) RefreshAll(*child);
    if (NativePiece* piece = NativePiece::Of(&node)) piece->Refresh();
}

} // namespace

NativeBuilder::NativeBuilder(KivEditorPage& page, QWidget* parent)
{
    auto* const surface = new NativePage(page, parent);
    _surface = surface;
    for (const NativeGroup* group : FillGrid(page, surface)) _groups.emplace_back(group->Node());
    std::reverse(_groups.begin(), _groups.end());
    for (const KivDialog* child : page.Children()) {
        if (NativePiece* piece = NativePiece::Of(child)) piece->Refresh();
    }
    surface->Refresh();
}

NativeBuilder::~NativeBuilder() = default;

bool NativeBuilder::Step()
{
    if (!_surface || _groups.empty()) return false;
    const KivWeakPtr<KivDialog> node = _groups.back();
    _groups.pop_back();
    if (auto* group = dynamic_cast<NativeGroup*>(NativePiece::Of(node.Get()))) {
        FillGroup(*group);
        RefreshAll(*node.Get());
    }
    return !_groups.empty();
}

void NativeBuilder::Fill(KivDialog& frame, QWidget& surface)
{
    for (NativeGroup* group : FillGrid(frame, &surface)) FillGroup(*group);
    for (const KivDialog* child : frame.Children()) RefreshAll(*child);
}
