#include "KivDrwKeyPageFrame.h"

void KivDrwKeyPageFrame::InitDraftingValues()
{
    for (KivDrwPresetValue* value : _presets) value->Preset();
}

void KivDrwKeyPageFrame::Initialize()
{
    InitDraftingValues();
    KivPageFrame::Initialize();
}
