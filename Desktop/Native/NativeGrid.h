#pragma once

#include "Dialog/KivDialog.h"

#include <vector>

// A node's cell in the native grid of its group.
struct NativeCell {
    KivDialog* node;
    int row, column, rows, columns;
};

// The native grid of a frame. Plain frames inside it have no surface of their own: their cells become cells
// of the same grid, in which every row and column of the outer frame gets as many native lines as the plain
// frame that needs most there. So padlocks, labels and fields align down the whole group. Every row begins
// with its padlock: that of a labelled field, which pages declare after the label, takes the cell that they
// keep before it.
class NativeGrid {
public:
    explicit NativeGrid(const KivDialog& frame);

    // What is shown, in reading order.
    const std::vector<NativeCell>& Cells() const { return _cells; }
    // The plain frames that were merged.
    const std::vector<KivDialog*>& Merged() const { return _merged; }
    int Rows() const { return _rows; }
    int Columns() const { return _columns; }

    static bool IsMerged(const KivDialog& node);

private:
    void AddCells(const KivDialog& frame, int row, int column);
    const NativeCell* At(int row, int column) const;
    void PutPadlocksFirst();
    void WidenLastOfRow();

    std::vector<NativeCell> _cells;
    std::vector<KivDialog*> _merged;
    int _rows = 0;
    int _columns = 0;
};
