#pragma once

#include <QColor>

class KivDraftingSettings;

// Everything that the settings say about how a sheet looks and behaves, fit for drawing: whatever is stored,
// a number here is finite and within the range that its comment names.
struct SheetStyle {
    bool rulers = false;
    bool grid = false;
    bool snapsToGrid = false;
    // The distances of the primary lines in mm: of the vertical lines (horizontal distance) and of the
    // horizontal ones. 0: there are none; else positive.
    double spacingH = 0.0, spacingV = 0.0;
    // Into how many parts they are divided; at least 1.
    int partsH = 1, partsV = 1;

    QColor sheet = Qt::white, detail = Qt::white;
    bool sheetGraduated = false, detailGraduated = false;

    bool parameters = true, relations = true;

    bool axis = false;
    bool axisZooms = false;  // else the axis keeps its size on the screen
    double axisLength = 0.0; // mm, 0 to 100 000

    double snapAngle = 0.0; // degrees, below 360; 0: rotation is free
    bool alwaysSnapsAngle = false;

    bool skipsWelcome = false;

    bool operator==(const SheetStyle&) const = default;

    static SheetStyle Read(KivDraftingSettings& settings);
};
