#pragma once

#include "Dialog/KivComboColor.h"
#include "Dialog/KivComboDashed.h"
#include "Dialog/KivComboSymbol.h"
#include "Dialog/KivDlgCheckButton.h"
#include "Dialog/KivDlgEditor.h"
#include "Dialog/KivDlgLabel.h"
#include "Dialog/KivDlgLock.h"
#include "Dialog/KivDlgPushButton.h"
#include "Dialog/KivDlgRadioButton.h"
#include "Dialog/KivDlgSpinner.h"
#include "Dialog/KivDlgToolsOptionsFrame.h"
#include "Options/KivEditorPage.h"

#include <array>

// A page as the libraries build theirs: groups of rows, each row a frame with a padlock and a control.
struct TestPage {
    // Builds in the page given.
    explicit TestPage(KivEditorPage& page);

    static KivSettingInfo LockedInfo(const char* key);

    KivDlgFrame* Row(KivDialog* group, short row, short column, const char* name, const KivSettingInfo& info);
    KivDlgLabel* Label(KivDialog* group, short row, const char* name, const char* title, KivDialog* control);
    template <class Control>
    Control* Place(KivDialog* row, Control* control, const char* title, const char* help)
    {
        control->SetGridConstraints(0, 1, 1, 1, KivDlgAttachLeftCentered);
        if (title) control->SetTitle(title);
        control->SetHelp(help);
        static_cast<KivDlgLock*>(row->Children().front())->AddAssociatedDialog(control);
        return control;
    }

    KivDlgToolsOptionsFrame *grid, *colors, *points;
    KivDlgCheckButton *show, *snap, *distort;
    KivDlgSpinner *horizontal, *vertical, *angle;
    KivComboColor *background, *lockedColor;
    KivComboDashed* type;
    KivDlgCombo* direction;
    KivDlgEditor* file;
    std::array<KivDlgRadioButton*, 3> choices, otherChoices; // the others are locked
    KivComboSymbol* symbol;
    KivDlgPushButton* settings;

private:
    // A choice of one for a setting, under one padlock.
    std::array<KivDlgRadioButton*, 3> Choice(short column, const char* name, const KivSettingInfo& info);
};
