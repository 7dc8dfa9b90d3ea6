#pragma once

#include "Common/IconEngine.h"

class QComboBox;

// Lines as the combos of line types and weights draw them.
namespace NativeLineDrawing {

// A line type, counted from 1; those beyond the standard ones are break lines.
QIcon Type(unsigned int type);
QIcon Weight(double millimeters);
// Gives the combo's icons room for a line that shows its pattern.
void MakeRoom(QComboBox& combo);

} // namespace NativeLineDrawing
