#pragma once

#include "Sheet/SheetSketch.h"

#include <QColor>

class KivDraftingSettings;
class KivSettingRepository;
class KivSketcherSettings;

// The weight of the visible lines of the sample part.
enum class SheetLine { Standard, Thin, Thick };

// How a window draws its sheet, beside what the settings say.
struct SheetLook {
    SheetLine line = SheetLine::Standard;
    // The sheet's frame and title block are worked on: the views are dimmed.
    bool isBackground = false;

    bool operator==(const SheetLook&) const = default;
};

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

// Everything that the settings say about how a sketch looks and behaves, fit for drawing. Colors are shown
// as the user chose them, whatever the sheet's own color.
struct SheetSketchStyle {
    std::array<bool, kSheetConstraints> constraints{}; // which kinds have symbols
    double symbolSize = 0.0;                           // mm of paper, half of a symbol; 0 (none) to 50
    QColor symbols;

    bool diagnoses = false;
    // Of elements that are over-constrained, inconsistent, not changed, iso-constrained; valid while
    // diagnoses is set.
    static constexpr std::size_t kDiagnostics = 4;
    std::array<QColor, kDiagnostics> diagnostics;
    QColor construction;

    bool centers = false, endPoints = false;
    bool drags = false, dragsEndPoints = false;
    bool position = false; // H and V fields

    QColor smartPick;
    bool picksSupports = false, picksAlignment = false;

    bool Shows(SheetConstraint kind) const { return constraints[static_cast<std::size_t>(kind)]; }
    bool operator==(const SheetSketchStyle&) const = default;

    // Without a repository what only it knows has its default.
    static SheetSketchStyle Read(KivSketcherSettings& sketcher, const KivSettingRepository* repository);
};
