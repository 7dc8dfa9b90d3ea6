#pragma once

// The thickness of a line weight in millimeters; 0 for a number that no weight has. The second argument is
// the framework's (1: as drawn on paper).
float KivGetMMThickness(int weight, int medium);
