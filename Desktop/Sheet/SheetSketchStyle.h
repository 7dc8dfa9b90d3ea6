#pragma once

#include "Sheet/SheetConstraint.h"

#include <QColor>

class KivSettingRepository;
class KivSketcherSettings;

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
