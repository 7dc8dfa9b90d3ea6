#pragma once

#include "Viewer/Kiv2DManipulator.h"
#include "Viewer/Kiv2DViewer.h"
#include "Windows/KivDrwButtonDialog.h"

#include <memory>

// Chooses the level of detail of HRV views, 1 to 15: in a field, or by dragging the cursor along a curve.
// Both always show the same level.
class KivDrwButtonHRVView final : public KivClass<KivDrwButtonHRVView, KivDrwButtonDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonHRVView";
    KivDrwButtonHRVView(KivDialog* parent, const KivString& name);

    void Build();
    void BuildViewer(KivDlgFrame* frame);

private:
    void ShowValues() override;
    void ReadFrom(KivCommand* from) override;

    Kiv2DPoint OnCurve(double level) const;
    void MoveCursor();

    // The curve is y = a + c x² over x = 5 level: from (5, 10.29) to (75, 75).
    double _a = 10.0;
    float _c = 0.011555555F;

    KIV_KEY_PROPERTY(_level, int, KivDrwKeys::KivDrwHRVLOD)
    KivWeakPtr<KivDrwLockSpinner> _spinner;
    KivWeakPtr<Kiv2DViewer> _viewer;
    KivWeakPtr<Kiv2DPointRep> _cursor;
    KivWeakPtr<Kiv2DTextRep> _caption; // the cursor's
    std::unique_ptr<Kiv2DManipulator> _manipulator;
};
