#include "Native/NativeGrid.h"

#include "Dialog/KivDlgDialog.h"
#include "Dialog/KivDlgFrame.h"
#include "Dialog/KivDlgLabel.h"
#include "Dialog/KivDlgLock.h"
#include "Dialog/KivDlgSpinner.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

enum class Axis { Rows, Columns };

// What has cells in a frame's grid: windows of their own are beside it.
std::vector<KivDialog*> Inhabitants(const KivDialog& frame)
{
    std::vector<KivDialog*> children = frame.Children();
    std::erase_if(children, [](const KivDialog* child) { return child->IsAKindOf(KivDlgDialog::Name); });
    return children;
}

struct Span {
    std::size_t first, count;
};

Span SpanOf(const KivDialog& node, Axis axis)
{
    const KivDialog::GridConstraints& grid = node.GetGridConstraints();
    const int first = axis == Axis::Rows ? grid.row : grid.column;
    const int count = axis == Axis::Rows ? grid.rows : grid.columns;
    return {static_cast<std::size_t>(std::max(first, 0)), static_cast<std::size_t>(std::max(count, 1))};
}

int Sum(const std::vector<int>& tracks, std::size_t first, std::size_t count)
{
    const auto from = tracks.begin() + static_cast<std::ptrdiff_t>(first);
    return std::accumulate(from, from + static_cast<std::ptrdiff_t>(count), 0);
}

// How many native lines each row or column of a frame takes.
std::vector<int> Tracks(const KivDialog& frame, Axis axis)
{
    std::vector<std::pair<Span, int>> needs;
    std::vector<int> tracks;
    std::size_t first = std::numeric_limits<std::size_t>::max();
    for (const KivDialog* child : Inhabitants(frame)) {
        const Span span = SpanOf(*child, axis);
        tracks.resize(std::max(tracks.size(), span.first + span.count), 1);
        first = std::min(first, span.first);
        if (!NativeGrid::IsMerged(*child)) continue;
        const std::vector<int> inner = Tracks(*child, axis);
        needs.emplace_back(span, Sum(inner, 0, inner.size()));
    }
    // A frame over several lines only widens them when the frames within one line left too little.
    std::stable_sort(needs.begin(), needs.end(),
                     [](const auto& a, const auto& b) { return a.first.count < b.first.count; });
    for (const auto& [span, need] : needs) {
        const int lacking = need - Sum(tracks, span.first, span.count);
        if (lacking > 0) tracks[span.first + span.count - 1] += lacking;
    }
    // Columns before the first control take no room, else it would be out of line with those of other frames.
    // Empty rows do: pages keep groups apart by them.
    if (axis == Axis::Columns && first < tracks.size()) std::fill_n(tracks.begin(), first, 0);
    return tracks;
}

} // namespace

NativeGrid::NativeGrid(const KivDialog& frame)
{
    AddCells(frame, 0, 0);
    PutPadlocksFirst();
    for (const NativeCell& cell : _cells) {
        _rows = std::max(_rows, cell.row + cell.rows);
        _columns = std::max(_columns, cell.column + cell.columns);
    }
    std::stable_sort(_cells.begin(), _cells.end(), [](const NativeCell& a, const NativeCell& b) {
        return a.row != b.row ? a.row < b.row : a.column < b.column;
    });
    WidenLastOfRow();
}

bool NativeGrid::IsMerged(const KivDialog& node)
{
    return node.IsAKindOf(KivDlgFrame::Name) && !node.IsAKindOf(KivDlgToolsOptionsFrame::Name);
}

void NativeGrid::AddCells(const KivDialog& frame, int row, int column)
{
    const std::vector<int> rows = Tracks(frame, Axis::Rows), columns = Tracks(frame, Axis::Columns);
    for (KivDialog* child : Inhabitants(frame)) {
        const Span down = SpanOf(*child, Axis::Rows), across = SpanOf(*child, Axis::Columns);
        const int childRow = row + Sum(rows, 0, down.first);
        const int childColumn = column + Sum(columns, 0, across.first);
        if (IsMerged(*child)) {
            _merged.push_back(child);
            AddCells(*child, childRow, childColumn);
        } else {
            _cells.push_back({child, childRow, childColumn, Sum(rows, down.first, down.count),
                              Sum(columns, across.first, across.count)});
        }
    }
}

const NativeCell* NativeGrid::At(int row, int column) const
{
    const auto found = std::find_if(_cells.begin(), _cells.end(), [row, column](const NativeCell& cell) {
        return cell.row == row && cell.column == column;
    });
    return found == _cells.end() ? nullptr : &*found;
}

void NativeGrid::PutPadlocksFirst()
{
    std::vector<const KivDialog*> taken;
    for (NativeCell& lock : _cells) {
        if (!lock.node->IsAKindOf(KivDlgLock::Name)) continue;
        const NativeCell* label = At(lock.row, lock.column - 1);
        const NativeCell* kept = At(lock.row, lock.column - 2);
        if (!label || !label->node->IsAKindOf(KivDlgLabel::Name) || !kept ||
            kept->node->GetVisibility() != KivDlgReserved)
            continue;
        lock.column = kept->column;
        taken.push_back(kept->node);
    }
    std::erase_if(_cells, [&](const NativeCell& cell) {
        return std::find(taken.begin(), taken.end(), cell.node) != taken.end();
    });
}

// What is attached to the left and followed by nothing may use the rest of its row: else one long title would
// push the fields of all other rows aside. Spinners stay in their column: they are as wide as their
// neighbors.
void NativeGrid::WidenLastOfRow()
{
    for (NativeCell& cell : _cells) {
        const unsigned int attachment = cell.node->GetGridConstraints().attachment;
        if (!(attachment & KivDlgAttachLeft) || (attachment & KivDlgAttachRight) ||
            cell.node->IsAKindOf(KivDlgSpinner::Name))
            continue;
        const bool followed = std::any_of(_cells.begin(), _cells.end(), [&](const NativeCell& other) {
            return other.column > cell.column && other.row < cell.row + cell.rows &&
                   cell.row < other.row + other.rows;
        });
        if (!followed) cell.columns = _columns - cell.column;
    }
}
