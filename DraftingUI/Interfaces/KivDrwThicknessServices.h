#pragma once

class KivComboWeight;

// The thickness of the selected weight in millimeters: 0.1 for a selection outside 1 to 6, 0.0 without a
// combo.
double GetThicknessMM(KivComboWeight* combo);

// Deliberately inert: its guard is inverted, so that a combo keeps its selection whatever the number. Pages
// select weights by their index instead.
void SetThicknessMM(KivComboWeight* combo, const int& millimeters);
