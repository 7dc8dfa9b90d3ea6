#pragma once

#include "Dialog/KivDlgCheckButton.h"
#include "Dialog/KivDlgDialog.h"
#include "Dialog/KivDlgSpinner.h"

#include <string>

// A window of a page, as the libraries build theirs: shown while it is made, and gone however it is closed.
class TestWindow : public KivClass<TestWindow, KivDlgDialog> {
public:
    static constexpr const char* Name = "TestWindow";
    explicit TestWindow(KivDialog* parent) : KivClass(parent, "PointWindow")
    {
        spinner = new KivDlgSpinner(this, "pointSize", 0);
        spinner->SetUnit(KivDlgUnitMillimeter);
        spinner->SetMinMaxStep(0.001, 1.0, 0.001, 1);
        spinner->SetTitle("Size");
        spinner->SetValue(0.003, 0);
        spinner->SetLongHelp("How large points are, on paper.");
        check = new KivDlgCheckButton(this, "pointFill", 0);
        check->SetTitle("&Fill points");
        check->SetGridConstraints(1, 0, 1, 1, KivDlgAttachLeftCentered);
        for (KivNotification* way : {GetDiaCloseNotification(), GetWindCloseNotification()})
            AddAnalyseNotificationCB(this, way, &TestWindow::Closed, nullptr);
        SetVisibility(KivDlgShown);
        SetTitle("Points && more");
    }
    void Closed(KivCommand*, KivNotification* way, void*)
    {
        closed.push_back(way == GetDiaCloseNotification() ? 'B' : 'W');
        if (isStubborn) return;
        stored = spinner->GetValue();
        RequestDelayedDestruction();
    }

    KivDlgSpinner* spinner;
    KivDlgCheckButton* check;
    bool isStubborn = false;
    // In which ways they were closed (by the button or as a window), and what the last one held.
    static inline auto& closed = *new std::string;
    static inline double stored = 0.0;
};
