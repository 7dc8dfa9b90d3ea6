#pragma once

#include "KivDrwKeys.h"
#include "KivDrwSettingAccess.h"
#include "KivDrwWorkbench.h"
#include "Sheet/SheetView.h"
#include "Support/KivSettingsSandbox.h"

#include <QTest>
#include <climits>
#include <gtest/gtest.h>
#include <limits>

// A sheet that shows settings of its own.
class SheetFixture : public testing::Test {
protected:
    SheetFixture()
    {
        view->SelectView(false);
        view->resize(1100, 800);
        view->show();
    }
    template <class T> void Write(const KivDrwKey<T>& key, T value)
    {
        repository.WriteSetting(key.name, &value, 1, 0);
    }
    QImage Grab() const { return view->grab().toImage(); }

    static constexpr double kHuge = std::numeric_limits<double>::max();
    static constexpr double kTiny = std::numeric_limits<double>::denorm_min();

    KivSettingsSandbox box;
    KivSettingRepository& repository = box.Reopen();
    KivDrwDraftingSettings drafting;
    KivDrwSketcherSettings sketcher;
    SheetSettings settings{drafting, sketcher, &repository};
    std::unique_ptr<SheetView> view = std::make_unique<SheetView>(settings);
};
